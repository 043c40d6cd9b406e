#include "dock_state_support.h"
#include "tests/support/test_main.h"

#include <QRandomGenerator>

using namespace ovk;
using namespace ovk_test;

namespace {

/// Makes arrangements as users have them: by docking, floating, tabbing, folding and hiding.
class Generator
{
public:
    explicit Generator(quint32 seed) : m_random(seed) {}

    QJsonObject Arrangement()
    {
        m_counter = 0;
        QMap<QString, QJsonArray> docked;
        for (const char* side : {"left", "right", "top", "bottom"}) {
            QJsonArray panels;
            for (int i = m_random.bounded(3); i > 0; --i)
                panels.append(Make({}));
            panels.append(c_spacer);
            for (int i = m_random.bounded(3); i > 0; --i)
                panels.append(Make({}));
            docked.insert(QString::fromLatin1(side), panels);
        }
        QJsonArray floated;
        for (int i = m_random.bounded(4); i > 0; --i)
            floated.append(Make(QRect(m_random.bounded(400), m_random.bounded(300),
                                      200 + m_random.bounded(200), 200 + m_random.bounded(200))));
        return Docking(docked, floated, 120 + m_random.bounded(60));
    }

    /// Changes a live arrangement.
    void Change(DockManager& manager)
    {
        for (int i = m_random.bounded(6); i > 0; --i) {
            const QList<DockWidget*> panels = manager.GetWidgetsList();
            if (panels.isEmpty())
                return;
            DockWidget* const panel = panels.at(m_random.bounded(panels.size()));
            DockToolboxSite* const site = manager.GetLayout()
                                              ->GetSite(DockLayout::Side(m_random.bounded(4)))
                                              ->GetToolboxSite();
            switch (m_random.bounded(7)) {
            case 0:
                panel->SetFloated(QPoint(20 + m_random.bounded(300), 20 + m_random.bounded(300)));
                break;
            case 1:
                site->InsertWidget(m_random.bounded(site->count() + 1) - 1, panel);
                break;
            case 2:
                panel->SetCollapsed(!panel->IsCollapsed(), false);
                break;
            case 3:
                site->SetMinimized(!site->IsMinimized());
                break;
            case 4:
                if (!panel->GetToolboxSite())
                    panel->resize(200 + m_random.bounded(150), 200 + m_random.bounded(150));
                break;
            case 5:
                panel->setVisible(!panel->IsVisible());
                break;
            case 6:
                if (IDockPage* const page = panel->GetPageAt(0, DockWidget::All))
                    panel->SetPageVisible(page, panel->IsExplicitlyHidden(page));
                break;
            }
        }
    }

private:
    QJsonObject Make(const QRect& rect)
    {
        QStringList pages;
        for (int i = 1 + m_random.bounded(3); i > 0; --i)
            pages.append(QStringLiteral("page%1").arg(++m_counter));
        if (m_random.bounded(12) == 0)
            pages.append(QStringLiteral("Unknown%1").arg(m_counter));
        if (m_random.bounded(12) == 0)
            pages.append(QStringLiteral("Away%1").arg(m_counter));
        QJsonObject json = Panel(QStringLiteral("panel%1").arg(++m_counter), pages, rect);
        const struct
        {
            const char* key;
            QJsonValue value;
        } rare[] = {{"movable", false},     {"minimized", true}, {"visible", false},
                    {"minimizable", false}, {"persistence", 4},  {"title_visible", false}};
        for (const auto& property : rare) {
            if (m_random.bounded(5) == 0)
                json.insert(QString::fromLatin1(property.key), property.value);
        }
        return json;
    }

    QRandomGenerator m_random;
    int m_counter = 0;
};

} // namespace

class DockRoundTripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsStoredComesBackEqual();
    void whatTheUserChangedComesBackEqual();
};

void DockRoundTripTest::whatIsStoredComesBackEqual()
{
    DockHost host;
    for (quint32 seed = 1; seed <= 150; ++seed) {
        host.Load(Generator(seed).Arrangement());
        const QByteArray first = Text(host.Captured());
        host.Load(QJsonDocument::fromJson(first).object());
        const QString difference = Difference(Text(host.Captured()), first);
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
        QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
    }
}

void DockRoundTripTest::whatTheUserChangedComesBackEqual()
{
    DockHost host;
    for (quint32 seed = 1001; seed <= 1150; ++seed) {
        Generator generator(seed);
        host.Load(generator.Arrangement());
        generator.Change(host.Manager());
        DockFixture::Settle();
        const QByteArray first = Text(host.Captured());
        host.Load(QJsonDocument::fromJson(first).object());
        const QString difference = Difference(Text(host.Captured()), first);
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
        QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
    }
}

OVK_TEST_CLASS(DockRoundTripTest)

#include "dock_round_trip_test.moc"
