#include "ovk/main_window/work_area.h"

#include "ovk/main_window/clipboard_manager.h"

#include <qtitan/ribbon.h>

#include <QAction>
#include <QApplication>
#include <QDesktopWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QScreen>
#include <QToolButton>

namespace ovk {

namespace {

/// How far below and right of the pointer a tool tip opens.
constexpr QPoint c_tip_offset(2, 20);

QString ShortcutsText(const QAction& action)
{
    QStringList texts;
    for (const QKeySequence& sequence : action.shortcuts())
        texts.append(sequence.toString(QKeySequence::NativeText));
    return texts.join(QStringLiteral(", "));
}

bool ShowToolTip(QToolButton& button, const QPoint& pointer)
{
    QString title = button.text();
    QString body = button.toolTip();
    if (const QAction* action = button.defaultAction()) {
        const QString shortcuts = ShortcutsText(*action);
        if (!shortcuts.isEmpty())
            (title.isEmpty() ? body : title) += QStringLiteral(" (%1)").arg(shortcuts);
    }
    if (title.isEmpty() && body.isEmpty() && button.icon().isNull())
        return false;
    Qtitan::RibbonToolTip::showToolTip(pointer + c_tip_offset, title, body, button.icon(), &button);
    return true;
}

} // namespace

struct WorkArea::Private
{
    IClipboardManager* clipboard_manager = nullptr;
};

WorkArea::WorkArea(QWidget* parent)
    : QMainWindow(parent), m_private(std::make_unique<Private>())
{
    setAnimated(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(100, 100);
    setContextMenuPolicy(Qt::NoContextMenu);
    setObjectName(QStringLiteral("main-window"));
    setAcceptDrops(true);
    // A QMainWindow with a parent stays a window unless told otherwise; this one is a plain child.
    setWindowFlags(Qt::Widget);
}

WorkArea::~WorkArea() = default;

bool WorkArea::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    auto* button = qobject_cast<QToolButton*>(watched);
    return button && ShowToolTip(*button, static_cast<QHelpEvent*>(event)->globalPos());
}

QSize WorkArea::sizeHint() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize desktop = screen ? screen->virtualSize() : minimumSize();
    return desktop.expandedTo(QApplication::globalStrut());
}

void WorkArea::SetClipboardManager(IClipboardManager* manager)
{
    m_private->clipboard_manager = manager;
}

void WorkArea::dragEnterEvent(QDragEnterEvent* event)
{
    IClipboardManager* manager = m_private->clipboard_manager;
    if (manager && manager->CanDropData(event->mimeData()))
        event->acceptProposedAction();
}

void WorkArea::dropEvent(QDropEvent* event)
{
    if (m_private->clipboard_manager)
        m_private->clipboard_manager->DropData(event->mimeData());
}

} // namespace ovk

#include "moc_work_area.cpp"
