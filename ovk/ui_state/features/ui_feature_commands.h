#pragma once

#include <ovk/ui_state/features/ui_feature_command.h>
#include <ovk/ui_state/t_ui_state.h>

#include <QHash>

namespace ovk {

/// All commands that the feature catalogue knows.
class OVK_EXPORT UiFeatureCommands
    : public TUiState<UiFeatureCommands, UiFeatureCommand, UiFeatureCommand>
{
public:
    /// An empty list with the name "commands".
    UiFeatureCommands();
    explicit UiFeatureCommands(const QJsonObject& json);
    UiFeatureCommands(const UiFeatureCommands& other);
    UiFeatureCommands& operator=(const UiFeatureCommands&) = delete;
    ~UiFeatureCommands() override;

    /// The first command of that identifier; null if there is none. Takes no longer with many
    /// commands than with few.
    UiFeatureCommand* Find(const QString& id) const;

    /// Exchanges two commands; nothing if either is out of range.
    void Swap(int first, int second);

protected:
    void _InsertChild(int index, ITreeItem* child) override;
    ITreeItem* _RemoveChild(int index) override;
    QString _GetSubitemsTag() const override;

private:
    friend class UiFeatureCommand;

    void _DropIndex();

    // The first command of each identifier; empty while it has to be built anew.
    mutable QHash<QString, UiFeatureCommand*> m_index;
};

} // namespace ovk
