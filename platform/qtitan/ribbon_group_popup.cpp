#include "ribbon_bar_p.h"
#include "ribbon_group_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_util_p.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace Qtitan {

RibbonGroupPopup::RibbonGroupPopup(RibbonGroup* group, RibbonGroupPanel* panel)
    : QWidget(group, Qt::Popup | Qt::FramelessWindowHint), m_group(group), m_panel(panel)
{
    setObjectName(QStringLiteral("ribbonGroupPopup"));
    setAttribute(Qt::WA_WindowPropagation);
}

void RibbonGroupPopup::fit()
{
    const int frame = RibbonMetrics::of(this).px(2);
    const QSize panel(m_panel->fullWidth(), m_panel->fullHeight());
    resize(panel + QSize(2 * frame, 2 * frame));
    m_panel->setStep(0);
    m_panel->setGeometry(QRect(QPoint(frame, frame), panel));
    m_panel->ensurePlaced();
}

void RibbonGroupPopup::openAt(const QRect& button)
{
    setLayoutDirection(m_group->layoutDirection());
    m_panel->setParent(this);
    fit();
    m_panel->show();

    const QScreen* screen = QGuiApplication::screenAt(button.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    QPoint place(layoutDirection() == Qt::RightToLeft ? button.right() + 1 - width()
                                                      : button.left(),
                 button.bottom() + 1);
    if (place.y() + height() > room.bottom() + 1)
        place.setY(button.top() - height());
    place.setX(qBound(room.left(), place.x(), qMax(room.left(), room.right() + 1 - width())));
    place.setY(qMax(room.top(), place.y()));
    move(place);
    show();
    setFocus(Qt::PopupFocusReason);
}

bool RibbonGroupPopup::focusNextPrevChild(bool next)
{
    return RibbonKeyboard::moveFocus(focusWidget() ? focusWidget() : this, next);
}

void RibbonGroupPopup::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    RibbonGroupPrivate::get(m_group)->popupHidden();
}

void RibbonGroupPopup::mousePressEvent(QMouseEvent* event)
{
    if (rect().contains(event->pos()))
        return;
    // A press on the group itself closes only: replayed, it would open the popup again.
    const QRect button(m_group->mapToGlobal(QPoint(0, 0)), m_group->size());
    setAttribute(Qt::WA_NoMouseReplay, button.contains(event->globalPos()));
    hide();
}

void RibbonGroupPopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    if (!RibbonKeyboard::handleKey(this, event))
        QWidget::keyPressEvent(event);
}

void RibbonGroupPopup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    RibbonPainter::drawPopup(painter, option);
}

} // namespace Qtitan

#include "moc_ribbon_group_p.cpp"
