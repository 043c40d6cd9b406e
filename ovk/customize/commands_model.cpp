#include "ovk/customize/site_models_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_shortcut_binding.h"
#include "ovk/ui_state/ui_state_shortcuts.h"

#include <QKeySequence>
#include <QMimeData>

namespace ovk {

CommandsModel::CommandsModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

CommandsModel::~CommandsModel() = default;

void CommandsModel::SetLayout(UiLayout* layout)
{
    beginResetModel();
    clear();
    if (layout) {
        mp_shortcuts = dynamic_cast<UiStateShortcuts*>(layout->GetState(UiStateShortcuts::GetSuiteName()));
        QList<UiCommand*> commands;
        if (UiFeaturesController* features = UiFeaturesController::GetInstance())
            features->GetAvailableLayoutCommands(layout->GetName(), commands);
        for (UiCommand* command : commands) {
            if (!command->IsDynamic())
                append(command);
        }
    } else {
        mp_shortcuts = nullptr;
    }
    endResetModel();
}

void CommandsModel::Clear()
{
    beginResetModel();
    clear();
    mp_shortcuts = nullptr;
    endResetModel();
}

int CommandsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : size();
}

int CommandsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant CommandsModel::ShortcutData(UiCommand& command, int role) const
{
    if (role == CommandRole)
        return QVariant::fromValue(static_cast<void*>(&command));
    const UiShortcutBinding* binding = mp_shortcuts ? mp_shortcuts->Find(&command) : nullptr;
    if (!binding)
        return {};
    if (role == Qt::DisplayRole)
        return binding->GetShortcut().toString(QKeySequence::PortableText);
    return role == Qt::EditRole ? QVariant(binding->GetShortcut()) : QVariant();
}

QVariant CommandsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= size())
        return {};
    UiCommand& command = *at(index.row());
    if (index.column() == 1)
        return ShortcutData(command, role);
    switch (role) {
    case Qt::DisplayRole:
        return command.GetTitle();
    case Qt::ToolTipRole:
        return command.toolTip();
    case Qt::StatusTipRole:
        return command.statusTip();
    case Qt::DecorationRole:
        return command.icon();
    default:
        return {};
    }
}

bool CommandsModel::setData(const QModelIndex& index, const QVariant& value, int)
{
    if (!index.isValid() || index.row() >= size() || index.column() != 1 || !mp_shortcuts)
        return false;
    UiCommand* command = at(index.row());
    const auto sequence = value.value<QKeySequence>();
    if (UiShortcutBinding* binding = mp_shortcuts->Find(command)) {
        if (sequence.isEmpty())
            mp_shortcuts->DeleteBinding(binding);
        else
            binding->SetShortcut(sequence);
    } else if (!sequence.isEmpty()) {
        mp_shortcuts->CreateBinding(command->GetId(), sequence);
    }
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant CommandsModel::headerData(int section, Qt::Orientation, int role) const
{
    return role == Qt::DisplayRole ? QVariant(section) : QVariant();
}

QMimeData* CommandsModel::mimeData(const QModelIndexList& indexes) const
{
    auto commands = std::make_unique<QList<IUiItem*>>();
    int previous = -1;
    for (const QModelIndex& index : indexes) {
        if (!index.isValid() || index.row() >= size() || index.row() == previous)
            continue;
        previous = index.row();
        commands->append(at(previous));
    }
    SetDragSource(std::make_unique<DragSource<QList<IUiItem*>>>(commands.release()));
    auto data = std::make_unique<QMimeData>();
    data->setData(CustomizeMimeType(), QByteArray());
    return data.release();
}

Qt::ItemFlags CommandsModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    flags |= Qt::ItemIsDragEnabled;
    if (index.column() == 1)
        flags |= Qt::ItemIsEditable;
    return flags;
}

} // namespace ovk

#include "moc_site_models_p.cpp"
