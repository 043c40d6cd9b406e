#include "office_popup_menu.h"
#include "ribbon_gallery.h"
#include "ribbon_gallery_p.h"
#include "ribbon_group_panel_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_util_p.h"

#include <QScrollBar>
#include <QStyle>

namespace Qtitan {
namespace {

/// Between the border of the gallery and its cells.
constexpr int Frame = 2;

} // namespace

bool RibbonGalleryPrivate::isInRibbon() const
{
    return qobject_cast<const RibbonGroupPanel*>(q->parentWidget()) != nullptr;
}

std::vector<GalleryCell> RibbonGalleryPrivate::cells() const
{
    std::vector<GalleryCell> result;
    if (group)
        for (const RibbonGalleryItem* item : group->items())
            result.push_back({item->sizeHint(), item->isSeparator()});
    return result;
}

int RibbonGalleryPrivate::widestCell() const
{
    int width = 0;
    for (const GalleryCell& cell : cells())
        if (!cell.heading)
            width = qMax(width, cell.size.width());
    return width > 0 ? width : (group ? group->size().width() : 0);
}

int RibbonGalleryPrivate::highestCell() const
{
    int height = 0;
    for (const GalleryCell& cell : cells())
        if (!cell.heading)
            height = qMax(height, cell.size.height());
    return height > 0 ? height : (group ? group->size().height() : 0);
}

int RibbonGalleryPrivate::headingHeight() const
{
    return q->fontMetrics().height() + RibbonMetrics::of(q).px(6);
}

int RibbonGalleryPrivate::barWidth() const
{
    if (isInRibbon())
        return RibbonMetrics::of(q).px(15);
    const bool shown =
        policy == Qt::ScrollBarAlwaysOn || (policy == Qt::ScrollBarAsNeeded && maximumRows > 0);
    return shown ? q->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, q) : 0;
}

int RibbonGalleryPrivate::widthFor(int count) const
{
    // With fewer items than columns the rest of the columns would be empty ground, but only where
    // the room is scarce.
    if (isInRibbon() && group)
        count = qMin(count, qMax(1, group->itemCount()));
    return count * widestCell() + 2 * Frame + barWidth();
}

QRect RibbonGalleryPrivate::viewRect() const
{
    QRect inner = q->rect().adjusted(Frame, Frame, -Frame - barWidth(), -Frame);
    if (isInRibbon()) {
        // Whole rows only, in the middle of the height.
        const int row = qMax(1, highestCell());
        const int rows = qMax(1, inner.height() / row);
        const int rest = qMax(0, inner.height() - rows * row);
        inner.adjust(0, rest / 2, 0, -(rest - rest / 2));
    }
    return directed(inner, q->width(), q->layoutDirection());
}

const GalleryGeometry& RibbonGalleryPrivate::geometry() const
{
    const int width = viewRect().width();
    if (layoutWidth != width) {
        layoutWidth = width;
        layout =
            layoutGallery(cells(), width, maximumCount, headingHeight(), labels && !isInRibbon());
    }
    return layout;
}

void RibbonGalleryPrivate::invalidate()
{
    layoutWidth = -1;
    hovered = pressed = -1;
    updateChildren();
    q->updateGeometry();
    q->update();
}

int RibbonGalleryPrivate::maximumOffset() const
{
    return qMax(0, geometry().height - viewRect().height());
}

void RibbonGalleryPrivate::retranslate()
{
    if (!up)
        return;
    up->setAccessibleName(RibbonGallery::tr("Row up"));
    down->setAccessibleName(RibbonGallery::tr("Row down"));
    more->setAccessibleName(RibbonGallery::tr("More"));
}

void RibbonGalleryPrivate::updateChildren()
{
    offset = qBound(0, offset, maximumOffset());
    const Qt::LayoutDirection direction = q->layoutDirection();
    const int width = barWidth();
    const QRect bar(q->width() - width - (isInRibbon() ? 0 : Frame), 0, width, q->height());

    const bool in_ribbon = isInRibbon();
    if (in_ribbon && !up) {
        up = new RibbonGalleryButton(Qt::UpArrow, q);
        down = new RibbonGalleryButton(Qt::DownArrow, q);
        more = new RibbonGalleryButton(Qt::NoArrow, q);
        retranslate();
        QObject::connect(up, &QAbstractButton::clicked, q,
                         [this] { setOffset(offset - highestCell()); });
        QObject::connect(down, &QAbstractButton::clicked, q,
                         [this] { setOffset(offset + highestCell()); });
        QObject::connect(more, &QAbstractButton::clicked, q, [this] { openPopup(); });
    }
    if (up) {
        RibbonGalleryButton* const buttons[] = {up, down, more};
        int y = 0;
        for (int i = 0; i < 3; ++i) {
            const int bottom = (i + 1) * q->height() / 3;
            buttons[i]->setGeometry(
                directed(QRect(bar.left(), y, width, bottom - y), q->width(), direction));
            buttons[i]->setVisible(in_ribbon);
            y = bottom;
        }
        up->setEnabled(offset > 0);
        down->setEnabled(offset < maximumOffset());
    }

    const bool scrolls =
        !in_ribbon && width > 0 && (policy == Qt::ScrollBarAlwaysOn || maximumOffset() > 0);
    if (scrolls && !scrollBar) {
        scrollBar = new QScrollBar(Qt::Vertical, q);
        QObject::connect(scrollBar, &QScrollBar::valueChanged, q,
                         [this](int value) { setOffset(value); });
    }
    if (scrollBar) {
        scrollBar->setVisible(scrolls);
        scrollBar->setGeometry(directed(bar.adjusted(0, Frame, 0, -Frame), q->width(), direction));
        scrollBar->setPageStep(viewRect().height());
        scrollBar->setSingleStep(qMax(1, highestCell()));
        scrollBar->setRange(0, maximumOffset());
        scrollBar->setValue(offset);
    }
}

