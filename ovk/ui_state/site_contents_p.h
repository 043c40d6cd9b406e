#pragma once

#include <ovk/ui_state/ui_item_link.h>

#include <QtCore/QVector>

namespace ovk {

class UiStateCommandSpots;

/// What a live site was filled with. It tells whether the spots still stand for that when the site
/// comes back on screen: while it was away it was not validated.
class SiteContents
{
public:
    /// Remembers what the spots stand for; to be called after the site was filled.
    void Take(const UiStateCommandSpots& spots);
    /// Makes the next IsCurrent answer false.
    void Forget() { m_valid = false; }
    bool IsCurrent(const UiStateCommandSpots& spots) const;

private:
    QVector<UiItemLink> m_items;
    bool m_valid = false;
};

} // namespace ovk
