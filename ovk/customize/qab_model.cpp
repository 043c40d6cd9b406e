#include "ovk/customize/site_models_p.h"

#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_quick_access_bar.h"

namespace ovk {

QABModel::QABModel(QObject* parent) : TSiteModel(3, parent) {}

QABModel::~QABModel() = default;

int QABModel::GetMaxItems() const
{
    return 128;
}

QVariant QABModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !mp_root)
        return {};
    ITreeItem* spot = mp_root->GetSpot(index.row());
    if (role == Qt::CheckStateRole)
        return index.column() == 0 ? _CheckState(spot) : QVariant();
    if (role == Qt::ForegroundRole)
        return _LockedForeground(spot);
    return _SpotData(spot, index.column(), role);
}

bool QABModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    UiSpot* spot = index.isValid() && mp_root ? mp_root->GetSpot(index.row()) : nullptr;
    if (!spot)
        return false;
    if (role == Qt::CheckStateRole) {
        // The bar is rebuilt, which the views need not hear of.
        spot->SetVisible(value.toInt() == Qt::Checked);
        return true;
    }
    auto* command = dynamic_cast<UiSpotCommand*>(spot);
    if (!command || index.column() != 1)
        return false;
    command->SetStyle(static_cast<Qt::ToolButtonStyle>(value.toInt()));
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags QABModel::flags(const QModelIndex& index) const
{
    // Alone, so that the empty view takes drops.
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    Qt::ItemFlags flags = Qt::ItemNeverHasChildren | Qt::ItemIsEnabled | Qt::ItemIsDropEnabled |
                          Qt::ItemIsDragEnabled | Qt::ItemIsSelectable;
    if (index.column() == 0)
        flags |= Qt::ItemIsUserCheckable;
    if (index.column() == 1 && dynamic_cast<UiSpotCommand*>(GetItem(index)))
        flags |= Qt::ItemIsEditable;
    return flags;
}

const SiteTreeModel::DropRules& QABModel::_Rules() const
{
    static const DropRules rules = _SpotRules(NodeKind::QuickAccessBar, true);
    return rules;
}

void QABModel::DeleteRow(const QModelIndex& parent, int row)
{
    if (mp_root && !parent.isValid() && _HasRow(parent, row))
        _DeleteSpot(*mp_root, parent, row);
}

void QABModel::MoveSpots(const QModelIndexList& indexes, const QModelIndex& target, int row)
{
    _MoveSpots(indexes, target, row);
}

} // namespace ovk
