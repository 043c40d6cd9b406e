#include "ovk/widgets/tree_edit/settings_items_model.h"

#include "ovk/widgets/tree_edit/tree_edit.h"
#include "ovk/widgets/tree_edit/tree_edit_item.h"

namespace ovk {

namespace {

constexpr int g_value_column = 1;
constexpr int g_column_count = 2;

} // namespace

SettingsItemsModel::SettingsItemsModel(QObject* parent)
    : QAbstractItemModel(parent), mp_root(std::make_unique<TreeEditItemBase>(*this))
{
}

SettingsItemsModel::~SettingsItemsModel() = default;

TreeEditItemBase& SettingsItemsModel::GetRoot()
{
    return *mp_root;
}

const TreeEditItemBase& SettingsItemsModel::_Root() const
{
    return *mp_root;
}

const TreeEditItemBase& SettingsItemsModel::_ItemOf(const QModelIndex& index) const
{
    return index.isValid() ? *TreeEdit::GetItem(index) : *mp_root;
}

QModelIndex SettingsItemsModel::_IndexOf(const TreeEditItemBase& item) const
{
    if (&item == mp_root.get())
        return QModelIndex();
    return createIndex(item.ITreeItem::GetIndexOf(), 0, const_cast<TreeEditItemBase*>(&item));
}

QModelIndex SettingsItemsModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    const auto* const child = static_cast<const TreeEditItemBase*>(_ItemOf(parent).GetChild(row));
    if (!child)
        return QModelIndex();
    return createIndex(row, column, const_cast<TreeEditItemBase*>(child));
}

QModelIndex SettingsItemsModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return QModelIndex();
    const auto* const parent =
        static_cast<const TreeEditItemBase*>(TreeEdit::GetItem(index)->GetParent());
    return parent ? _IndexOf(*parent) : QModelIndex();
}

int SettingsItemsModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : _ItemOf(parent).GetChildCount();
}

int SettingsItemsModel::columnCount(const QModelIndex&) const
{
    return g_column_count;
}

Qt::ItemFlags SettingsItemsModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::NoItemFlags;
    if (index.column() == g_value_column)
        flags |= Qt::ItemIsSelectable | Qt::ItemIsEditable;
    if (_ItemOf(index).IsEnabled())
        flags |= Qt::ItemIsEnabled;
    return flags;
}

QVariant SettingsItemsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const TreeEditItemBase& item = _ItemOf(index);
    const bool value = index.column() == g_value_column;
    switch (role) {
    case Qt::DisplayRole:
        if (!value)
            return item.GetTitle();
        // A delegate paints the value itself.
        return item._GetDelegate() ? QVariant() : item.GetData();
    case Qt::EditRole:
        return value ? item.GetData() : QVariant();
    case Qt::ToolTipRole:
        return item.GetHint();
    default:
        return QVariant();
    }
}

bool SettingsItemsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (index.isValid() && role == Qt::EditRole) {
        TreeEdit::GetItem(index)->SetData(value);
        Q_EMIT dataChanged(index, index);
    }
    return false;
}

} // namespace ovk

#include "moc_settings_items_model.cpp"
