#include "ui_features_controller.h"

#include "cycle_commands_p.h"
#include "ovk/commands/commands_generation_p.h"
#include "ovk/commands/ui_command.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/commands/updateable_ui.h"
#include "ovk/core/observer.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/ui_state/features/commands_factory.h"
#include "ovk/ui_state/features/ui_feature_commands.h"
#include "ovk/ui_state/features/ui_feature_products.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile_controller.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QReadWriteLock>
#include <QSet>

namespace ovk {

namespace {

UiFeaturesController* g_instance = nullptr;

QString DefinitionPath()
{
    return QStringLiteral(":/%1.%2").arg(QStringLiteral("features.definition.default"),
                                         QStringLiteral("json"));
}

UiLayout* ActiveLayout()
{
    UiController* const controller = UiController::GetInstance();
    return controller ? controller->GetActiveLayout() : nullptr;
}

} // namespace

class UiFeaturesController::Impl : public PimplBasics<UiFeaturesController>,
                                   public UpdateableUiBasics,
                                   public Observer
{
public:
    explicit Impl(UiFeaturesController& owner) : PimplBasics<UiFeaturesController>(owner) {}
    ~Impl() override = default;

    void ReadDefinitions()
    {
        QFile file(DefinitionPath());
        if (!file.open(QIODevice::ReadOnly))
            return;
        const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
        commands.FromJson(root.value(QLatin1String("commands")).toObject());
        products.FromJson(root.value(QLatin1String("products")).toObject());
    }

    QSet<QString> ProductIds() const
    {
        QSet<QString> all;
        if (!product)
            return all;
        for (int i = 0; i < product->GetCount(); ++i) {
            const auto* const layout = static_cast<const UiFeatureLayout*>(product->GetItem(i));
            for (const QString& id : layout->GetCommandIds())
                all.insert(id);
        }
        for (const QString& id : product->GetFunctions().GetFunctionIds())
            all.insert(id);
        return all;
    }

    /// The answer of the first factory that has one. The lock must be held for reading.
    UiCommand* Ask(const QString& id, int variant) const
    {
        for (ICommandsFactory* const factory : factories) {
            if (UiCommand* const command = factory->GetCommand(id, variant))
                return command;
        }
        return nullptr;
    }

    UiCommand* GetCommand(const QString& id, int variant)
    {
        const QReadLocker locker(&lock);
        return Ask(id, variant);
    }

    /// Appends what an identifier stands for, one command or a family.
    void _ResolveCommand(const QString& id, QList<UiCommand*>& out)
    {
        const QReadLocker locker(&lock);
        if (IsCommandFamily(id)) {
            for (ICommandsFactory* const factory : qAsConst(factories)) {
                if (factory->ResolveDynamicCommand(id, out))
                    return;
            }
        } else if (UiCommand* const command = Ask(id, 0)) {
            out.append(command);
        }
    }

    /// What all identifiers of the product stand for.
    QList<UiCommand*> ResolveAll()
    {
        QList<UiCommand*> all;
        const QSet<QString> wanted = ids;
        all.reserve(wanted.size());
        for (const QString& id : wanted)
            _ResolveCommand(id, all);
        return all;
    }

    const UiFeatureLayout* FindLayout(const QString& name) const
    {
        return product ? product->Find(name) : nullptr;
    }

    void AppendLayoutCommands(const QString& layout, QList<UiCommand*>& out)
    {
        const UiFeatureLayout* const definition = FindLayout(layout);
        if (!definition)
            return;
        const QStringList wanted = definition->GetCommandIds();
        out.reserve(out.size() + wanted.size());
        for (const QString& id : wanted)
            _ResolveCommand(id, out);
    }

    /// The list of the layout, looked up anew if it may be out of date. A running cycle keeps its
    /// own hold of it: a command's hook may bring another list about.
    std::shared_ptr<const CycleCommands> Cycle(const UiFeatureLayout& layout)
    {
        const quint64 generation = impl::CommandsGeneration();
        if (!cycle->IsCurrent(layout.GetName(), layout.GetCommandIds(), generation) ||
            HasNewAnswer(cycle->Unresolved())) {
            const QReadLocker locker(&lock);
            cycle = std::make_shared<const CycleCommands>(
                layout.GetName(), layout.GetCommandIds(), generation,
                [this](const QString& id) { return Ask(id, 0); });
        }
        return cycle;
    }

    bool HasNewAnswer(const QStringList& unresolved)
    {
        if (unresolved.isEmpty())
            return false;
        const QReadLocker locker(&lock);
        for (const QString& id : unresolved) {
            if (Ask(id, 0))
                return true;
        }
        return false;
    }

    void _UpdateUi(const UpdatableContext* context) override
    {
        const UiLayout* const active = ActiveLayout();
        const UiFeatureLayout* const layout = active ? FindLayout(active->GetName()) : nullptr;
        if (!layout || !context)
            return;
        const std::shared_ptr<const CycleCommands> list = Cycle(*layout);
        if (list->HasFamilies()) {
            UpdateWithFamilies(*layout, *list, *context);
            return;
        }
        for (UiCommand* const command : list->Commands())
            command->UpdateUi(*context);
    }

    void UpdateWithFamilies(const UiFeatureLayout& layout, const CycleCommands& list,
                            const UpdatableContext& context)
    {
        const quint64 generation = impl::CommandsGeneration();
        QList<UiCommand*> all = list.WithFamilies(
            [this](const QString& id, QList<UiCommand*>& out) { _ResolveCommand(id, out); });
        // A family that was generated anew may have taken commands with it.
        if (impl::CommandsGeneration() != generation) {
            all.clear();
            AppendLayoutCommands(layout.GetName(), all);
        }
        for (UiCommand* const command : qAsConst(all))
            command->UpdateUi(context);
    }

    /// The active layout has changed. What the new one does not have stays disabled, even if a
    /// shortcut or a button of the host still holds its action.
    void _DoOnNotify() override
    {
        const QList<UiCommand*> all = ResolveAll();
        for (UiCommand* const command : all)
            command->setEnabled(false);
        DoUpdateUi(nullptr);
    }

    UiFeatureCommands commands;
    UiFeatureProducts products;
    QList<ICommandsFactory*> factories;
    UiFeatureProduct* product = nullptr;
    QSet<QString> ids;
    QReadWriteLock lock;
    bool alternate = false;
    std::shared_ptr<const CycleCommands> cycle = std::make_shared<const CycleCommands>();
    QStringList no_functions;
};

UiFeaturesController::UiFeaturesController() : m_impl(std::make_unique<Impl>(*this))
{
    g_instance = this;
    if (UiController* const controller = UiController::GetInstance())
        controller->Attach(_pr());
}

UiFeaturesController::~UiFeaturesController()
{
    if (Observable* const observed = _pr().GetObservable())
        observed->Detach(_pr());
    if (g_instance == this)
        g_instance = nullptr;
}

UiFeaturesController* UiFeaturesController::GetInstance()
{
    return g_instance;
}

void UiFeaturesController::LoadDefinitions(const QString& productName)
{
    Impl& impl = _pr();
    impl.ReadDefinitions();
    impl.product = impl.products.Find(productName);
    if (impl.product)
        UiProfileController::SetProfileSuffix(impl.product->GetProfileSuffix());
    impl.ids = impl.ProductIds();
    ovk::impl::NextCommandsGeneration();
}

UiFeatureProducts* UiFeaturesController::GetProducts() const
{
    return &m_impl->products;
}

UiFeatureCommands* UiFeaturesController::GetCommandsDef() const
{
    return &m_impl->commands;
}

UiFeatureProduct* UiFeaturesController::GetActiveProductDef() const
{
    return m_impl->product;
}

void UiFeaturesController::AddSubFactory(ICommandsFactory* factory)
{
    Impl& impl = _pr();
    {
        const QWriteLocker locker(&impl.lock);
        if (!factory || impl.factories.contains(factory))
            return;
        impl.factories.append(factory);
    }
    factory->CreateCommands(impl.ids);
    ovk::impl::NextCommandsGeneration();
}

void UiFeaturesController::RemoveSubFactory(ICommandsFactory* factory)
{
    const QWriteLocker locker(&_pr().lock);
    _pr().factories.removeOne(factory);
    ovk::impl::NextCommandsGeneration();
}

UiCommand* UiFeaturesController::GetCommand(const QString& id, int variant)
{
    return _pr().GetCommand(id, variant);
}

UiCommand* UiFeaturesController::GetCommandFromActiveProduct(const QString& id, int variant)
{
    return GetCommand(id, variant);
}

UiCommand* UiFeaturesController::GetAvailableCommand(const QString& layout, const QString& id,
                                                     int variant)
{
    UiCommand* const command = GetLayoutCommand(layout, id, variant);
    return command && command->IsVisual() ? command : nullptr;
}

UiCommand* UiFeaturesController::GetAvailableCommandFromActiveLayout(const QString& id, int variant)
{
    const UiLayout* const layout = ActiveLayout();
    return layout ? GetAvailableCommand(layout->GetName(), id, variant) : nullptr;
}

UiCommand* UiFeaturesController::GetLayoutCommand(const QString& layout, const QString& id,
                                                  int variant)
{
    UiCommand* const command = GetCommand(id, variant);
    if (!command || !_pr().product)
        return nullptr;
    const UiFeatureLayout* const definition = _pr().product->GetLayout(layout);
    const bool listed = definition->HasCommand(command->GetId()) ||
                        definition->HasCommand(command->GetDynamicContext());
    return listed ? command : nullptr;
}

UiCommand* UiFeaturesController::GetLayoutCommandFromActiveLayout(const QString& id, int variant)
{
    const UiLayout* const layout = ActiveLayout();
    return layout ? GetLayoutCommand(layout->GetName(), id, variant) : nullptr;
}

void UiFeaturesController::GetProductCommands(QList<UiCommand*>& commands)
{
    QList<UiCommand*> all;
    if (const UiFeatureProduct* const product = _pr().product) {
        for (int i = 0; i < product->GetCount(); ++i) {
            const auto* const layout = static_cast<const UiFeatureLayout*>(product->GetItem(i));
            GetLayoutCommands(layout->GetName(), all);
        }
    }
    commands = QSet<UiCommand*>(all.cbegin(), all.cend()).values();
}

void UiFeaturesController::GetLayoutCommands(const QString& layout, QList<UiCommand*>& commands)
{
    _pr().AppendLayoutCommands(layout, commands);
}

void UiFeaturesController::GetAvailableLayoutCommands(const QString& layout,
                                                      QList<UiCommand*>& commands)
{
    QList<UiCommand*> all;
    _pr().AppendLayoutCommands(layout, all);
    commands.reserve(commands.size() + all.size());
    for (UiCommand* const command : qAsConst(all)) {
        if (command->IsVisual())
            commands.append(command);
    }
}

QStringList& UiFeaturesController::GetProductFunctionsIds()
{
    Impl& impl = _pr();
    if (impl.product)
        return impl.product->GetFunctions().GetFunctionIds();
    impl.no_functions.clear(); // what somebody wrote into it is not the next one's
    return impl.no_functions;
}

void UiFeaturesController::TranslateCommands()
{
    const QList<UiCommand*> all = _pr().ResolveAll();
    for (UiCommand* const command : all)
        command->UpdateCommandStrings();
    if (UiController* const controller = UiController::GetInstance())
        controller->InvalidateLayouts();
}

void UiFeaturesController::SetAlternateProduct(bool alternate)
{
    _pr().alternate = alternate;
}

bool UiFeaturesController::IsAlternateProduct() const
{
    return _pr().alternate;
}

} // namespace ovk
