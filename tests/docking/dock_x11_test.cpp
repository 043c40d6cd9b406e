#include "dock_fixture.h"
#include "tests/support/test_main.h"

using namespace ovk;
using ovk_test::DockFixture;

/// What only a real window system shows: hit tests through the dragged panel, pictures of the
/// screen. Runs under a virtual X server.
class DockX11Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theDraggedPanelIsSeenThrough();
    void aDragDocksAndMerges();
    void floatingPanelsLieInFrontOfTheWindow();
    void theOverlayShowsWhatIsOnTheScreen();
};

namespace {

void Shown(QWidget& window)
{
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    DockFixture::Settle();
}

QPoint Middle(const QWidget& widget)
{
    return widget.mapToGlobal(widget.rect().center());
}

} // namespace

void DockX11Test::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void DockX11Test::theDraggedPanelIsSeenThrough()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(200, 300));
    fixture.Left()->AddWidget(docked);
    DockWidget* const panel = fixture.Panel("panel", QSize(150, 120));
    panel->SetFloated(QPoint(10, 10));
    Shown(fixture.window);
    Shown(*panel);
    QTRY_COMPARE(panel->pos(), QPoint(10, 10));
    const QPoint at = panel->mapToGlobal(QPoint(60, 60));
    QTRY_COMPARE(QApplication::topLevelAt(at), static_cast<QWidget*>(panel));

    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.Begin(*panel, QPoint(1000, 700));
    QTRY_COMPARE(controller.FindTarget(at), static_cast<IDockDragTarget*>(docked));
    QVERIFY(panel->mask().isEmpty());
    QVERIFY(!panel->testAttribute(Qt::WA_TransparentForMouseEvents));
    controller.Cancel();
}

void DockX11Test::aDragDocksAndMerges()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(200, 300));
    fixture.Left()->AddWidget(docked);
    const QPointer<DockWidget> panel = fixture.Panel("panel", QSize(150, 120));
    panel->SetFloated(QPoint(400, 300));
    Shown(fixture.window);
    Shown(*panel);
    DockDragController& controller = *fixture.manager->_Impl()->controller;

    controller.Begin(*panel, Middle(*fixture.central));
    const QPoint edge = fixture.manager->mapToGlobal(QPoint(795, 300));
    const auto over_edge = [&] {
        panel->move(edge - QPoint(50, 5));
        DockFixture::Settle();
        controller.Update(edge);
        return bool(fixture.Right()->_pp()->estimator);
    };
    QTRY_VERIFY(over_edge());
    controller.End(edge);
    DockFixture::Settle();
    QCOMPARE(DockFixture::Order(*fixture.Right()).count("panel"), 1);

    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    controller.Begin(*panel, Middle(*fixture.central));
    const auto over_middle = [&] {
        panel->move(Middle(*docked) - QPoint(50, 5));
        DockFixture::Settle();
        controller.Update(Middle(*docked));
        return docked->_Impl()->overlay && docked->_Impl()->overlay->IsActive();
    };
    QTRY_VERIFY(over_middle());
    controller.End(Middle(*docked));
    DockFixture::Settle();
    QVERIFY(panel.isNull());
    QCOMPARE(docked->GetCount(DockWidget::All), 2);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11Test::floatingPanelsLieInFrontOfTheWindow()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(150, 120));
    Shown(fixture.window);
    panel->SetFloated(QPoint(200, 200));
    Shown(*panel);
    QTRY_COMPARE(QApplication::topLevelAt(Middle(*panel)), static_cast<QWidget*>(panel));
    QCOMPARE(panel->windowHandle()->transientParent(), fixture.window.windowHandle());
}

void DockX11Test::theOverlayShowsWhatIsOnTheScreen()
{
    DockFixture fixture;
    QPalette red;
    red.setColor(QPalette::Window, Qt::red);
    DockWidget* const docked = fixture.Panel("docked", QSize(200, 300));
    DockFixture::Page(*docked)->setPalette(red);
    DockFixture::Page(*docked)->setAutoFillBackground(true);
    fixture.Left()->AddWidget(docked);
    Shown(fixture.window);
    const auto middle = [&] {
        docked->_Impl()->HideOverlay();
        DockFixture::Settle();
        docked->_Impl()->ShowOverlay(Middle(*docked));
        const QImage image = docked->_Impl()->overlay->GetPlain().toImage();
        return image.pixelColor(image.width() / 2, image.height() / 2);
    };
    QTRY_COMPARE(middle(), QColor(Qt::red));
    // As fine as the screen is.
    const DockOverlay& overlay = *docked->_Impl()->overlay;
    QCOMPARE(overlay.GetPlain().size(), overlay.size() * overlay.devicePixelRatioF());
    QCOMPARE(overlay.GetPlain().devicePixelRatioF(), overlay.devicePixelRatioF());
    // A docked panel gets no native window of its own by that.
    QVERIFY(!docked->internalWinId());
}

OVK_TEST_CLASS(DockX11Test)

#include "dock_x11_test.moc"
