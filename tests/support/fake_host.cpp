#include "fake_host.h"

#include "fake_host_data.h"
#include "resource_files.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/features/ui_feature_commands.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>

#include <QJsonDocument>
#include <QWidget>

namespace ovk_test {

FakeCommand::FakeCommand(const QString& id) : ovk::UiCommand(id) {}

FakeCommand::~FakeCommand() = default;

void FakeCommand::_DoExecute()
{
    ++executed;
    if (on_execute)
        on_execute();
}

void FakeCommand::_DoUpdateUi(const ovk::UpdatableContext& context)
{
    ++updated;
    last_context = &context;
    setEnabled(enabled);
    if (on_update)
        on_update(context);
}

FakeFactory::FakeFactory() = default;

FakeFactory::~FakeFactory() = default;

ovk::UiCommand* FakeFactory::GetCommand(const QString& id, int variant)
{
    variants.append(variant);
    return Command(id);
}

void FakeFactory::CreateCommands(const QSet<QString>& ids)
{
    created.append(ids);
    const ovk::UiFeaturesController* const features = ovk::UiFeaturesController::GetInstance();
    for (const QString& id : ids) {
        if (unknown.contains(id) || id.startsWith(QLatin1String("DynamicCommands.")))
            continue;
        FakeCommand* const command = Add(id);
        if (const ovk::UiFeatureCommand* const feature = features->GetCommandsDef()->Find(id)) {
            command->SetStrings(feature->GetTitle(), feature->GetTooltip(), feature->GetStatusTip(),
                                true, true, true);
            command->SetIsVisual(feature->IsVisual());
        }
    }
}

bool FakeFactory::ResolveDynamicCommand(const QString& id, QList<ovk::UiCommand*>& out)
{
    const auto family = m_families.constFind(id);
    if (family == m_families.cend())
        return false;
    for (const QString& member : *family)
        out.append(Command(member));
    return true;
}

FakeCommand* FakeFactory::Add(const QString& id)
{
    std::unique_ptr<FakeCommand>& place = m_commands[id];
    place = std::make_unique<FakeCommand>(id);
    return place.get();
}

FakeCommand* FakeFactory::AddToFamily(const QString& family, const QString& id)
{
    FakeCommand* const command = Add(id);
    command->SetDynamicContext(family);
    if (!m_families[family].contains(id))
        m_families[family].append(id);
    return command;
}

void FakeFactory::Remove(const QString& id)
{
    m_commands.erase(id);
    for (QStringList& members : m_families)
        members.removeAll(id);
}

FakeCommand* FakeFactory::Command(const QString& id) const
{
    const auto found = m_commands.find(id);
    return found == m_commands.end() ? nullptr : found->second.get();
}

FakeWidgetFactory::FakeWidgetFactory(const QStringList& pageIds) : page_ids(pageIds) {}

QWidget* FakeWidgetFactory::CreatePageWidget(const QString& pageId)
{
    if (!page_ids.contains(pageId))
        return nullptr;
    ++made;
    QWidget* const page = new QWidget;
    page->setObjectName(pageId);
    page->setWindowTitle(pageId);
    return page;
}

QStringList FakeWidgetFactory::GetPageIds() const
{
    return page_ids;
}

QJsonObject SmallCatalogue()
{
    return QJsonDocument::fromJson(g_small_catalogue).object();
}

QJsonObject SmallProfile()
{
    return QJsonDocument::fromJson(g_small_profile).object();
}

/// The application and its resources.
class FakeHost::Frame : public ovk::Application
{
public:
    Frame(const QJsonObject& catalogue, const QJsonObject& profile)
        : m_files(Files(catalogue, profile))
    {
    }

private:
    static ResourceFiles::Files Files(const QJsonObject& catalogue, const QJsonObject& profile)
    {
        ResourceFiles::Files files;
        if (!catalogue.isEmpty()) {
            files.insert(QStringLiteral("features.definition.default.json"),
                         QJsonDocument(catalogue).toJson());
        }
        if (!profile.isEmpty()) {
            files.insert(QStringLiteral("uiprofile.fake.json"), QJsonDocument(profile).toJson());
        }
        return files;
    }

    ResourceFiles m_files;
};

FakeHost::FakeHost(const QJsonObject& catalogue, const QJsonObject& profile, const QString& product)
    : mp_frame(std::make_unique<Frame>(catalogue, profile)),
      mp_controller(new ovk::UiController),      // the RootController's
      mp_profiles(new ovk::UiProfileController), // the RootController's
      mp_features(std::make_unique<ovk::UiFeaturesController>())
{
    auto context = std::make_unique<FakeContext>();
    mp_context = context.get();
    mp_controller->SetUpdatableContext(std::move(context));
    mp_features->LoadDefinitions(product);
    mp_features->AddSubFactory(&factory);
    mp_profiles->SetProductName(product);
}

std::unique_ptr<FakeHost> FakeHost::WithBareLayouts()
{
    auto host = std::make_unique<FakeHost>(SmallCatalogue(), QJsonObject());
    for (const char* const layout : {"Model", "Slice", "Foreign"})
        host->Profile().GetOrCreateLayout(QString::fromLatin1(layout));
    return host;
}

FakeHost::~FakeHost()
{
    // Widgets that stand on the screen go before the commands and nodes that they show.
    mp_controller->SetActiveLayout(nullptr);
    mp_features->RemoveSubFactory(&factory);
    mp_features.reset();
    delete ovk::RootController::GetInstance();
}

void FakeHost::Start()
{
    ovk::RootController::GetInstance()->OnAppStart();
}

ovk::UiLayout* FakeHost::Activate(const QString& layout)
{
    mp_controller->SetActiveLayout(Layout(layout));
    return mp_controller->GetActiveLayout();
}

void FakeHost::Shutdown()
{
    ovk::RootController::GetInstance()->OnAppShutdown();
}

ovk::UiLayout* FakeHost::Layout(const QString& layout) const
{
    ovk::UiProfile* const profile = mp_controller->GetProfile();
    return profile ? profile->GetLayout(layout) : nullptr;
}

ovk::UiProfile& FakeHost::Profile() const
{
    return *mp_controller->GetProfile();
}

} // namespace ovk_test
