#include "ovk/ui_state/ui_item_link.h"

#include "ovk/commands/ui_item.h"

namespace ovk {

UiItemLink::UiItemLink(IUiItem* item)
    : mp_item(item), mp_guard(dynamic_cast<QObject*>(item)), m_guarded(mp_guard)
{
}

} // namespace ovk
