#include "ovk/commands/ui_item.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_state_composite.h"

#include <QtCore/QSet>

namespace ovk {

UiStateCompositeItem::UiStateCompositeItem(const QString& id) : UiProfileItem(id) {}

UiStateCompositeItem::UiStateCompositeItem(IUiItem& item)
    : UiProfileItem(item.GetId()), mp_item(&item)
{
}

UiStateCompositeItem::UiStateCompositeItem(const UiStateCompositeItem& other) : UiProfileItem(other)
{
}

UiStateCompositeItem::~UiStateCompositeItem() = default;

IUiItem* UiStateCompositeItem::GetUiItem() const
{
    if (!mp_item)
        mp_item = _LookUp();
    return mp_item;
}

void UiStateCompositeItem::SetUiItem(IUiItem* item)
{
    mp_item = item;
}

void UiStateCompositeItem::Validate(QSet<QString>& changed)
{
    IUiItem* const item = _LookUp();
    if (item == mp_item)
        return;
    mp_item = item;
    changed.insert(GetName());
}

bool UiStateCompositeItem::IsStorable() const
{
    return false;
}

UiProfileItem* UiStateCompositeItem::Clone() const
{
    return new UiStateCompositeItem(*this);
}

bool UiStateCompositeItem::FromJson(const QJsonObject& json)
{
    return UiProfileItem::FromJson(json);
}

IUiItem* UiStateCompositeItem::_LookUp() const
{
    UiLayout* layout = const_cast<UiStateCompositeItem*>(this)->GetLayout();
    return layout ? layout->FindUiItem(GetName()) : nullptr;
}

} // namespace ovk
