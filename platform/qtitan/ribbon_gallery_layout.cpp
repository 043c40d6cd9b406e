#include "ribbon_gallery_layout_p.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <cstdlib>

namespace Qtitan {

GalleryGeometry layoutGallery(const std::vector<GalleryCell>& cells, int width, int maximum,
                              int headingHeight, bool headings)
{
    GalleryGeometry geometry;
    geometry.rects.reserve(cells.size());
    geometry.rows.reserve(cells.size());
    int x = 0;
    int y = 0;
    int row_height = 0;
    int in_row = 0;
    const auto end_row = [&] {
        if (in_row == 0)
            return;
        y += row_height;
        x = row_height = in_row = 0;
        ++geometry.rowCount;
    };
    for (const GalleryCell& cell : cells) {
        if (cell.heading) {
            end_row();
            geometry.rects.push_back(headings ? QRect(0, y, width, headingHeight) : QRect());
            geometry.rows.push_back(-1);
            if (headings)
                y += headingHeight;
            continue;
        }
        if (in_row >= std::max(1, maximum) || (in_row > 0 && x + cell.size.width() > width))
            end_row();
        geometry.rects.emplace_back(QPoint(x, y), cell.size);
        geometry.rows.push_back(geometry.rowCount);
        x += cell.size.width();
        row_height = std::max(row_height, cell.size.height());
        ++in_row;
    }
    end_row();
    geometry.height = y;
    return geometry;
}

int galleryNeighbour(const GalleryGeometry& geometry, int index, int key)
{
    const int count = static_cast<int>(geometry.rects.size());
    if (index < 0 || index >= count)
        return -1;
    const auto row_of = [&](int i) { return geometry.rows[static_cast<std::size_t>(i)]; };
    if (key == Qt::Key_Left || key == Qt::Key_Right) {
        const int step = key == Qt::Key_Right ? 1 : -1;
        for (int i = index + step; i >= 0 && i < count; i += step)
            if (row_of(i) >= 0)
                return i;
        return -1;
    }
    const int wanted = row_of(index) + (key == Qt::Key_Down ? 1 : -1);
    const int center = geometry.rects[static_cast<std::size_t>(index)].center().x();
    int best = -1;
    int best_distance = 0;
    for (int i = 0; i < count; ++i) {
        if (row_of(i) != wanted || wanted < 0)
            continue;
        const int distance =
            std::abs(geometry.rects[static_cast<std::size_t>(i)].center().x() - center);
        if (best < 0 || distance < best_distance) {
            best = i;
            best_distance = distance;
        }
    }
    return best;
}

} // namespace Qtitan
