#include "../support/test_main.h"

#include "window_program.h"

#include <QTemporaryDir>

#include <memory>

using namespace tarnix_test;

/// The panels of the built program, arranged by the real pointer.
class PanelsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_screen = std::make_unique<Screen>();
        QVERIFY2(m_screen->Start(), "Xvfb and openbox are needed");
    }
    void cleanupTestCase() { m_screen.reset(); }

    void panelsAreFoundWhereTheyWereLeft()
    {
        QTemporaryDir folder;
        QRect place;
        {
            Program program(*m_screen, folder.path());
            QVERIFY(program.Start({"--layout", "Prepare"}));
            QVERIFY(program.Settle());
            const auto rect = [&program](const char* name) {
                return Program::RectOf(program.Named(QLatin1String(name)));
            };
            QTRY_VERIFY_WITH_TIMEOUT(!rect("panel.parts").isEmpty(), k_patience_ms);
            // From the right to below the primitives at the left.
            QVERIFY(Drag(rect("panel.parts").topLeft() + QPoint(90, 12),
                         [&] { return rect("panel.primitives").bottomLeft() + QPoint(60, -12); }));
            QTRY_VERIFY_WITH_TIMEOUT(rect("panel.parts").left() == rect("panel.primitives").left(),
                                     k_patience_ms);
            QTRY_VERIFY_WITH_TIMEOUT(rect("panel.parts").top() > rect("panel.primitives").bottom(),
                                     k_patience_ms);
            // The notes lie somewhere else over the view.
            const QRect notes = rect("panel.notes");
            QVERIFY(!notes.isEmpty());
            QVERIFY(m_screen->Drag(notes.topLeft() + QPoint(90, 12),
                                   notes.topLeft() + QPoint(90 - 130, 12 - 90)));
            place = notes.translated(-130, -90);
            QTRY_VERIFY_WITH_TIMEOUT(IsNear(rect("panel.notes"), place), k_patience_ms);
            // And the properties are folded.
            const QRect title = rect("panel.properties");
            QVERIFY(m_screen->MoveTo(title.topLeft() + QPoint(120, 12)));
            QVERIFY(m_screen->Tool({"click", "--repeat", "2", "--delay", "30", "1"}));
            QTRY_VERIFY_WITH_TIMEOUT(rect("panel.properties").height() < 80, k_patience_ms);
            QVERIFY(program.Leave());
        }
        Program again(*m_screen, folder.path());
        QVERIFY(again.Start({"--layout", "Prepare"}));
        QVERIFY(again.Settle());
        const auto rect = [&again](const char* name) {
            return Program::RectOf(again.Named(QLatin1String(name)));
        };
        QTRY_VERIFY_WITH_TIMEOUT(!rect("panel.parts").isEmpty(), k_patience_ms);
        QCOMPARE(rect("panel.parts").left(), rect("panel.primitives").left());
        QVERIFY(rect("panel.parts").top() > rect("panel.primitives").bottom());
        QTRY_VERIFY_WITH_TIMEOUT(IsNear(rect("panel.notes"), place), k_patience_ms);
        QVERIFY(rect("panel.properties").height() < 80);
        QVERIFY(again.Leave());
    }

private:
    static bool IsNear(const QRect& a, const QRect& b)
    {
        return (a.topLeft() - b.topLeft()).manhattanLength() <= 4 &&
               std::abs(a.width() - b.width()) <= 2 && std::abs(a.height() - b.height()) <= 2;
    }

    /// Holds a panel over a place till the place has made room for it, then lets go.
    bool Drag(const QPoint& from, const std::function<QPoint()>& place)
    {
        if (!m_screen->MoveTo(from) || !m_screen->Tool({"mousedown", "1"}) ||
            !m_screen->MoveTo(from + QPoint(-15, 15)) || !m_screen->MoveTo(from + QPoint(-40, 40)))
            return false;
        QPoint before;
        const bool still = QTest::qWaitFor(
            [&] {
                const QPoint now = place();
                const bool same = now == before;
                before = now;
                m_tremble ^= 1;
                m_screen->MoveTo(now + QPoint(m_tremble, 0));
                m_seen += same ? 1 : 0;
                return m_seen > 12;
            },
            k_patience_ms);
        m_seen = 0;
        return m_screen->Tool({"mouseup", "1"}) && still;
    }

    std::unique_ptr<Screen> m_screen;
    int m_tremble = 0;
    int m_seen = 0;
};

OVK_TEST_CLASS(PanelsWindowTest)

#include "panels_window_test.moc"
