#pragma once

#include <ovk/core/pimpl_basics.h>
#include <ovk/commands/composite_command.h>
#include <ovk/ui_state/ui_state_composite.h>

#include <QtCore/QList>
#include <QtCore/QVector>
#include <QtGui/QIcon>

#include <functional>

namespace ovk {

/// What gives the icon of an icon name; empty until the host sets it.
std::function<QIcon(const QString&)>& CompositeIconSource();

/// The items of a composite and its live command.
class UiStateComposite::Impl : public PimplBasics<UiStateComposite>
{
public:
    explicit Impl(UiStateComposite& owner);
    /// Clones the items; there is no live command.
    Impl(UiStateComposite& owner, const Impl& other);
    ~Impl() override;

    /// The place among all items of the available item at that index; -1 if there is none.
    int RawIndex(int availableIndex) const;
    /// Fills the live command, if any, with the items that resolve.
    void Refill();
    /// Whether the live command holds what the items stand for now.
    bool IsFilledAsItShould() const;
    /// Fills the live command, if any, when its items are no longer what it was filled with, and
    /// lets the sites know: while a layout is off screen it is not validated.
    void Refresh();
    /// Gives the live command, if any, the title of the node. Whether that changed anything.
    bool ApplyTitle();
    /// Gives the live command, if any, the icon of the node's icon name. Whether it has one now.
    bool ApplyIcon();
    /// Puts a new live command in place of the one that there is, on all sites. When there is none,
    /// the sites try whether the composite can be shown now.
    void Recreate();
    /// Deletes all spots that show the live command.
    void RemoveFromSites();
    /// Builds the sites anew that show the live command, or could.
    void RebuildSites();

    QString m_title;
    QString m_icon;
    QList<UiStateCompositeItem*> m_items;
    std::unique_ptr<ICompositeCommand> mp_command;
    /// What the live command was filled with.
    QVector<UiItemLink> m_filled;
    /// The title that the live command was given.
    QString m_live_title;
    /// The items are just being looked up.
    bool m_resolving = false;

private:
    /// Menus and other composites show nothing live, but they remember the old command.
    void ReplaceOffSite(UiLayout& layout, const IUiItem& old, IUiItem* replacement);
};

} // namespace ovk
