#include "ovk/widgets/gallery_item_color.h"

#include <QColorDialog>
#include <QPainter>
#include <QStyleOption>

namespace ovk {

namespace {

constexpr int g_cell_size = 17;
/// Leaves the frame of the hovered cell to be seen.
constexpr int g_cell_margin = 2;

} // namespace

GalleryItemColor::GalleryItemColor(int index) : m_index(index) {}

GalleryItemColor::~GalleryItemColor() = default;

void GalleryItemColor::draw(QPainter* painter, const QStyleOption& option) const
{
    const QRect cell =
        option.rect.adjusted(g_cell_margin, g_cell_margin, -g_cell_margin, -g_cell_margin);
    // The edge tells a colour from a popup of the same colour.
    painter->fillRect(cell, option.palette.color(QPalette::Mid));
    painter->fillRect(cell.adjusted(1, 1, -1, -1), GetColor());
}

QSize GalleryItemColor::sizeHint() const
{
    return QSize(g_cell_size, g_cell_size);
}

int GalleryItemColor::_GetIndex() const
{
    return m_index;
}

GalleryItemStandardColor::GalleryItemStandardColor(int index) : GalleryItemColor(index) {}

GalleryItemStandardColor::~GalleryItemStandardColor() = default;

QColor GalleryItemStandardColor::GetColor() const
{
    return QColorDialog::standardColor(_GetIndex());
}

GalleryItemCustomColor::GalleryItemCustomColor(int index) : GalleryItemColor(index) {}

GalleryItemCustomColor::~GalleryItemCustomColor() = default;

QColor GalleryItemCustomColor::GetColor() const
{
    return QColorDialog::customColor(_GetIndex());
}

} // namespace ovk

#include "moc_gallery_item_color.cpp"
