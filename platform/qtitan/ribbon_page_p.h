#pragma once

#include "ribbon_page.h"
#include "ribbon_reduction_p.h"

#include <optional>

namespace Qtitan {

class RibbonPageHolder;

class OVK_TEST_EXPORT RibbonPagePrivate
{
public:
    explicit RibbonPagePrivate(RibbonPage* page) : q(page) {}

    static RibbonPagePrivate* get(RibbonPage* page) { return page->d.get(); }
    static const RibbonPagePrivate* get(const RibbonPage* page) { return page->d.get(); }

    /// A group wants another width, came, went, or was shown or hidden.
    void groupChanged();
    /// A group is being deleted.
    void groupGone(RibbonGroup* group);
    void detach(RibbonGroup* group);
    /// Forgets all widths of the page, its groups and their buttons: the screen changed.
    void invalidateAll();
    /// Closes what the groups have opened.
    void hidePopups();

    /// Chooses how each group is shown in the given width. Returns the width that this takes.
    int reduceTo(int width);
    /// Gives the groups their places.
    void place();
    QList<RibbonGroup*> shownGroups() const;
    /// Shows or hides the title strips of all groups.
    void setTitlesVisible(bool visible);

    /// How often all pages were reduced and how often the order of reduction was made, for tests.
    static int layouts();
    static int reductions();

    RibbonPage* const q;
    RibbonBar* bar = nullptr;
    RibbonPageHolder* holder = nullptr;
    QString title;
    QString contextTitle;
    QColor contextColor;
    QString keyTip;
    QList<RibbonGroup*> groups;
    std::optional<RibbonReduction> reduction;
    std::vector<int> steps;
    int fullWidth = -1;
    bool titlesVisible = true;
    bool dirty = true;
};

} // namespace Qtitan
