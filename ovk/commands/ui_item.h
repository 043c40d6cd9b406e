#pragma once

#include <ovk/core/export.h>

class QIcon;
class QString;
class QWidget;

namespace ovk {

class UiSpotCommand;

/// What can be placed on a ribbon group, a tool bar, a menu or the quick access bar: a UiCommand
/// or a composite of several.
class OVK_EXPORT IUiItem
{
public:
    /// The stable identifier that profile files refer to.
    virtual QString GetId() = 0;

    /// Puts the item on a live site, in the style of \a spot, which may be null. Answers false,
    /// and leaves the site as it is, if the spot is hidden or the site is of no use to the item.
    virtual bool AddToSite(QWidget* site, UiSpotCommand* spot) = 0;

    /// Takes the item off a live site. Answers whether it may be thought gone.
    virtual bool RemoveFromSite(QWidget* site) = 0;

    /// Whether the item may be placed on \a site.
    virtual bool IsCompatible(QWidget* site) = 0;

    /// The title as the user reads it, without mnemonic marks.
    virtual QString GetTitle() = 0;

    /// Changes the title; items whose title is not theirs to change ignore it.
    virtual void SetTitle(const QString& title) = 0;

    /// The icon; empty if there is none.
    virtual QIcon GetIcon() = 0;

    /// Changes the icon.
    virtual void SetIcon(const QIcon& icon) = 0;

    virtual ~IUiItem();

protected:
    IUiItem() = default;
    IUiItem(const IUiItem&) = default;
    IUiItem& operator=(const IUiItem&) = default;
};

} // namespace ovk
