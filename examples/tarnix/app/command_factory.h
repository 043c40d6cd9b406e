#pragma once

#include <ovk/ui_state/features/commands_factory.h>

#include "app/host_command.h"

#include <QHash>

#include <memory>
#include <vector>

namespace tarnix {

/// Makes and owns all commands of the program by its tables, with the texts of the catalogue.
class CommandFactory : public QObject, public ovk::ICommandsFactory
{
    Q_OBJECT

public:
    explicit CommandFactory(Host& host);
    ~CommandFactory() override;

    ovk::UiCommand* GetCommand(const QString& id, int variant) override;
    void CreateCommands(const QSet<QString>& ids) override;
    bool ResolveDynamicCommand(const QString& id, QList<ovk::UiCommand*>& out) override;

    /// The row of an identifier in the tables; null when there is none.
    static const CommandSpec* FindSpec(const QString& id);
    static QStringList AllIds();

private:
    Host& m_host;
    std::vector<std::unique_ptr<ovk::UiCommand>> m_commands;
    std::vector<RecentFileCommand*> m_recent;
    QHash<QString, ovk::UiCommand*> m_by_id;
};

} // namespace tarnix
