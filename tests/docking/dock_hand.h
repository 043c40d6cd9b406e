#pragma once

#include "dock_fixture.h"

#include <QCursor>
#include <QProcess>
#include <QScreen>

namespace ovk_test {

/// The hand of a user at an X server: moves the real pointer, presses real buttons and keys. Every
/// step waits till the program has seen it.
class Hand
{
public:
    Hand() { m_tool.start(QStringLiteral("xdotool"), {QStringLiteral("-")}); }
    ~Hand()
    {
        if (m_down)
            Say("mouseup 1");
        m_tool.closeWriteChannel();
        if (!m_tool.waitForFinished(c_patience))
            m_tool.kill();
        m_tool.waitForFinished(c_patience);
    }

    bool IsReady() { return m_tool.waitForStarted(c_patience); }

    void MoveTo(const QPoint& to)
    {
        const QPoint native = to * QGuiApplication::primaryScreen()->devicePixelRatio();
        Say(QStringLiteral("mousemove %1 %2").arg(native.x()).arg(native.y()).toLatin1());
        QVERIFY(QTest::qWaitFor([to] { return QCursor::pos() == to; }, c_patience));
        DockFixture::Settle();
    }
    /// In steps, as a hand moves.
    void Glide(const QPoint& to, int steps = 8)
    {
        const QPoint from = QCursor::pos();
        for (int i = 1; i <= steps; ++i)
            MoveTo(from + (to - from) * i / steps);
    }
    void Press()
    {
        m_down = true;
        Say("mousedown 1");
        QVERIFY(Buttons(Qt::LeftButton));
    }
    void Release()
    {
        m_down = false;
        Say("mouseup 1");
        QVERIFY(Buttons(Qt::NoButton));
    }
    /// Out of the way of everything, with nothing in it.
    void Rest()
    {
        if (m_down)
            Release();
        MoveTo(QGuiApplication::primaryScreen()->geometry().bottomRight() - QPoint(2, 2));
    }
    void Click(const QPoint& at)
    {
        MoveTo(at);
        Press();
        Release();
    }
    void DoubleClick(const QPoint& at)
    {
        MoveTo(at);
        Say("click --repeat 2 --delay 30 1");
        DockFixture::Settle();
    }
    void Key(const char* name)
    {
        Say(QByteArray("key ") + name);
        DockFixture::Settle();
    }
    void Do(const QByteArray& line)
    {
        Say(line);
        DockFixture::Settle();
    }

    /// Holds the pointer about a place, trembling, till `happened`. What is seen under a dragged
    /// panel depends on a window manager that takes its time; and the place may move meanwhile.
    bool HoverTill(const std::function<QPoint()>& place, const std::function<bool()>& happened)
    {
        return QTest::qWaitFor(
            [&] {
                MoveTo(place() + QPoint(m_tremble ^= 1, 0));
                return happened();
            },
            c_patience);
    }

    static constexpr int c_patience = 10000;

private:
    void Say(const QByteArray& line)
    {
        m_tool.write(line + '\n');
        m_tool.waitForBytesWritten(c_patience);
    }
    static bool Buttons(Qt::MouseButtons buttons)
    {
        const bool seen = QTest::qWaitFor(
            [buttons] { return QGuiApplication::mouseButtons() == buttons; }, c_patience);
        DockFixture::Settle();
        return seen;
    }

    QProcess m_tool;
    bool m_down = false;
    int m_tremble = 0;
};

/// A point of a widget on the screen, in parts of its size.
inline QPoint Spot(const QWidget& widget, double x, double y)
{
    return widget.mapToGlobal(QPoint(int(widget.width() * x), int(widget.height() * y)));
}

/// Where a panel is taken by its title, in the title's coordinates.
inline QPoint Hold(const ovk::DockWidget& panel)
{
    return {panel.width() / 3, panel._Impl()->title->height() / 2};
}

inline QPoint Grip(const ovk::DockWidget& panel)
{
    return panel._Impl()->title->mapToGlobal(Hold(panel));
}

inline void Shown(QWidget& window)
{
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    DockFixture::Settle();
}

/// Shows a panel in the middle of the fixture's window, floating.
inline void Float(const DockFixture& fixture, ovk::DockWidget& panel)
{
    const QPoint at = Spot(*fixture.central, 0.4, 0.4);
    panel.SetFloated(at);
    Shown(panel);
    QTRY_COMPARE(panel.pos(), at);
    QTRY_COMPARE(QApplication::topLevelAt(Grip(panel)), static_cast<QWidget*>(&panel));
}

} // namespace ovk_test
