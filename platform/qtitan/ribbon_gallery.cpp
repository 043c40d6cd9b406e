#include "ribbon_gallery.h"

#include "office_popup_menu.h"
#include "ribbon_gallery_p.h"
#include "ribbon_group_panel_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <QWheelEvent>

namespace Qtitan {

RibbonGalleryButton::RibbonGalleryButton(Qt::ArrowType arrow, QWidget* parent)
    : QAbstractButton(parent), m_arrow(arrow)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setAutoRepeat(arrow != Qt::NoArrow);
}

void RibbonGalleryButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown());
    if (m_arrow != Qt::NoArrow) {
        RibbonPainter::drawGalleryButton(painter, option, m_arrow);
        return;
    }
    // "More": the arrow under a line.
    RibbonPainter::drawGalleryButton(painter, option, Qt::DownArrow);
    const int size = qMax(1, qRound(5 * option.scale));
    painter.fillRect(option.rect.center().x() - size / 2,
                     option.rect.center().y() - qRound(4 * option.scale), size,
                     qMax(1, qRound(option.scale)),
                     RibbonPainter::textColor(Element::ScrollButton, option));
}

RibbonGallery::RibbonGallery(QWidget* parent)
    : QFrame(parent), d(std::make_unique<RibbonGalleryPrivate>(this))
{
    qRegisterMetaType<Qtitan::RibbonGalleryItem*>();
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

RibbonGallery::~RibbonGallery()
{
    // A group that is a child of the gallery changes while it goes.
    if (d->group)
        disconnect(d->group, nullptr, this, nullptr);
}

RibbonGalleryGroup* RibbonGallery::galleryGroup() const
{
    return d->group;
}

void RibbonGallery::setGalleryGroup(RibbonGalleryGroup* group)
{
    if (d->group == group)
        return;
    if (d->group)
        disconnect(d->group, nullptr, this, nullptr);
    d->group = group;
    if (group) {
        connect(group, &RibbonGalleryGroup::changed, this, [this] { d->invalidate(); });
        connect(group, &QObject::destroyed, this, [this] { d->invalidate(); });
    }
    d->invalidate();
}

int RibbonGallery::minimumItemCount() const
{
    return d->minimumCount;
}

void RibbonGallery::setMinimumItemCount(int count)
{
    d->minimumCount = qMax(1, count);
    d->maximumCount = qMax(d->maximumCount, d->minimumCount);
    d->invalidate();
}

int RibbonGallery::maximumItemCount() const
{
    return d->maximumCount;
}

void RibbonGallery::setMaximumItemCount(int count)
{
    d->maximumCount = qMax(1, count);
    d->minimumCount = qMin(d->minimumCount, d->maximumCount);
    d->invalidate();
}

int RibbonGallery::maximumRowCount() const
{
    return d->maximumRows;
}

void RibbonGallery::setMaximumRowCount(int count)
{
    d->maximumRows = qMax(0, count);
    d->invalidate();
}

bool RibbonGallery::isLabelsVisible() const
{
    return d->labels;
}

void RibbonGallery::setLabelsVisible(bool visible)
{
    d->labels = visible;
    d->invalidate();
}

Qt::ScrollBarPolicy RibbonGallery::scrollBarPolicy() const
{
    return d->policy;
}

void RibbonGallery::setScrollBarPolicy(Qt::ScrollBarPolicy policy)
{
    d->policy = policy;
    d->invalidate();
}

RibbonGalleryItem* RibbonGallery::checkedItem() const
{
    return d->checked;
}

void RibbonGallery::setCheckedItem(RibbonGalleryItem* item)
{
    if (d->checked == item)
        return;
    d->checked = item;
    if (item)
        ensureVisible(item);
    update();
}

RibbonGalleryItem* RibbonGallery::selectedItem() const
{
    return d->group ? d->group->item(d->hovered) : nullptr;
}

void RibbonGallery::setPopupMenu(OfficePopupMenu* menu)
{
    d->popupMenu = menu;
}

OfficePopupMenu* RibbonGallery::popupMenu() const
{
    return d->popupMenu;
}

QRect RibbonGallery::itemRect(const RibbonGalleryItem* item) const
{
    return d->group && item ? d->cellRect(d->group->indexOf(item)) : QRect();
}

RibbonGalleryItem* RibbonGallery::itemAt(const QPoint& position) const
{
    return d->group ? d->group->item(d->indexAt(position)) : nullptr;
}

void RibbonGallery::ensureVisible(const RibbonGalleryItem* item)
{
    const int index = d->group && item ? d->group->indexOf(item) : -1;
    if (index < 0)
        return;
    const QRect rect = d->geometry().rects[static_cast<std::size_t>(index)];
    const int view = d->viewRect().height();
    int offset = d->offset;
    if (rect.bottom() + 1 > offset + view)
        offset = rect.bottom() + 1 - view;
    if (rect.top() < offset)
        offset = rect.top();
    d->setOffset(offset);
}

QSize RibbonGallery::sizeHint() const
{
    const int width = d->widthFor(d->maximumCount);
    if (d->isInRibbon())
        return QSize(width, RibbonMetrics::of(this).largeHeight);
    return QSize(width, heightForWidth(width));
}

QSize RibbonGallery::minimumSizeHint() const
{
    // One lonely cell on a ribbon group would say nothing about the choice.
    const int count =
        d->isInRibbon() ? qMax(d->minimumCount, qMin(3, d->maximumCount)) : d->minimumCount;
    const int width = d->widthFor(count);
    return QSize(width,
                 d->isInRibbon() ? RibbonMetrics::of(this).largeHeight : d->highestCell() + 4);
}

bool RibbonGallery::hasHeightForWidth() const
{
    return !d->isInRibbon();
}

int RibbonGallery::heightForWidth(int width) const
{
    if (d->isInRibbon())
        return RibbonMetrics::of(this).largeHeight;
    const int frame = 2 * 2;
    const GalleryGeometry geometry = layoutGallery(d->cells(), width - frame - d->barWidth(),
                                                   d->maximumCount, d->headingHeight(), d->labels);
    int height = geometry.height;
    if (d->maximumRows > 0 && geometry.rowCount > d->maximumRows)
        height =
            qMin(height, d->maximumRows * d->highestCell() + (d->labels ? d->headingHeight() : 0));
    return height + frame;
}

bool RibbonGallery::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        auto* help = static_cast<QHelpEvent*>(event);
        const RibbonGalleryItem* item = itemAt(help->pos());
        if (item && !(item->toolTip().isEmpty() && item->caption().isEmpty()))
            RibbonToolTip::showToolTip(help->globalPos() + QPoint(2, 20),
                                       item->toolTip().isEmpty() ? item->caption()
                                                                 : item->toolTip(),
                                       QString(), QIcon(), this);
        else
            RibbonToolTip::hideToolTip();
        return true;
    }
    case QEvent::ParentChange:
    case QEvent::ScreenChangeInternal:
        d->invalidate();
        break;
    case QEvent::FocusIn:
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::TabFocusReason && d->hovered < 0)
            d->setHovered(d->checked && d->group ? d->group->indexOf(d->checked) : d->firstCell(),
                          true);
        update();
        break;
    case QEvent::FocusOut:
        if (!underMouse())
            d->setHovered(-1, false);
        update();
        break;
    default:
        break;
    }
    return QFrame::event(event);
}