void RibbonGalleryPrivate::setOffset(int value)
{
    value = qBound(0, value, maximumOffset());
    // On a ribbon group rows snap, or half cells would be shown.
    if (isInRibbon() && value < maximumOffset()) {
        const int row = qMax(1, highestCell());
        value = (value + row / 2) / row * row;
        value = qMin(value, maximumOffset());
    }
    if (value == offset)
        return;
    offset = value;
    updateChildren();
    q->update();
}

QRect RibbonGalleryPrivate::cellRect(int index) const
{
    const GalleryGeometry& cells = geometry();
    if (index < 0 || index >= static_cast<int>(cells.rects.size()))
        return QRect();
    const QRect rect = cells.rects[static_cast<std::size_t>(index)];
    if (rect.isEmpty())
        return QRect();
    const QRect view = viewRect();
    int top = view.top() - offset;
    // A single row stands in the middle of a strip that is higher.
    if (isInRibbon() && cells.height < view.height())
        top += (view.height() - cells.height) / 2;
    return directed(rect, view.width(), q->layoutDirection()).translated(view.left(), top);
}

int RibbonGalleryPrivate::indexAt(const QPoint& position) const
{
    if (!group || !viewRect().contains(position))
        return -1;
    for (int i = 0; i < group->itemCount(); ++i)
        if (!group->item(i)->isSeparator() && cellRect(i).contains(position))
            return i;
    return -1;
}

void RibbonGalleryPrivate::setHovered(int index, bool reveal)
{
    if (reveal && group && index >= 0)
        q->ensureVisible(group->item(index));
    if (index == hovered)
        return;
    hovered = index;
    q->update();
    Q_EMIT q->itemHovered(group ? group->item(index) : nullptr);
}

void RibbonGalleryPrivate::pick(int index)
{
    RibbonGalleryItem* item = group ? group->item(index) : nullptr;
    if (!item || !item->isEnabled() || item->isSeparator() || !q->isEnabled())
        return;
    q->setCheckedItem(item);
    Q_EMIT q->itemClicked(item);
}

void RibbonGalleryPrivate::openPopup()
{
    if (!isInRibbon() || !group)
        return;
    OfficePopupMenu* menu = popupMenu;
    if (!menu) {
        // All items of the same group in a menu of their own; what is picked there is picked here.
        if (!ownPopup) {
            ownPopup = OfficePopupMenu::createPopupMenu(q);
            auto* gallery = new RibbonGallery(ownPopup);
            gallery->setObjectName(QStringLiteral("popupGallery"));
            ownPopup->addWidget(gallery);
            QObject::connect(gallery, &RibbonGallery::itemClicked, q,
                             [this](RibbonGalleryItem* item) {
                                 q->setCheckedItem(item);
                                 Q_EMIT q->itemClicked(item);
                             });
            QObject::connect(gallery, &RibbonGallery::itemHovered, q, &RibbonGallery::itemHovered);
        }
        menu = ownPopup;
        auto* gallery = menu->findChild<RibbonGallery*>(QStringLiteral("popupGallery"));
        gallery->setGalleryGroup(group);
        gallery->setMinimumItemCount(minimumCount);
        gallery->setMaximumItemCount(maximumCount);
        gallery->setLabelsVisible(labels);
        gallery->setScrollBarPolicy(policy);
        gallery->setMaximumRowCount(maximumRows);
        gallery->setCheckedItem(checked);
    }
    menu->popup(q->mapToGlobal(QPoint(0, 0)));
}

int RibbonGalleryPrivate::firstCell() const
{
    for (int i = 0; group && i < group->itemCount(); ++i)
        if (!group->item(i)->isSeparator())
            return i;
    return -1;
}

int RibbonGalleryPrivate::lastCell() const
{
    for (int i = group ? group->itemCount() - 1 : -1; i >= 0; --i)
        if (!group->item(i)->isSeparator())
            return i;
    return -1;
}

} // namespace Qtitan

#include "moc_ribbon_gallery_p.cpp"
