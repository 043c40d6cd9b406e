#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QVariant>
#include <QtGui/QIcon>
#include <QtWidgets/QFrame>

#include <ovk/core/export.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QPainter;
class QStyleOption;
QT_END_NAMESPACE

namespace Qtitan {

class OfficePopupMenu;
class RibbonGalleryGroup;
class RibbonGalleryGroupPrivate;
class RibbonGalleryPrivate;

/// One cell of a gallery, or a heading between cells.
class OVK_EXPORT RibbonGalleryItem : public QObject
{
    Q_OBJECT
public:
    explicit RibbonGalleryItem(QObject* parent = nullptr);
    ~RibbonGalleryItem() override;

    /// Draws the contents of the cell into option.rect. The frames of the current and the hovered
    /// cell are drawn before. The base draws icon and caption.
    virtual void draw(QPainter* painter, const QStyleOption& option) const;
    /// The size of the cell. The base returns what setSizeHint set, or the group's size when that
    /// was not called.
    virtual QSize sizeHint() const;
    void setSizeHint(const QSize& size);

    QString caption() const;
    void setCaption(const QString& caption);
    QIcon icon() const;
    void setIcon(const QIcon& icon);
    QString toolTip() const;
    void setToolTip(const QString& toolTip);
    QVariant data() const;
    void setData(const QVariant& data);
    bool isEnabled() const;
    void setEnabled(bool enabled);
    /// Whether the item is a heading, made by RibbonGalleryGroup::addSeparator.
    bool isSeparator() const;

    /// The group that the item is in, null when it is in none.
    RibbonGalleryGroup* group() const;

private:
    void changed();
    RibbonGalleryGroup* m_group = nullptr;
    QString m_caption;
    QIcon m_icon;
    QString m_toolTip;
    QVariant m_data;
    QSize m_size;
    bool m_enabled = true;
    bool m_separator = false;
    friend class RibbonGalleryGroup;
    friend class RibbonGalleryGroupPrivate;
};

/// The items of one or more galleries.
class OVK_EXPORT RibbonGalleryGroup : public QObject
{
    Q_OBJECT
public:
    explicit RibbonGalleryGroup(QObject* parent = nullptr);
    ~RibbonGalleryGroup() override;

    /// The size of cells whose item says nothing else.
    QSize size() const;
    void setSize(const QSize& size);

    /// Appends an item and takes ownership. Null is ignored.
    void addItem(RibbonGalleryItem* item);
    RibbonGalleryItem* addItem(const QString& caption, const QIcon& icon);
    /// Appends a heading, which starts a new row.
    RibbonGalleryItem* addSeparator(const QString& caption);
    /// Deletes an item; out of range changes nothing.
    void remove(int index);
    void clear();

    int itemCount() const;
    /// The item at an index, null when out of range.
    RibbonGalleryItem* item(int index) const;
    QList<RibbonGalleryItem*> items() const;
    int indexOf(const RibbonGalleryItem* item) const;

Q_SIGNALS:
    /// Items came, went, or look different.
    void changed();

private:
    friend class RibbonGalleryGroupPrivate;
    friend class RibbonGalleryItem;
    std::unique_ptr<RibbonGalleryGroupPrivate> d;
};

/// Shows the items of a gallery group in rows, inside a popup menu or on a ribbon group.
class OVK_EXPORT RibbonGallery : public QFrame
{
    Q_OBJECT
public:
    explicit RibbonGallery(QWidget* parent = nullptr);
    ~RibbonGallery() override;

    /// The items. The group stays the caller's and may serve several galleries.
    RibbonGalleryGroup* galleryGroup() const;
    void setGalleryGroup(RibbonGalleryGroup* group);

    /// The fewest and the most items of a row: the width that the gallery asks for holds the most,
    /// and it can be made as narrow as the fewest. Values below 1 count as 1.
    int minimumItemCount() const;
    void setMinimumItemCount(int count);
    int maximumItemCount() const;
    void setMaximumItemCount(int count);
    /// The most rows that the gallery asks height for in a popup; 0, the initial value, for all.
    int maximumRowCount() const;
    void setMaximumRowCount(int count);

    /// Whether headings are shown. Initially they are.
    bool isLabelsVisible() const;
    void setLabelsVisible(bool visible);

    /// When the scroll bar of a gallery in a popup shows.
    Qt::ScrollBarPolicy scrollBarPolicy() const;
    void setScrollBarPolicy(Qt::ScrollBarPolicy policy);

    /// The item that is framed as the current choice, null for none.
    RibbonGalleryItem* checkedItem() const;
    void setCheckedItem(RibbonGalleryItem* item);
    /// The item under the pointer or the keyboard, null for none.
    RibbonGalleryItem* selectedItem() const;

    /// The popup that the button of a gallery on a ribbon group opens, instead of one that shows all
    /// items. It stays the caller's.
    void setPopupMenu(OfficePopupMenu* menu);
    OfficePopupMenu* popupMenu() const;

    /// Where an item is drawn, in the coordinates of the gallery; null for items that are not shown.
    QRect itemRect(const RibbonGalleryItem* item) const;
    /// The item at a position, null for headings and gaps.
    RibbonGalleryItem* itemAt(const QPoint& position) const;
    /// Scrolls until an item is seen.
    void ensureVisible(const RibbonGalleryItem* item);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// An item was picked with the mouse or the keyboard.
    void itemClicked(Qtitan::RibbonGalleryItem* item);
    /// The pointer or the keyboard came to an item, or left the items (null): for a live preview.
    void itemHovered(Qtitan::RibbonGalleryItem* item);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class RibbonGalleryPrivate;
    std::unique_ptr<RibbonGalleryPrivate> d;
};

} // namespace Qtitan