void RibbonGallery::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        d->invalidate();
        break;
    case QEvent::LanguageChange:
        d->retranslate();
        break;
    default:
        break;
    }
}

void RibbonGallery::keyPressEvent(QKeyEvent* event)
{
    int key = event->key();
    if (layoutDirection() == Qt::RightToLeft && (key == Qt::Key_Left || key == Qt::Key_Right))
        key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    int target = -1;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        target = d->hovered < 0 ? d->firstCell() : galleryNeighbour(d->geometry(), d->hovered, key);
        if (target < 0) {
            // Past the edge the menu or the group goes on.
            if (!d->isInRibbon() || !RibbonKeyboard::handleKey(this, event)) {
                if (key == Qt::Key_Up || key == Qt::Key_Down)
                    d->setHovered(-1, false);
                event->ignore();
            }
            return;
        }
        break;
    case Qt::Key_Home:
        target = d->firstCell();
        break;
    case Qt::Key_End:
        target = d->lastCell();
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const int step = key == Qt::Key_PageUp ? Qt::Key_Up : Qt::Key_Down;
        const int rows = qMax(1, d->viewRect().height() / qMax(1, d->highestCell()));
        target = d->hovered < 0 ? d->firstCell() : d->hovered;
        for (int i = 0; i < rows; ++i) {
            const int next = galleryNeighbour(d->geometry(), target, step);
            if (next < 0)
                break;
            target = next;
        }
        break;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (d->hovered >= 0)
            d->pick(d->hovered);
        return;
    case Qt::Key_F4:
        d->openPopup();
        return;
    default:
        event->ignore();
        return;
    }
    d->setHovered(target, true);
}

