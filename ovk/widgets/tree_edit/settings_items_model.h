#pragma once

#include <ovk/core/export.h>

#include <QAbstractItemModel>

#include <memory>

namespace ovk {

class TreeEditItemBase;

/// The rows of a TreeEdit as a tree of two columns: titles and values. Hidden rows are not in it.
class OVK_EXPORT SettingsItemsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit SettingsItemsModel(QObject* parent = nullptr);
    ~SettingsItemsModel() override;

    /// The item above all rows, which owns them.
    TreeEditItemBase& GetRoot();

    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Gives \a value to the item. Answers false in any case: the item may have refused or changed
    /// it, and whoever wants to know reads again.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    friend class TreeEditItemBase;

    const TreeEditItemBase& _Root() const;
    const TreeEditItemBase& _ItemOf(const QModelIndex& index) const;
    QModelIndex _IndexOf(const TreeEditItemBase& item) const;

    std::unique_ptr<TreeEditItemBase> mp_root;
};

} // namespace ovk
