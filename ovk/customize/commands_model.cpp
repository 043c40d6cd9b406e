#include "ovk/customize/site_models_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/customize/drag_source_p.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/layout_lifetime_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_shortcut_binding.h"
#include "ovk/ui_state/ui_state_shortcuts.h"

#include <QKeySequence>
#include <QMimeData>

#include <algorithm>

namespace ovk {

CommandsModel::CommandsModel(QObject* parent) : QAbstractTableModel(parent) {}

CommandsModel::~CommandsModel() = default;

void CommandsModel::SetLayout(UiLayout* layout)
{
    ForgetDraggedCommands();
    beginResetModel();
    disconnect(m_layout_gone);
    mp_layout = layout;
    mp_shortcuts = nullptr;
    if (layout) {
        m_layout_gone =
            connect(&impl::LifetimeOf(*layout), &QObject::destroyed, this, &CommandsModel::Clear);
        mp_shortcuts =
            dynamic_cast<UiStateShortcuts*>(layout->GetState(UiStateShortcuts::GetSuiteName()));
    }
    static_cast<QList<UiCommand*>&>(*this) = Offered();
    Watch();
    endResetModel();
}

void CommandsModel::Clear()
{
    SetLayout(nullptr);
}

void CommandsModel::Refresh()
{
    if (Offered() != *this)
        SetLayout(mp_layout);
}

QList<UiCommand*> CommandsModel::Offered() const
{
    QList<UiCommand*> commands;
    UiFeaturesController* features = UiFeaturesController::GetInstance();
    if (mp_layout && features)
        features->GetAvailableLayoutCommands(mp_layout->GetName(), commands);
    commands.erase(std::remove_if(commands.begin(), commands.end(),
                                  [](const UiCommand* command) { return command->IsDynamic(); }),
                   commands.end());
    return commands;
}

void CommandsModel::Watch()
{
    m_watch = isEmpty() ? nullptr : std::make_unique<QObject>();
    for (UiCommand* command : qAsConst(*this)) {
        IUiItem* item = command;
        connect(command, &QObject::destroyed, m_watch.get(), [this, command, item] {
            ForgetDraggedCommand(item);
            Forget(command);
        });
    }
}

void CommandsModel::Forget(UiCommand* dead)
{
    const int row = indexOf(dead);
    if (row < 0)
        return;
    // Nobody who is told of the row's end may look at it any more.
    (*this)[row] = nullptr;
    beginRemoveRows({}, row, row);
    removeAt(row);
    endRemoveRows();
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
    if (!index.isValid() || index.row() >= size() || !at(index.row()))
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
    if (!index.isValid() || index.row() >= size() || !at(index.row()) || index.column() != 1 ||
        !mp_shortcuts)
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
