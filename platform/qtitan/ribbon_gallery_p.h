#pragma once

#include "ribbon_gallery.h"
#include "ribbon_gallery_layout_p.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>

#include <ovk/core/export.h>

QT_BEGIN_NAMESPACE
class QScrollBar;
QT_END_NAMESPACE

namespace Qtitan {

/// A scroll or drop-down button at the side of a gallery on a ribbon group.
class OVK_TEST_EXPORT RibbonGalleryButton : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonGalleryButton(Qt::ArrowType arrow, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::ArrowType m_arrow;
};

class RibbonGalleryPrivate
{
public:
    explicit RibbonGalleryPrivate(RibbonGallery* gallery) : q(gallery) {}

    /// On a ribbon group there is one strip of cells with buttons; elsewhere a list with a scroll
    /// bar.
    bool isInRibbon() const;
    std::vector<GalleryCell> cells() const;
    int widestCell() const;
    int highestCell() const;
    int headingHeight() const;
    int widthFor(int count) const;
    int barWidth() const;
    /// The room of the cells.
    QRect viewRect() const;
    const GalleryGeometry& geometry() const;
    void invalidate();
    void updateChildren();
    void retranslate();
    void setOffset(int offset);
    int maximumOffset() const;
    QRect cellRect(int index) const;
    int indexAt(const QPoint& position) const;
    void setHovered(int index, bool reveal);
    void pick(int index);
    void openPopup();
    int firstCell() const;
    int lastCell() const;

    RibbonGallery* const q;
    QPointer<RibbonGalleryGroup> group;
    QPointer<RibbonGalleryItem> checked;
    QPointer<OfficePopupMenu> popupMenu;
    QPointer<OfficePopupMenu> ownPopup;
    int minimumCount = 1;
    int maximumCount = 8;
    int maximumRows = 0;
    bool labels = true;
    Qt::ScrollBarPolicy policy = Qt::ScrollBarAsNeeded;
    int hovered = -1;
    int pressed = -1;
    int offset = 0;
    int wheelDelta = 0;
    mutable GalleryGeometry layout;
    mutable int layoutWidth = -1;
    QScrollBar* scrollBar = nullptr;
    RibbonGalleryButton* up = nullptr;
    RibbonGalleryButton* down = nullptr;
    RibbonGalleryButton* more = nullptr;
};

} // namespace Qtitan
