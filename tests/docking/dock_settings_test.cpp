#include "tests/support/test_main.h"

#include <ovk/docking/dock_manager.h>
#include <ovk/docking/dock_settings.h>
#include <ovk/docking/dock_toolbar_site.h>

using ovk::DockManager;
using ovk::DockSettings;

class DockSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theValuesStandAtTheirDefaults();
    void resetTurnsTheAnimationOnAndLeavesTheRest();
    void allManagersShareTheSettings();
    void aChangeIsHeardOnceAndNoChangeNotAtAll();
    void gapsArePercentOfTheManager_data();
    void gapsArePercentOfTheManager();
    void gapsMayBePixels();
    void anUnknownEdgeHasNoGap();
    void toolbarSitesHaveTheirNamesAndDirections();
};

void DockSettingsTest::cleanup()
{
    DockSettings::EdgeGapMode().SetData(DockManager::Percent);
    for (ovk::ObservableValue<int>* gap :
         {&DockSettings::LeftEdgeGap(), &DockSettings::TopEdgeGap(), &DockSettings::RightEdgeGap(),
          &DockSettings::BotomEdgeGap()})
        gap->SetData(7);
    DockSettings::Color().SetData(QColor(112, 146, 190));
    DockSettings::Reset();
}

void DockSettingsTest::theValuesStandAtTheirDefaults()
{
    QCOMPARE(DockSettings::EdgeGapMode().GetData(), DockManager::Percent);
    QCOMPARE(int(DockManager::Pixels), 0);
    QCOMPARE(int(DockManager::Percent), 1);
    QCOMPARE(DockSettings::LeftEdgeGap().GetData(), 7);
    QCOMPARE(DockSettings::TopEdgeGap().GetData(), 7);
    QCOMPARE(DockSettings::RightEdgeGap().GetData(), 7);
    QCOMPARE(DockSettings::BotomEdgeGap().GetData(), 7);
    QCOMPARE(DockSettings::Animated().GetData(), true);
    QCOMPARE(DockSettings::Color().GetData(), QColor(112, 146, 190));
}

void DockSettingsTest::resetTurnsTheAnimationOnAndLeavesTheRest()
{
    DockSettings::Animated().SetData(false);
    DockSettings::LeftEdgeGap().SetData(11);
    DockSettings::EdgeGapMode().SetData(DockManager::Pixels);
    DockSettings::Color().SetData(Qt::red);
    DockSettings::Reset();
    QCOMPARE(DockSettings::Animated().GetData(), true);
    QCOMPARE(DockSettings::LeftEdgeGap().GetData(), 11);
    QCOMPARE(DockSettings::EdgeGapMode().GetData(), DockManager::Pixels);
    QCOMPARE(DockSettings::Color().GetData(), QColor(Qt::red));
}

void DockSettingsTest::allManagersShareTheSettings()
{
    DockManager first;
    DockManager second;
    first.SetDockEdgeGap(Qt::RightEdge, 12);
    first.SetAnimatedDocking(false);
    first.SetEdgeGapMode(DockManager::Pixels);
    QCOMPARE(second.GetDockEdgeGap(Qt::RightEdge), 12);
    QCOMPARE(second.IsAnimatedDocking(), false);
    QCOMPARE(second.GetEdgeGapMode(), DockManager::Pixels);
    QCOMPARE(second.GetEvaluationColor(), QColor(112, 146, 190));
    QCOMPARE(second.GetDockInsideGap(), 30);
}

void DockSettingsTest::aChangeIsHeardOnceAndNoChangeNotAtAll()
{
    DockManager manager;
    int heard = 0;
    ovk::Observer* const observer = DockSettings::TopEdgeGap().Attach([&heard] { ++heard; });
    manager.SetDockEdgeGap(Qt::TopEdge, 7);
    QCOMPARE(heard, 0);
    manager.SetDockEdgeGap(Qt::TopEdge, 8);
    QCOMPARE(heard, 1);
    DockSettings::TopEdgeGap().Detach(*observer);
}

void DockSettingsTest::gapsArePercentOfTheManager_data()
{
    QTest::addColumn<Qt::Edge>("edge");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("gap");

    QTest::newRow("left") << Qt::LeftEdge << QSize(1000, 500) << 70;
    QTest::newRow("right") << Qt::RightEdge << QSize(1000, 500) << 70;
    QTest::newRow("top") << Qt::TopEdge << QSize(1000, 500) << 35;
    QTest::newRow("bottom") << Qt::BottomEdge << QSize(1000, 500) << 35;
    QTest::newRow("rounded down") << Qt::TopEdge << QSize(1000, 499) << 34;
}

void DockSettingsTest::gapsArePercentOfTheManager()
{
    QFETCH(Qt::Edge, edge);
    QFETCH(QSize, size);
    DockManager manager;
    manager.resize(size);
    QTEST(manager.CalcDockEdgeGap(edge), "gap");
}

void DockSettingsTest::gapsMayBePixels()
{
    DockManager manager;
    manager.resize(1000, 500);
    manager.SetEdgeGapMode(DockManager::Pixels);
    manager.SetDockEdgeGap(Qt::BottomEdge, 41);
    QCOMPARE(manager.CalcDockEdgeGap(Qt::BottomEdge), 41);
    QCOMPARE(manager.CalcDockEdgeGap(Qt::LeftEdge), 7);
}

void DockSettingsTest::anUnknownEdgeHasNoGap()
{
    DockManager manager;
    const auto corner = static_cast<Qt::Edge>(int(Qt::LeftEdge) | int(Qt::TopEdge));
    manager.SetDockEdgeGap(corner, 99);
    QCOMPARE(manager.GetDockEdgeGap(corner), 0);
    QCOMPARE(manager.CalcDockEdgeGap(corner), 0);
    for (const Qt::Edge edge : {Qt::LeftEdge, Qt::TopEdge, Qt::RightEdge, Qt::BottomEdge})
        QCOMPARE(manager.GetDockEdgeGap(edge), 7);
}

void DockSettingsTest::toolbarSitesHaveTheirNamesAndDirections()
{
    ovk::DockToolbarSiteInner inner(Qt::Horizontal);
    ovk::DockToolbarSiteOutter outter(Qt::Vertical);
    QCOMPARE(inner.GetTextType(), QStringLiteral("toolbars.inner"));
    QCOMPARE(inner.GetTextType(), ovk::DockToolbarSiteInner::_GetTextType());
    QCOMPARE(outter.GetTextType(), QStringLiteral("toolbars.outter"));
    QCOMPARE(outter.GetTextType(), ovk::DockToolbarSiteOutter::_GetTextType());
    QCOMPARE(inner.direction(), QBoxLayout::LeftToRight);
    QCOMPARE(outter.direction(), QBoxLayout::RightToLeft);
    inner.Clear();
    outter.Clear();
}

OVK_TEST_CLASS(DockSettingsTest)

#include "dock_settings_test.moc"
