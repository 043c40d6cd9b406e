#include "ovk/widgets/tree_edit/tree_edit_item.h"

#include "ovk/widgets/tree_edit/item_data_provider.h"
#include "ovk/widgets/tree_edit/settings_items_model.h"

#include <QScopedValueRollback>

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
    // The base does both by positions, among which hidden items would be missed.
    while (TreeItem<TreeEditItemBase>::GetChildCount() > 0)
        delete GetChildUnsafe(0);
    if (TreeEditItemBase* const parent = _GetParent()) {
        parent->_TakeFromList(parent->TreeItem<TreeEditItemBase>::GetIndexOf(this));
        SetParent(nullptr);
    }
}

int TreeEditItemBase::GetChildCount() const
{
    const int all = TreeItem<TreeEditItemBase>::GetChildCount();
    if (m_counts_hidden)
        return all;
    int count = 0;
    for (int i = 0; i < all; ++i)
        count += GetChildUnsafe(i)->m_visible ? 1 : 0;
    return count;
}

const ITreeItem* TreeEditItemBase::GetChild(int index) const
{
    const int position = index >= 0 ? _ListPosition(index) : -1;
    return TreeItem<TreeEditItemBase>::GetChild(position);
}

int TreeEditItemBase::GetIndexOf(ITreeItem* child) const
{
    int index = -1;
    for (int i = 0; i < TreeItem<TreeEditItemBase>::GetChildCount(); ++i) {
        const TreeEditItemBase* const own = GetChildUnsafe(i);
        if (!own->m_visible)
            continue;
        ++index;
        if (own == child)
            break;
    }
    return index;
}

/// The position in the list of all children; behind the last one if there is no such visible child.
int TreeEditItemBase::_ListPosition(int visibleIndex) const
{
    const int all = TreeItem<TreeEditItemBase>::GetChildCount();
    for (int i = 0; i < all; ++i) {
        if (GetChildUnsafe(i)->m_visible && visibleIndex-- == 0)
            return i;
    }
    return all;
}

TreeEditItemBase* TreeEditItemBase::_TakeFromList(int position)
{
    const QScopedValueRollback<bool> counting(m_counts_hidden, true);
    return static_cast<TreeEditItemBase*>(TreeItem<TreeEditItemBase>::_RemoveChild(position));
}

void TreeEditItemBase::_InsertChild(int index, ITreeItem* child)
{
    TreeItem<TreeEditItemBase>::_InsertChild(_ListPosition(index), child);
}

ITreeItem* TreeEditItemBase::_RemoveChild(int index)
{
    return IsValidIndex(index) ? _TakeFromList(_ListPosition(index)) : nullptr;
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
    if (editor && !m_enabled)
        editor->setEnabled(false);
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

void TreeEditItemBase::SetVisible(bool visible)
{
    if (m_visible == visible)
        return;
    const TreeEditItemBase* const parent = _GetParent();
    // Below a hidden row the model has no rows to tell of.
    if (!parent || !parent->_IsShownByModel()) {
        m_visible = visible;
        return;
    }
    if (visible) {
        m_visible = true;
        const int row = ITreeItem::GetIndexOf();
        m_visible = false;
        mp_model->beginInsertRows(mp_model->_IndexOf(*parent), row, row);
        m_visible = true;
        mp_model->endInsertRows();
    } else {
        const int row = ITreeItem::GetIndexOf();
        mp_model->beginRemoveRows(mp_model->_IndexOf(*parent), row, row);
        m_visible = false;
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
    _AppendAnnounced(item.release());
    return added;
}

TreeEditSectionItem* TreeEditItemBase::AddSection(const QString& title, const QString& hint)
{
    auto item = std::make_unique<TreeEditSectionItem>(title, hint, *mp_model);
    TreeEditSectionItem* const added = item.get();
    _AppendAnnounced(item.release());
    return added;
}

void TreeEditItemBase::_AppendAnnounced(TreeEditItemBase* item)
{
    if (!_IsShownByModel()) {
        AppendChild(item);
        return;
    }
    const int row = GetChildCount();
    mp_model->beginInsertRows(mp_model->_IndexOf(*this), row, row);
    AppendChild(item);
    mp_model->endInsertRows();
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
