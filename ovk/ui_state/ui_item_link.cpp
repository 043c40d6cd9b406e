#include "ovk/ui_state/ui_item_link.h"

#include "ovk/commands/composite_command.h"

namespace ovk {

namespace {

/// What dies with the item; null for an item of the host's own kind.
QObject* LifetimeOf(IUiItem* item)
{
    if (auto* object = dynamic_cast<QObject*>(item))
        return object;
    const auto* composite = dynamic_cast<ICompositeCommand*>(item);
    return composite ? composite->GetLifetime() : nullptr;
}

} // namespace

UiItemLink::UiItemLink(IUiItem* item)
    : mp_item(item), mp_guard(LifetimeOf(item)), m_guarded(mp_guard)
{
}

} // namespace ovk
