#include "ui_feature_commands.h"

namespace ovk {

UiFeatureCommands::UiFeatureCommands() : TUiState(QStringLiteral("commands")) {}

UiFeatureCommands::UiFeatureCommands(const QJsonObject& json) : TUiState(json) {}

// The index names the children of the other list, so it is not copied.
UiFeatureCommands::UiFeatureCommands(const UiFeatureCommands& other) : TUiState(other) {}

UiFeatureCommands::~UiFeatureCommands() = default;

UiFeatureCommand* UiFeatureCommands::Find(const QString& id) const
{
    if (m_index.isEmpty()) {
        const QList<UiFeatureCommand*>& commands = _GetChildren();
        m_index.reserve(commands.size());
        // Backwards, so that the first of several with one identifier is the one that stays.
        for (auto it = commands.crbegin(); it != commands.crend(); ++it)
            m_index.insert((*it)->GetName(), *it);
    }
    return m_index.value(id, nullptr);
}

void UiFeatureCommands::Swap(int first, int second)
{
    _DropIndex();
    TUiState::Swap(first, second);
}

void UiFeatureCommands::_InsertChild(int index, ITreeItem* child)
{
    _DropIndex();
    TUiState::_InsertChild(index, child);
}

ITreeItem* UiFeatureCommands::_RemoveChild(int index)
{
    _DropIndex();
    return TUiState::_RemoveChild(index);
}

QString UiFeatureCommands::_GetSubitemsTag() const
{
    return QStringLiteral("command");
}

void UiFeatureCommands::_DropIndex()
{
    m_index.clear();
}

} // namespace ovk
