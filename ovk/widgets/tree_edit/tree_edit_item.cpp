#include "ovk/widgets/tree_edit/tree_edit_item.h"

#include "ovk/widgets/tree_edit/item_data_provider.h"
#include "ovk/widgets/tree_edit/settings_items_model.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <memory>

namespace ovk {

IItemDataProvider::~IItemDataProvider() = default;

TreeEditItemBase::TreeEditItemBase(SettingsItemsModel& model)
    : TreeEditItemBase(QString(), QString(), TreeItemDelegateWrapper(), model)
{
}

TreeEditItemBase::TreeEditItemBase(const QString& title, const QString& hint,
                                   TreeItemDelegateWrapper delegate, SettingsItemsModel& model)
    : TreeItem<TreeEditItemBase>(nullptr), m_title(title), m_hint(hint),
      m_delegate(std::move(delegate)), mp_model(&model)
{
}

TreeEditItemBase::~TreeEditItemBase()
{
    TreeEditItemBase* const parent = _GetParent();
    // A view must let go of the row. Rows below one that goes need no word of their own.
    const bool announced = parent && !parent->m_dying && m_visible && parent->_IsShownByModel();
    if (announced) {
        const int row = ITreeItem::GetIndexOf();
        mp_model->beginRemoveRows(mp_model->_IndexOf(*parent), row, row);
    }
    m_dying = true;
    // The base does both by positions, among which hidden items would be missed.
    while (TreeItem<TreeEditItemBase>::GetChildCount() > 0)
        delete GetChildUnsafe(0);
    if (parent) {
        parent->_TakeFromList(parent->TreeItem<TreeEditItemBase>::GetIndexOf(this));
        SetParent(nullptr);
    }
    if (announced)
        mp_model->endRemoveRows();
}

const std::vector<TreeEditItemBase*>& TreeEditItemBase::_Shown() const
{
    if (m_shown_known)
        return m_shown;
    m_shown.clear();
    for (int i = 0; i < TreeItem<TreeEditItemBase>::GetChildCount(); ++i) {
        const TreeEditItemBase* const child = GetChildUnsafe(i);
        if (!child->m_visible)
            continue;
        child->m_shown_position = static_cast<int>(m_shown.size());
        m_shown.push_back(const_cast<TreeEditItemBase*>(child));
    }
    m_shown_known = true;
    return m_shown;
}

int TreeEditItemBase::GetChildCount() const
{
    return m_counts_hidden ? TreeItem<TreeEditItemBase>::GetChildCount()
                           : static_cast<int>(_Shown().size());
}

const ITreeItem* TreeEditItemBase::GetChild(int index) const
{
    const std::vector<TreeEditItemBase*>& shown = _Shown();
    return index >= 0 && index < static_cast<int>(shown.size())
               ? shown[static_cast<std::size_t>(index)]
               : nullptr;
}

int TreeEditItemBase::GetIndexOf(ITreeItem* child) const
{
    const std::vector<TreeEditItemBase*>& shown = _Shown();
    const int last = static_cast<int>(shown.size()) - 1;
    if (!child || child->GetParent() != this)
        return last;
    const int known = static_cast<const TreeEditItemBase*>(child)->m_shown_position;
    return known >= 0 && known <= last && shown[static_cast<std::size_t>(known)] == child ? known
                                                                                          : last;
}

/// The position in the list of all children; behind the last one if there is no such visible child.
int TreeEditItemBase::_ListPosition(int visibleIndex) const
{
    const int all = TreeItem<TreeEditItemBase>::GetChildCount();
    if (visibleIndex >= static_cast<int>(_Shown().size()))
        return all;
    for (int i = 0; i < all; ++i) {
        if (GetChildUnsafe(i)->m_visible && visibleIndex-- == 0)
            return i;
    }
    return all;
}

TreeEditItemBase* TreeEditItemBase::_TakeFromList(int position)
{
    m_shown_known = false;
    const QScopedValueRollback<bool> counting(m_counts_hidden, true);
    return static_cast<TreeEditItemBase*>(TreeItem<TreeEditItemBase>::_RemoveChild(position));
}

void TreeEditItemBase::_InsertChild(int index, ITreeItem* child)
{
    auto* const item = static_cast<TreeEditItemBase*>(child);
    const int row = std::min(index, static_cast<int>(_Shown().size()));
    const bool announced = item->m_visible && _IsShownByModel();
    if (announced)
        mp_model->beginInsertRows(mp_model->_IndexOf(*this), row, row);
    const int position = _ListPosition(index);
    // The usual way to build a form is row by row, which must not take longer with each row.
    if (item->m_visible && position == TreeItem<TreeEditItemBase>::GetChildCount()) {
        item->m_shown_position = static_cast<int>(m_shown.size());
        m_shown.push_back(item);
    } else {
        m_shown_known = false;
    }
    TreeItem<TreeEditItemBase>::_InsertChild(position, child);
    // The caller does the same, too late for those who hear of the row.
    child->SetParent(this);
    if (announced)
        mp_model->endInsertRows();
}

ITreeItem* TreeEditItemBase::_RemoveChild(int index)
{
    if (!IsValidIndex(index))
        return nullptr;
    const bool announced = _IsShownByModel();
    if (announced)
        mp_model->beginRemoveRows(mp_model->_IndexOf(*this), index, index);
    ITreeItem* const child = _TakeFromList(_ListPosition(index));
    if (announced)
        mp_model->endRemoveRows();
    return child;
}

QVariant TreeEditItemBase::GetData() const
{
    return QVariant();
}

bool TreeEditItemBase::SetData(const QVariant&)
{
    return false;
}

bool TreeEditItemBase::IsSection() const
{
    return false;
}

bool TreeEditItemBase::IsEditable() const
{
    return true;
}

const QString& TreeEditItemBase::GetTitle() const
{
    return m_title;
}

void TreeEditItemBase::SetTitle(const QString& title)
{
    m_title = title;
    if (mp_editor)
        mp_editor->setAccessibleName(title);
    Updated();
}

const QString& TreeEditItemBase::GetHint() const
{
    return m_hint;
}

void TreeEditItemBase::SetHint(const QString& hint)
{
    m_hint = hint;
}

void TreeEditItemBase::SetEditor(QWidget* editor)
{
    mp_editor = editor;
    if (!editor)
        return;
    if (!m_enabled)
        editor->setEnabled(false);
    // To those who cannot see it beside its title.
    if (editor->accessibleName().isEmpty())
        editor->setAccessibleName(m_title);
    if (editor->accessibleDescription().isEmpty())
        editor->setAccessibleDescription(m_hint);
}

QWidget* TreeEditItemBase::GetEditor() const
{
    return mp_editor;
}

bool TreeEditItemBase::IsEnabled() const
{
    if (!m_enabled)
        return false;
    const TreeEditItemBase* const parent = _GetParent();
    return !parent || parent->IsEnabled();
}

void TreeEditItemBase::SetEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    if (mp_editor)
        mp_editor->setEnabled(enabled);
    m_enabled = enabled;
    Updated();
}

