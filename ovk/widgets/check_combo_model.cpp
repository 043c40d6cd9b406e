#include "check_combo_model_p.h"

namespace ovk {

CheckComboModel::CheckComboModel(QObject* parent) : QStandardItemModel(0, 1, parent) {}

CheckComboModel::~CheckComboModel() = default;

Qt::ItemFlags CheckComboModel::flags(const QModelIndex& index) const
{
    return QStandardItemModel::flags(index) | Qt::ItemIsUserCheckable;
}

QVariant CheckComboModel::data(const QModelIndex& index, int role) const
{
    const QVariant value = QStandardItemModel::data(index, role);
    if (index.isValid() && role == Qt::CheckStateRole && !value.isValid())
        return Qt::Unchecked;
    return value;
}

bool CheckComboModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const bool done = QStandardItemModel::setData(index, value, role);
    if (done && role == Qt::CheckStateRole) {
        Q_EMIT dataChanged(index, index);
        Q_EMIT checkStateChanged();
    }
    return done;
}

} // namespace ovk

#include "moc_check_combo_model_p.cpp"