void RibbonGallery::leaveEvent(QEvent*)
{
    d->setHovered(-1, false);
}

void RibbonGallery::mouseMoveEvent(QMouseEvent* event)
{
    d->setHovered(d->indexAt(event->pos()), false);
}

void RibbonGallery::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    RibbonToolTip::hideToolTip();
    d->pressed = d->indexAt(event->pos());
    update();
}

void RibbonGallery::mouseReleaseEvent(QMouseEvent* event)
{
    const int index = d->indexAt(event->pos());
    const bool picked = event->button() == Qt::LeftButton && index >= 0 && index == d->pressed;
    d->pressed = -1;
    update();
    if (picked)
        d->pick(index);
}

void RibbonGallery::wheelEvent(QWheelEvent* event)
{
    if (d->maximumOffset() == 0) {
        event->ignore();
        return;
    }
    d->wheelDelta += event->angleDelta().y();
    const int notch = QWheelEvent::DefaultDeltasPerStep;
    const int steps = d->wheelDelta / notch;
    d->wheelDelta -= steps * notch;
    d->setOffset(d->offset - steps * d->highestCell());
    d->setHovered(d->indexAt(event->position().toPoint()), false);
    event->accept();
}

void RibbonGallery::hideEvent(QHideEvent*)
{
    d->setHovered(-1, false);
    d->pressed = -1;
}

void RibbonGallery::resizeEvent(QResizeEvent*)
{
    d->updateChildren();
}

void RibbonGallery::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption base;
    initPaintOption(base, this);
    RibbonPaintOption frame = base;
    frame.state.setFlag(RibbonState::Focus, false);
    if (d->isInRibbon()) {
        RibbonPainter::drawGallery(painter, frame);
    } else {
        painter.fillRect(rect(), RibbonTheme::current()[Element::Gallery].middle);
    }
    if (!d->group)
        return;
    const QRect view = d->viewRect();
    painter.setClipRect(view);
    const QList<RibbonGalleryItem*> items = d->group->items();
    for (int i = 0; i < items.size(); ++i) {
        const RibbonGalleryItem* item = items.at(i);
        const QRect rect = d->cellRect(i);
        if (!rect.intersects(view))
            continue;
        RibbonPaintOption option = base;
        option.rect = rect;
        option.state.setFlag(RibbonState::Disabled, !isEnabled() || !item->isEnabled());
        if (item->isSeparator()) {
            option.text = item->caption();
            option.state.setFlag(RibbonState::Hover, false);
            option.state.setFlag(RibbonState::Focus, false);
            RibbonPainter::drawGalleryHeading(painter, option);
            continue;
        }
        option.state.setFlag(RibbonState::Hover, i == d->hovered);
        option.state.setFlag(RibbonState::Focus, false);
        option.state.setFlag(RibbonState::Pressed, i == d->pressed && i == d->hovered);
        option.state.setFlag(RibbonState::Checked, d->checked == item);
        RibbonPainter::drawGalleryCell(painter, option);

        QStyleOption style;
        style.initFrom(this);
        style.rect = rect;
        style.state = QStyle::State_None;
        if (!option.has(RibbonState::Disabled))
            style.state |= QStyle::State_Enabled;
        if (option.has(RibbonState::Hover))
            style.state |= QStyle::State_MouseOver | QStyle::State_Selected;
        if (option.has(RibbonState::Checked))
            style.state |= QStyle::State_On;
        if (option.has(RibbonState::Pressed))
            style.state |= QStyle::State_Sunken;
        painter.save();
        painter.setFont(font());
        item->draw(&painter, style);
        painter.restore();
    }
}

} // namespace Qtitan

#include "moc_ribbon_gallery.cpp"
