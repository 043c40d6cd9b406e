#pragma once

#include <ovk/core/export.h>

#include <QColor>

#include <qtitan/ribbon.h>

namespace ovk {

/// One colour of a gallery: a small filled cell.
class OVK_EXPORT GalleryItemColor : public Qtitan::RibbonGalleryItem
{
    Q_OBJECT

public:
    /// \a index is the place in the palette that the subclass reads.
    explicit GalleryItemColor(int index);
    ~GalleryItemColor() override;

    void draw(QPainter* painter, const QStyleOption& option) const override;
    /// 17 by 17 pixels.
    QSize sizeHint() const override;

    /// The colour as it is now.
    virtual QColor GetColor() const = 0;

protected:
    /// The place in the palette.
    int _GetIndex() const;

private:
    int m_index;
};

/// One of the 48 standard colours of the colour dialog.
class OVK_EXPORT GalleryItemStandardColor : public GalleryItemColor
{
    Q_OBJECT

public:
    explicit GalleryItemStandardColor(int index);
    ~GalleryItemStandardColor() override;

    QColor GetColor() const override;
};

/// One of the 16 custom colours of the colour dialog.
class OVK_EXPORT GalleryItemCustomColor : public GalleryItemColor
{
    Q_OBJECT

public:
    explicit GalleryItemCustomColor(int index);
    ~GalleryItemCustomColor() override;

    QColor GetColor() const override;
};

} // namespace ovk
