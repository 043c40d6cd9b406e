#include "ovk/core/tree_item.h"

namespace ovk {

ITreeItem::~ITreeItem() = default;

bool ITreeItem::IsValidIndex(int index) const
{
    return index >= 0 && index < GetChildCount();
}

int ITreeItem::GetIndexOf() const
{
    const ITreeItem* const parent = GetParent();
    return parent ? parent->GetIndexOf(const_cast<ITreeItem*>(this)) : -1;
}

ITreeItem* ITreeItem::GetChild(int index)
{
    return const_cast<ITreeItem*>(static_cast<const ITreeItem*>(this)->GetChild(index));
}

void ITreeItem::AppendChild(ITreeItem* child)
{
    InsertChild(GetChildCount(), child);
}

void ITreeItem::InsertChild(int index, ITreeItem* child)
{
    if (!child)
        return;
    _InsertChild(index < 0 ? GetChildCount() : index, child);
    child->SetParent(this);
}

ITreeItem* ITreeItem::RemoveChild(int index)
{
    ITreeItem* const child = _RemoveChild(index);
    if (child)
        child->SetParent(nullptr);
    return child;
}

TreeItemBase::TreeItemBase(ITreeItem* parent) : mp_parent(parent)
{
}

TreeItemBase::~TreeItemBase() = default;

ITreeItem* TreeItemBase::GetParent() const
{
    return mp_parent;
}

void TreeItemBase::SetParent(ITreeItem* parent)
{
    mp_parent = parent;
}

} // namespace ovk
