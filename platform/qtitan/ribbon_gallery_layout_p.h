#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>

#include <ovk/core/export.h>

#include <vector>

namespace Qtitan {

/// One item of a gallery as far as its place is concerned.
struct GalleryCell
{
    QSize size;
    bool heading = false;
};

/// Where the cells are, left to right, from (0, 0) on. A heading that is not shown is empty.
struct GalleryGeometry
{
    std::vector<QRect> rects;
    std::vector<int> rows; ///< the row of each cell, -1 for headings
    int height = 0;
    int rowCount = 0;
};

/// Lays cells in rows: a row ends when it holds `maximum` cells or is full, and at a heading.
OVK_TEST_EXPORT GalleryGeometry layoutGallery(const std::vector<GalleryCell>& cells, int width,
                                              int maximum, int headingHeight, bool headings);

/// The cell next to another in the direction of an arrow key, -1 when there is none: sideways through
/// the rows in reading order, up and down to the nearest cell of the next row.
OVK_TEST_EXPORT int galleryNeighbour(const GalleryGeometry& geometry, int index, int key);

} // namespace Qtitan
