#pragma once

#include "dock_fixture.h"

namespace ovk_test {

using namespace ovk;

/// A target that writes down what it is told.
class LogTarget : public QWidget, public IDockDragTarget
{
public:
    LogTarget(const QString& name, QStringList& log, QWidget* parent = nullptr)
        : QWidget(parent), m_name(name), mp_log(&log)
    {
    }

    void OnDragEnter(DockWidget&, const QPoint&) override { Note("enter"); }
    void OnDragLeave(DockWidget&, IDockDragTarget* next, const QPoint&) override
    {
        const auto* const other = dynamic_cast<LogTarget*>(next);
        Note("leave to " + (other ? other->m_name : QStringLiteral("none")));
        if (on_leave)
            on_leave();
    }
    void OnDragOver(DockWidget&, const QPoint&) override { Note("over"); }
    void OnDragDrop(DockWidget&, const QPoint&) override { Note("drop"); }
    void OnDragCancel(DockWidget&, const QPoint&) override { Note("cancel"); }

    std::function<void()> on_leave;

private:
    void Note(const QString& what) { mp_log->append(m_name + ' ' + what); }

    QString m_name;
    QStringList* mp_log;
};

inline void Send(QWidget& widget, QEvent::Type type, const QPoint& local, const QPoint& global,
                 Qt::MouseButtons buttons)
{
    const bool move = type == QEvent::MouseMove;
    QMouseEvent event(type, local, global, move ? Qt::NoButton : Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// A drag of a panel by its title, step by step.
class TitleDrag
{
public:
    explicit TitleDrag(DockWidget& panel, const QPoint& press = QPoint(50, 6))
        : mp_panel(&panel), m_press(press)
    {
        Send(Title(), QEvent::MouseButtonPress, press, Title().mapToGlobal(press), Qt::LeftButton);
    }
    void To(const QPoint& global)
    {
        Send(Title(), QEvent::MouseMove, Title().mapFromGlobal(global), global, Qt::LeftButton);
    }
    void Drop(const QPoint& global)
    {
        Send(Title(), QEvent::MouseButtonRelease, Title().mapFromGlobal(global), global,
             Qt::NoButton);
    }
    /// Lifts the panel off, goes there and drops it there. The preview pushes the panels about, so
    /// the place is asked for anew, as the user's eye does.
    void Take(const std::function<QPoint()>& place)
    {
        To(Title().mapToGlobal(m_press) + QPoint(40, 40));
        To(place());
        DockFixture::Settle();
        To(place() + QPoint(1, 0));
        To(place());
        Drop(place());
        DockFixture::Settle();
    }

private:
    DockTitle& Title() const { return *mp_panel->_Impl()->title; }

    DockWidget* mp_panel;
    QPoint m_press;
};

inline QPoint At(const QWidget& widget, double x, double y)
{
    return widget.mapToGlobal(QPoint(int(widget.width() * x), int(widget.height() * y)));
}

} // namespace ovk_test