bool TreeEditItemBase::IsVisible() const
{
    return m_visible;
}

void TreeEditItemBase::_StoreVisible(bool visible)
{
    m_visible = visible;
    if (TreeEditItemBase* const parent = _GetParent())
        parent->m_shown_known = false;
}

void TreeEditItemBase::SetVisible(bool visible)
{
    if (m_visible == visible)
        return;
    const TreeEditItemBase* const parent = _GetParent();
    // Below a hidden row the model has no rows to tell of.
    if (!parent || !parent->_IsShownByModel()) {
        _StoreVisible(visible);
        return;
    }
    if (visible) {
        _StoreVisible(true);
        const int row = ITreeItem::GetIndexOf();
        _StoreVisible(false);
        mp_model->beginInsertRows(mp_model->_IndexOf(*parent), row, row);
        _StoreVisible(true);
        mp_model->endInsertRows();
    } else {
        const int row = ITreeItem::GetIndexOf();
        mp_model->beginRemoveRows(mp_model->_IndexOf(*parent), row, row);
        _StoreVisible(false);
        mp_model->endRemoveRows();
    }
}

bool TreeEditItemBase::_IsShownByModel() const
{
    for (const TreeEditItemBase* item = this; item; item = item->_GetParent()) {
        if (!item->m_visible)
            return false;
        if (item == &mp_model->_Root())
            return true;
    }
    return false;
}

void TreeEditItemBase::Updated()
{
    if (!GetParent() || !_IsShownByModel())
        return;
    const int row = ITreeItem::GetIndexOf();
    Q_EMIT mp_model->dataChanged(mp_model->createIndex(row, 0, this),
                                 mp_model->createIndex(row, 1, this));
}

TreeEditItem* TreeEditItemBase::AddItem(const QString& title, TreeItemDelegateWrapper delegate)
{
    auto item = std::make_unique<TreeEditItem>(title, std::move(delegate), *mp_model);
    TreeEditItem* const added = item.get();
    AppendChild(item.release());
    return added;
}

TreeEditSectionItem* TreeEditItemBase::AddSection(const QString& title, const QString& hint)
{
    auto item = std::make_unique<TreeEditSectionItem>(title, hint, *mp_model);
    TreeEditSectionItem* const added = item.get();
    AppendChild(item.release());
    return added;
}

TreeItemDelegateBase* TreeEditItemBase::_GetDelegate() const
{
    return m_delegate.Get();
}

TreeEditItem::TreeEditItem(const QString& title, TreeItemDelegateWrapper delegate,
                           SettingsItemsModel& model)
    : TreeEditItemBase(title, QString(), std::move(delegate), model)
{
}

TreeEditItem::~TreeEditItem() = default;

QVariant TreeEditItem::GetData() const
{
    return mp_provider ? mp_provider->GetData() : QVariant();
}

bool TreeEditItem::SetData(const QVariant& value)
{
    return mp_provider && mp_provider->SetData(value);
}

void TreeEditItem::SetDataProvider(IItemDataProvider* provider)
{
    mp_provider = provider;
}

TreeEditSectionItem::TreeEditSectionItem(const QString& title, const QString& hint,
                                         SettingsItemsModel& model)
    : TreeEditItemBase(title, hint, TreeItemDelegateWrapper(), model)
{
}

TreeEditSectionItem::~TreeEditSectionItem() = default;

bool TreeEditSectionItem::IsSection() const
{
    return true;
}

bool TreeEditSectionItem::IsEditable() const
{
    return false;
}

} // namespace ovk
