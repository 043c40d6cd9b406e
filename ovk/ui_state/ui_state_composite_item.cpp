#include "ovk/commands/ui_item.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_state_composite.h"

#include <QtCore/QSet>

namespace ovk {

UiStateCompositeItem::UiStateCompositeItem(const QString& id) : UiProfileItem(id) {}

UiStateCompositeItem::UiStateCompositeItem(IUiItem& item)
    : UiProfileItem(item.GetId()), m_item(&item)
{
}

UiStateCompositeItem::UiStateCompositeItem(const UiStateCompositeItem& other) : UiProfileItem(other)
{
}

UiStateCompositeItem::~UiStateCompositeItem() = default;

IUiItem* UiStateCompositeItem::GetUiItem() const
{
    if (IUiItem* item = m_item.Get())
        return item;
    m_item = UiItemLink(_LookUp());
    return m_item.Get();
}

void UiStateCompositeItem::SetUiItem(IUiItem* item)
{
    m_item = UiItemLink(item);
}

void UiStateCompositeItem::Validate(QSet<QString>& changed)
{
    IUiItem* const item = _LookUp();
    if (item == m_item.Get() && !m_item.IsDead())
        return;
    m_item = UiItemLink(item);
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
