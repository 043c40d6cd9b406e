#include "tool.h"

#include "check_rules.h"

#include "ovk/commands/ui_command.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/core/application.h"
#include "ovk/core/root_controller.h"
#include "ovk/ui_state/features/commands_factory.h"
#include "ovk/ui_state/features/ui_feature_product.h"
#include "ovk/ui_state/features/ui_feature_products.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile.h"

#include <map>
#include <memory>

namespace ovk_profile {
namespace {

class IdleCommand : public ovk::UiCommand
{
public:
    explicit IdleCommand(const QString& id) : UiCommand(id) {}

protected:
    void _DoExecute() override {}
    void _DoUpdateUi(const ovk::UpdatableContext&) override {}
};

/// Has every command that it is asked for: the layouts of the product say which exist.
class AllCommands : public ovk::ICommandsFactory
{
public:
    ovk::UiCommand* GetCommand(const QString& id, int) override
    {
        std::unique_ptr<IdleCommand>& command = m_commands[id];
        if (!command)
            command = std::make_unique<IdleCommand>(id);
        return command.get();
    }
    void CreateCommands(const QSet<QString>&) override {}
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    std::map<QString, std::unique_ptr<IdleCommand>> m_commands;
};

/// As much of a host as a merge asks: whether the command of a binding exists.
class Host : public ovk::Application
{
public:
    explicit Host(const Offer& offer)
    {
        new ovk::UiController; // the RootController's
        mp_features = std::make_unique<ovk::UiFeaturesController>();
        auto product = std::make_unique<ovk::UiFeatureProduct>(offer.product);
        for (auto layout = offer.layouts.begin(); layout != offer.layouts.end(); ++layout)
            product->GetLayout(layout.key())->SetCommandIds(layout->values());
        mp_features->GetProducts()->AppendChild(product.release());
        mp_features->LoadDefinitions(offer.product);
        mp_features->AddSubFactory(&m_commands);
    }
    ~Host() override
    {
        mp_features.reset();
        delete ovk::RootController::GetInstance();
    }

private:
    AllCommands m_commands;
    std::unique_ptr<ovk::UiFeaturesController> mp_features;
};

QJsonObject ProfileOf(const File& file)
{
    return file.root.value(QLatin1String("profile")).toObject();
}

void AddBindings(const File& file, Offer& offer)
{
    const Node tree = TreeOf(file, [](const Problem&) {});
    for (const Node& layout : tree.children) {
        QSet<QString>& ids = offer.layouts[layout.id];
        for (const Node& suite : layout.children) {
            if (QLatin1String(suite.type->name) != QLatin1String("shortcuts"))
                continue;
            for (const Node& binding : suite.children)
                ids.insert(binding.id);
        }
    }
}

/// Without a catalogue every command that the files name counts as one that exists.
Offer OfferFor(const MergeOptions& options, const File& user, const File& fresh)
{
    if (!options.catalogue.isEmpty()) {
        const QString product = options.product.isEmpty()
                                    ? ProfileOf(fresh).value(QLatin1String("product")).toString()
                                    : options.product;
        return OfferOf(ReadFile(options.catalogue), product);
    }
    Offer offer;
    offer.product = QStringLiteral("product");
    AddBindings(user, offer);
    AddBindings(fresh, offer);
    return offer;
}

} // namespace

int Merge(const MergeOptions& options, QTextStream& out)
{
    const File user = ReadProfile(options.user);
    const File fresh = ReadProfile(options.fresh);
    QJsonObject user_profile = ProfileOf(user);
    if (!options.base.isEmpty()) {
        const QString layouts = QStringLiteral("layouts");
        user_profile.insert(
            QStringLiteral("base"),
            QJsonObject{{layouts, ProfileOf(ReadProfile(options.base)).value(layouts)}});
    }

    const Host host(OfferFor(options, user, fresh));
    ovk::UiProfile merged;
    merged.FromJson(user_profile);
    ovk::UiProfile new_default;
    new_default.FromJson(ProfileOf(fresh));
    merged.Rebase(new_default);

    // The library writes the version of the running program, which is this tool.
    QJsonObject profile = merged.ToJson();
    profile.insert(QStringLiteral("version"),
                   ProfileOf(fresh).value(QLatin1String("version")).toString());
    WriteFile(options.output, QJsonObject{{QStringLiteral("profile"), profile}},
              FormatOfName(options.output), out);
    return Fine;
}

} // namespace ovk_profile
