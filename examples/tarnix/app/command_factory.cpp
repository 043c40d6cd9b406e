#include "app/command_factory.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/ui_state/features/ui_feature_command.h>
#include <ovk/ui_state/features/ui_feature_commands.h>
#include <ovk/ui_state/features/ui_features_controller.h>

namespace tarnix {
namespace {

constexpr int k_recent_commands = 8;
const QString k_recent_family = QStringLiteral("DynamicCommands.RecentFiles");

std::vector<CommandTable> Tables()
{
    return {FileCommands(),  EditCommands(),      SelectCommands(), AddCommands(),
            PlaceCommands(), TurnScaleCommands(), RepairCommands(), InspectCommands(),
            ViewCommands(),  SliceCommands(),     WindowCommands()};
}

} // namespace

CommandFactory::CommandFactory(Host& host) : m_host(host)
{
    // The texts of the recent files are no source texts: the library does not translate them.
    connect(&host, &Host::LanguageChanged, this, [this] {
        for (RecentFileCommand* command : m_recent)
            command->Follow();
    });
    connect(&host, &Host::RecentChanged, this, [this] {
        for (RecentFileCommand* command : m_recent)
            command->Follow();
        // What is offered changed: sites look their commands up again.
        if (ovk::UiController* controller = ovk::UiController::GetInstance()) {
            controller->InvalidateLayouts();
            controller->ValidateActiveLayout();
        }
    });
}

CommandFactory::~CommandFactory() = default;

ovk::UiCommand* CommandFactory::GetCommand(const QString& id, int)
{
    return m_by_id.value(id);
}

void CommandFactory::CreateCommands(const QSet<QString>& ids)
{
    const ovk::UiFeatureCommands* definitions =
        ovk::UiFeaturesController::GetInstance()->GetCommandsDef();
    for (const QString& id : ids) {
        if (id == k_recent_family) {
            for (int i = 0; i < k_recent_commands; ++i) {
                auto command = std::make_unique<RecentFileCommand>(
                    QStringLiteral("Recent.%1").arg(i + 1), i, m_host);
                m_recent.push_back(command.get());
                m_by_id.insert(command->GetId(), command.get());
                m_commands.push_back(std::move(command));
            }
            continue;
        }
        const CommandSpec* spec = FindSpec(id);
        const ovk::UiFeatureCommand* definition = definitions->Find(id);
        if (!spec || !definition)
            continue;
        auto command = std::make_unique<HostCommand>(*spec, m_host);
        command->SetTexts(definition->GetTitle(), definition->GetTooltip(),
                          definition->GetStatusTip());
        command->SetIsVisual(definition->IsVisual());
        m_by_id.insert(id, command.get());
        m_commands.push_back(std::move(command));
    }
}

bool CommandFactory::ResolveDynamicCommand(const QString& id, QList<ovk::UiCommand*>& out)
{
    if (id != k_recent_family)
        return false;
    for (RecentFileCommand* command : m_recent) {
        if (command->IsVisual())
            out.append(command);
    }
    return true;
}

const CommandSpec* CommandFactory::FindSpec(const QString& id)
{
    for (const CommandTable& table : Tables()) {
        for (const CommandSpec& spec : table) {
            if (id == QLatin1String(spec.id))
                return &spec;
        }
    }
    return nullptr;
}

QStringList CommandFactory::AllIds()
{
    QStringList ids;
    for (const CommandTable& table : Tables()) {
        for (const CommandSpec& spec : table)
            ids.append(QString::fromLatin1(spec.id));
    }
    return ids;
}

} // namespace tarnix

#include "moc_command_factory.cpp"
