#include "draw_helpers.h"
#include "ribbon_gallery.h"
#include "ribbon_painter_p.h"
#include "ribbon_theme_p.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOption>

namespace Qtitan {

class RibbonGalleryGroupPrivate
{
public:
    QList<RibbonGalleryItem*> items;
    QSize size{48, 48};

    static RibbonGalleryItem* makeSeparator(const QString& caption)
    {
        auto* item = new RibbonGalleryItem;
        item->m_caption = caption;
        item->m_separator = true;
        return item;
    }
};

RibbonGalleryItem::RibbonGalleryItem(QObject* parent) : QObject(parent) {}

RibbonGalleryItem::~RibbonGalleryItem()
{
    if (!m_group)
        return;
    m_group->d->items.removeOne(this);
    Q_EMIT m_group->changed();
}

void RibbonGalleryItem::draw(QPainter* painter, const QStyleOption& option) const
{
    const QRect rect = option.rect.adjusted(2, 2, -2, -2);
    const bool enabled = option.state & QStyle::State_Enabled;
    const QFontMetrics metrics(painter->font());
    QRect icon = rect;
    if (!m_caption.isEmpty()) {
        icon.setBottom(rect.bottom() - metrics.height());
        const ThemeLook& look =
            RibbonTheme::current()[option.state & QStyle::State_Selected ? Element::GalleryHover
                                   : option.state & QStyle::State_On     ? Element::GallerySelected
                                                                         : Element::Gallery];
        painter->setPen(enabled ? look.text : look.disabled);
        const QRect text =
            m_icon.isNull() ? rect
                            : QRect(rect.left(), icon.bottom() + 1, rect.width(), metrics.height());
        painter->drawText(text, Qt::AlignCenter | Qt::TextSingleLine,
                          metrics.elidedText(m_caption, Qt::ElideRight, text.width()));
    }
    if (!m_icon.isNull())
        DrawHelpers::drawIcon(*painter, icon, m_icon, icon.size(),
                              enabled ? QIcon::Normal : QIcon::Disabled);
}

QSize RibbonGalleryItem::sizeHint() const
{
    if (m_size.isValid() && !m_size.isEmpty())
        return m_size;
    return m_group ? m_group->size() : QSize();
}

void RibbonGalleryItem::setSizeHint(const QSize& size)
{
    m_size = size;
    changed();
}

QString RibbonGalleryItem::caption() const
{
    return m_caption;
}

void RibbonGalleryItem::setCaption(const QString& caption)
{
    m_caption = caption;
    changed();
}

QIcon RibbonGalleryItem::icon() const
{
    return m_icon;
}

void RibbonGalleryItem::setIcon(const QIcon& icon)
{
    m_icon = icon;
    changed();
}

QString RibbonGalleryItem::toolTip() const
{
    return m_toolTip;
}

void RibbonGalleryItem::setToolTip(const QString& toolTip)
{
    m_toolTip = toolTip;
}

QVariant RibbonGalleryItem::data() const
{
    return m_data;
}

void RibbonGalleryItem::setData(const QVariant& data)
{
    m_data = data;
}

bool RibbonGalleryItem::isEnabled() const
{
    return m_enabled;
}

void RibbonGalleryItem::setEnabled(bool enabled)
{
    m_enabled = enabled;
    changed();
}

bool RibbonGalleryItem::isSeparator() const
{
    return m_separator;
}

RibbonGalleryGroup* RibbonGalleryItem::group() const
{
    return m_group;
}

void RibbonGalleryItem::changed()
{
    if (m_group)
        Q_EMIT m_group->changed();
}

RibbonGalleryGroup::RibbonGalleryGroup(QObject* parent)
    : QObject(parent), d(std::make_unique<RibbonGalleryGroupPrivate>())
{
}

RibbonGalleryGroup::~RibbonGalleryGroup()
{
    const QList<RibbonGalleryItem*> items = d->items;
    d->items.clear();
    for (RibbonGalleryItem* item : items) {
        item->m_group = nullptr;
        delete item;
    }
}

QSize RibbonGalleryGroup::size() const
{
    return d->size;
}

void RibbonGalleryGroup::setSize(const QSize& size)
{
    if (d->size == size)
        return;
    d->size = size;
    Q_EMIT changed();
}

void RibbonGalleryGroup::addItem(RibbonGalleryItem* item)
{
    if (!item || item->m_group == this)
        return;
    if (item->m_group)
        item->m_group->d->items.removeOne(item);
    item->m_group = this;
    item->setParent(this);
    d->items.append(item);
    Q_EMIT changed();
}

RibbonGalleryItem* RibbonGalleryGroup::addItem(const QString& caption, const QIcon& icon)
{
    auto* item = new RibbonGalleryItem(this);
    item->m_caption = caption;
    item->m_icon = icon;
    addItem(item);
    return item;
}

RibbonGalleryItem* RibbonGalleryGroup::addSeparator(const QString& caption)
{
    RibbonGalleryItem* item = RibbonGalleryGroupPrivate::makeSeparator(caption);
    addItem(item);
    return item;
}

void RibbonGalleryGroup::remove(int index)
{
    delete item(index);
}

void RibbonGalleryGroup::clear()
{
    const QList<RibbonGalleryItem*> items = d->items;
    d->items.clear();
    for (RibbonGalleryItem* item : items) {
        item->m_group = nullptr;
        delete item;
    }
    Q_EMIT changed();
}

int RibbonGalleryGroup::itemCount() const
{
    return d->items.size();
}

RibbonGalleryItem* RibbonGalleryGroup::item(int index) const
{
    return d->items.value(index, nullptr);
}

QList<RibbonGalleryItem*> RibbonGalleryGroup::items() const
{
    return d->items;
}

int RibbonGalleryGroup::indexOf(const RibbonGalleryItem* item) const
{
    return d->items.indexOf(const_cast<RibbonGalleryItem*>(item));
}

} // namespace Qtitan
