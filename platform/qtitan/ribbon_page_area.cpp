#include "ribbon_page_area_p.h"

#include "ribbon_bar_p.h"
#include "ribbon_group.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_p.h"
#include "ribbon_util_p.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QWheelEvent>

namespace Qtitan {

RibbonScrollButton::RibbonScrollButton(bool forward, QWidget* parent)
    : QAbstractButton(parent), m_forward(forward)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setAutoRepeat(true);
    setAutoRepeatDelay(250);
    setAutoRepeatInterval(60);
    retranslate();
}

void RibbonScrollButton::retranslate()
{
    setAccessibleName(m_forward ? QCoreApplication::translate("Qtitan::RibbonBar", "Scroll forward")
                                : QCoreApplication::translate("Qtitan::RibbonBar", "Scroll back"));
}

void RibbonScrollButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void RibbonScrollButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown());
    const bool right = m_forward == (layoutDirection() == Qt::LeftToRight);
    RibbonPainter::drawScrollButton(painter, option, right ? Qt::RightArrow : Qt::LeftArrow);
}

RibbonPageHolder::RibbonPageHolder(RibbonPage* page, QWidget* parent)
    : QWidget(parent), m_page(page)
{
}

RibbonScrollButton* RibbonPageHolder::scrollButton(bool forward)
{
    RibbonScrollButton*& button = forward ? m_forward : m_back;
    if (!button) {
        button = new RibbonScrollButton(forward, this);
        connect(button, &QAbstractButton::clicked, this, [this, forward] {
            const int step = qMax(RibbonMetrics::of(this).largeMinWidth, width() / 4);
            setOffset(m_offset + (forward ? step : -step));
        });
    }
    return button;
}

void RibbonPageHolder::requestRelayout()
{
    m_dirty = true;
    if (isVisible())
        QCoreApplication::postEvent(m_page, new QEvent(QEvent::LayoutRequest));
}

void RibbonPageHolder::relayout()
{
    if (!m_dirty && m_laidOutWidth == width())
        return;
    m_dirty = false;
    m_laidOutWidth = width();
    const int needed = RibbonPagePrivate::get(m_page)->reduceTo(width());
    m_pageWidth = qMax(width(), needed);
    m_maximum = qMax(0, needed - width());
    m_offset = qBound(0, m_offset, m_maximum);
    placePage();
    RibbonPagePrivate::get(m_page)->place();
}

void RibbonPageHolder::placePage()
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    m_page->setGeometry(mirrored ? width() - m_pageWidth + m_offset : -m_offset, 0, m_pageWidth,
                        height());
    const bool back = m_offset > 0;
    const bool forward = m_offset < m_maximum;
    const int button_width = RibbonMetrics::of(this).scrollArrow;
    for (const bool which : {false, true}) {
        RibbonScrollButton* existing = which ? m_forward : m_back;
        const bool wanted = which ? forward : back;
        if (!wanted) {
            if (existing)
                existing->hide();
            continue;
        }
        RibbonScrollButton* button = scrollButton(which);
        const QRect rect(which ? width() - button_width : 0, 0, button_width, height());
        button->setGeometry(directed(rect, width(), layoutDirection()));
        button->raise();
        button->show();
    }
}

void RibbonPageHolder::setOffset(int offset)
{
    offset = qBound(0, offset, m_maximum);
    if (offset == m_offset)
        return;
    m_offset = offset;
    placePage();
}

void RibbonPageHolder::ensureVisible(const QWidget* child)
{
    if (m_maximum == 0)
        return;
    QRect rect(child->mapTo(m_page, QPoint(0, 0)), child->size());
    rect = directed(rect, m_page->width(), layoutDirection());
    const int arrow = RibbonMetrics::of(this).scrollArrow;
    if (rect.right() + 1 + arrow > m_offset + width())
        setOffset(rect.right() + 1 + arrow - width());
    if (rect.left() - arrow < m_offset)
        setOffset(rect.left() - arrow);
}

bool RibbonPageHolder::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::StyleChange)
        requestRelayout();
    return QWidget::event(event);
}

void RibbonPageHolder::resizeEvent(QResizeEvent*)
{
    relayout();
    placePage();
}

void RibbonPageHolder::showEvent(QShowEvent*)
{
    relayout();
}

RibbonPageArea::RibbonPageArea(RibbonBar* bar) : QWidget(bar), m_bar(bar)
{
    setObjectName(QStringLiteral("ribbonPageArea"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool RibbonPageArea::isPeeking() const
{
    return parentWidget() != m_bar;
}

bool RibbonPageArea::event(QEvent* event)
{
    // The content below a peeking page must not see what happens over it.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (isPeeking()) {
            event->accept();
            return true;
        }
        break;
    case QEvent::ContextMenu:
        if (isPeeking())
            return QCoreApplication::sendEvent(m_bar, event);
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool RibbonPageArea::focusNextPrevChild(bool next)
{
    return RibbonKeyboard::moveFocus(QApplication::focusWidget(), next) ||
           QWidget::focusNextPrevChild(next);
}

void RibbonPageArea::resizeEvent(QResizeEvent*)
{
    RibbonBarPrivate::get(m_bar)->placeHolders();
}

void RibbonPageArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Hover, false);
    option.state.setFlag(RibbonState::Peek, isPeeking());
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    option.anchor = bar->currentTabRect().translated(m_bar->mapToGlobal(QPoint(0, 0)) -
                                                     mapToGlobal(QPoint(0, 0)));
    if (bar->current)
        option.contextColor = bar->current->contextColor();
    RibbonPainter::drawPage(painter, option);
}

void RibbonPageArea::wheelEvent(QWheelEvent* event)
{
    RibbonBarPrivate::get(m_bar)->wheel(event);
}

} // namespace Qtitan

#include "moc_ribbon_page_area_p.cpp"
