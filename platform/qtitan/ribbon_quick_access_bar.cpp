#include "ribbon_quick_access_bar.h"

#include "ribbon_bar_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QPainter>

namespace Qtitan {

int quickAccessFit(const QVector<int>& edges, int width, int overflow_width)
{
    if (edges.isEmpty() || edges.last() <= width)
        return edges.size();
    int count = 0;
    while (count < edges.size() && edges.at(count) <= width - overflow_width)
        ++count;
    return count;
}

RibbonQuickAccessBar::RibbonQuickAccessBar(QWidget* parent)
    : QToolBar(parent), d(std::make_unique<RibbonQuickAccessBarPrivate>(this))
{
    d->clip = qobject_cast<RibbonQuickAccessClip*>(parent);
    setObjectName(QStringLiteral("quickAccessBar"));
    setWindowTitle(tr("Quick Access Bar"));
    setMovable(false);
    setFloatable(false);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    const int icon = RibbonMetrics::of(this).smallIcon;
    setIconSize(QSize(icon, icon));
    setFocusPolicy(Qt::NoFocus);
    // A widget of the bar that does not fit can still be asked for by its shortcut.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (!now || d->cut < 0 || !isAncestorOf(now) || window() != ribbonBarOf(this)->window())
            return;
        const QRect rect(now->mapTo(this, QPoint(0, 0)), now->size());
        if (directed(rect, width(), layoutDirection()).right() < d->cut)
            return;
        RibbonOverflowButton* button = RibbonBarPrivate::get(ribbonBarOf(this))->overflow;
        const QPointer<QWidget> widget(now);
        QMetaObject::invokeMethod(
            button,
            [button, widget] {
                button->openPopup();
                if (widget)
                    widget->setFocus(Qt::ShortcutFocusReason);
            },
            Qt::QueuedConnection);
    });
}

RibbonQuickAccessBar::~RibbonQuickAccessBar() = default;

bool RibbonQuickAccessBar::hasOverflow() const
{
    return d->firstHidden >= 0;
}

QList<QAction*> RibbonQuickAccessBar::overflowActions() const
{
    QList<QAction*> result;
    if (d->firstHidden < 0)
        return result;
    int index = 0;
    for (QAction* action : actions())
        if (action->isVisible() && index++ >= d->firstHidden)
            result.append(action);
    return result;
}

QSize RibbonQuickAccessBar::sizeHint() const
{
    return QToolBar::sizeHint();
}

QSize RibbonQuickAccessBar::minimumSizeHint() const
{
    return QSize(0, QToolBar::minimumSizeHint().height());
}

bool RibbonQuickAccessBar::event(QEvent* event)
{
    const bool result = QToolBar::event(event);
    switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::ParentChange:
        d->fitIcons();
        break;
    case QEvent::LanguageChange:
        setWindowTitle(tr("Quick Access Bar"));
        break;
    case QEvent::LayoutRequest:
        if (RibbonBar* bar = ribbonBarOf(this))
            QApplication::postEvent(bar, new QEvent(QEvent::LayoutRequest));
        break;
    default:
        break;
    }
    return result;
}

void RibbonQuickAccessBar::actionEvent(QActionEvent* event)
{
    QToolBar::actionEvent(event);
    if (RibbonBar* bar = ribbonBarOf(this))
        QApplication::postEvent(bar, new QEvent(QEvent::LayoutRequest));
}

void RibbonQuickAccessBar::paintEvent(QPaintEvent*)
{
    // The ground is the bar's row.
}

void RibbonQuickAccessBarPrivate::fitIcons()
{
    const int icon = RibbonMetrics::of(q).smallIcon;
    if (q->iconSize().width() != icon)
        q->setIconSize(QSize(icon, icon));
}

QSize RibbonQuickAccessBarPrivate::fullSize() const
{
    return q->QToolBar::sizeHint();
}

int RibbonQuickAccessBarPrivate::fitInto(int width, int overflow_width)
{
    cut = -1;
    firstHidden = -1;
    const QSize full = fullSize();
    if (full.width() <= width)
        return full.width();
    if (q->parentWidget() == clip)
        q->resize(full);
    q->layout()->activate();
    QVector<int> edges;
    for (QAction* action : q->actions()) {
        const QWidget* widget = q->widgetForAction(action);
        if (!action->isVisible() || !widget)
            continue;
        const QRect rect = directed(widget->geometry(), q->width(), q->layoutDirection());
        edges.append(rect.right() + 1);
    }
    const int count = quickAccessFit(edges, width, overflow_width);
    if (count == edges.size())
        return qMin(full.width(), width);
    firstHidden = count;
    cut = count > 0 ? edges.at(count - 1) : 0;
    return cut;
}

void RibbonQuickAccessBarPrivate::placeIn(RibbonQuickAccessClip* holder, const QRect& rect)
{
    holder->setGeometry(rect);
    if (q->parentWidget() != holder)
        return; // in the popup just now
    const QSize full = fullSize().expandedTo(QSize(0, rect.height()));
    const int x = q->layoutDirection() == Qt::RightToLeft ? rect.width() - full.width() : 0;
    q->setGeometry(x, (rect.height() - full.height()) / 2, full.width(), full.height());
}

} // namespace Qtitan

#include "moc_ribbon_quick_access_bar.cpp"
