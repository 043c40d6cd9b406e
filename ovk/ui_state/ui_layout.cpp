#include "ui_layout.h"

#include "features/ui_feature_layout.h"
#include "features/ui_features_controller.h"
#include "ovk/commands/composite_command.h"
#include "ovk/commands/ui_command.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/docking/ui_state_docking.h"
#include "ovk/ui_state/layout_lifetime_p.h"
#include "ui_profile.h"
#include "ui_state_composites.h"
#include "ui_state_dialogs.h"
#include "ui_state_menus.h"
#include "ui_state_quick_access_bar.h"
#include "ui_state_ribbon.h"
#include "ui_state_shortcuts.h"
#include "ui_state_toolbars.h"

#include <QGlobalStatic>
#include <QJsonObject>
#include <QObject>

#include <memory>
#include <unordered_map>

namespace ovk {
namespace {

const QLatin1String KEY_ID("id");
const QLatin1String KEY_STATES("states");

/// Few layouts are looked into at a time, so that their lifetimes are kept beside them.
using Lifetimes = std::unordered_map<const UiLayout*, std::unique_ptr<QObject>>;
Q_GLOBAL_STATIC(Lifetimes, g_lifetimes)

void EndLifetime(const UiLayout* layout)
{
    if (!g_lifetimes.exists())
        return;
    const auto found = g_lifetimes->find(layout);
    if (found == g_lifetimes->end())
        return;
    // Out of the table first: who hears of the end may ask for other layouts.
    const std::unique_ptr<QObject> ending = std::move(found->second);
    g_lifetimes->erase(found);
}

} // namespace

QObject& impl::LifetimeOf(const UiLayout& layout)
{
    std::unique_ptr<QObject>& lifetime = (*g_lifetimes)[&layout];
    if (!lifetime)
        lifetime = std::make_unique<QObject>();
    return *lifetime;
}

class UiLayout::Impl : public PimplBasics<UiLayout>
{
public:
    explicit Impl(UiLayout& owner) : PimplBasics(owner) {}
    ~Impl() override
    {
        EndLifetime(_pp());
        // Sites go before the composites whose live commands they show.
        while (!states.isEmpty())
            delete states.takeLast();
    }

    void Add(UiState* state)
    {
        states.append(state);
        state->SetParent(_pp());
    }

    void FindComposites()
    {
        composites =
            dynamic_cast<UiStateComposites*>(_pr().GetState(UiStateComposites::GetSuiteName()));
    }

    QList<UiState*> states;
    UiStateComposites* composites = nullptr;
    const UiFeatureLayout* feature = nullptr;
    bool valid = true;
};

UiLayout::UiLayout(const QString& name) : UiStateItem(name), mp_impl(std::make_unique<Impl>(*this))
{
    // Composites come first: the spots of all others are resolved through them.
    _pr().Add(new UiStateComposites);
    _pr().Add(new UiStateShortcuts);
    _pr().Add(new UiStateRibbon);
    _pr().Add(new UiStateToolbars);
    _pr().Add(new UiStateQAB);
    _pr().Add(new UiStateDocking);
    _pr().Add(new UiStateMenus);
    _pr().Add(new UiStateDialogs);
    _pr().FindComposites();
}

UiLayout::UiLayout(const UiFeatureLayout& feature) : UiLayout(feature.GetName())
{
    _pr().feature = &feature;
}

UiLayout::UiLayout(const UiLayout& other)
    : UiStateItem(other), mp_impl(std::make_unique<Impl>(*this))
{
    _pr().states.reserve(other._pr().states.size());
    for (const UiState* state : qAsConst(other._pr().states))
        _pr().Add(static_cast<UiState*>(state->Clone()));
    _pr().feature = other._pr().feature;
    _pr().FindComposites();
}

UiLayout::~UiLayout() = default;

UiState* UiLayout::GetState(const QString& suite)
{
    return const_cast<UiState*>(qAsConst(*this).GetState(suite));
}

const UiState* UiLayout::GetState(const QString& suite) const
{
    for (const UiState* state : qAsConst(_pr().states)) {
        if (state->GetName() == suite)
            return state;
    }
    return nullptr;
}

void UiLayout::Validate()
{
    if (_pr().valid)
        return;
    QSet<QString> changed;
    for (UiState* state : qAsConst(_pr().states))
        state->Validate(changed);
    _pr().valid = true;
}

void UiLayout::Invalidate()
{
    _pr().valid = false;
}

IUiItem* UiLayout::FindUiItem(const QString& id)
{
    if (UiFeaturesController* const features = UiFeaturesController::GetInstance()) {
        if (UiCommand* const command = features->GetAvailableCommand(GetName(), id, 0))
            return command;
    }
    UiStateComposite* const composite = _pr().composites ? _pr().composites->Find(id) : nullptr;
    if (!composite || !composite->IsAvailable())
        return nullptr;
    composite->Activate(amOrdinary);
    return composite->GetCommand();
}

UiProfile* UiLayout::GetProfile()
{
    return dynamic_cast<UiProfile*>(GetParent());
}

void UiLayout::ReplaceState(UiState* oldState, UiState* newState)
{
    const int index = GetIndexOf(oldState);
    if (index < 0 || !newState)
        return;
    const bool active = oldState->IsActive();
    if (active)
        oldState->Deactivate(amOrdinary);
    delete RemoveChild(index);
    AppendChild(newState);
    if (active)
        newState->Activate(amOrdinary);
}

const UiFeatureLayout* UiLayout::GetFeatureLayout() const
{
    return _pr().feature;
}

void UiLayout::Activate(ActivationMode mode)
{
    for (UiState* state : qAsConst(_pr().states))
        state->Activate(mode);
}

void UiLayout::Deactivate(ActivationMode mode)
{
    for (UiState* state : qAsConst(_pr().states))
        state->Deactivate(mode);
}

void UiLayout::Store()
{
    for (UiState* state : qAsConst(_pr().states))
        state->Store();
}

bool UiLayout::IsActive() const
{
    return false;
}

UiProfileItem* UiLayout::Clone() const
{
    return new UiLayout(*this);
}

UiLayout* UiLayout::GetLayout()
{
    return this;
}

QJsonObject UiLayout::ToJson() const
{
    QJsonObject states;
    for (const UiState* state : qAsConst(_pr().states))
        states.insert(state->GetName(), state->ToJson());
    QJsonObject object;
    object.insert(KEY_ID, GetName());
    object.insert(KEY_STATES, states);
    return object;
}

bool UiLayout::FromJson(const QJsonObject& object)
{
    const QJsonValue value = object.value(KEY_STATES);
    if (!value.isObject())
        return false;
    const QJsonObject states = value.toObject();
    for (auto entry = states.begin(); entry != states.end(); ++entry) {
        std::unique_ptr<UiState> suite(UiState::Create(entry.key()));
        if (!suite)
            continue;
        suite->SetParent(this);
        suite->FromJson(entry.value().toObject());
        const int index = GetIndexOf(GetState(suite->GetName()));
        if (index < 0) {
            _pr().states.append(suite.release());
            continue;
        }
        const std::unique_ptr<UiState> former(_pr().states.at(index));
        _pr().states[index] = suite.release();
    }
    _pr().FindComposites();
    return true;
}

const ITreeItem* UiLayout::GetChild(int index) const
{
    return _pr().states.value(index);
}

int UiLayout::GetChildCount() const
{
    return _pr().states.size();
}

int UiLayout::GetIndexOf(ITreeItem* child) const
{
    const auto state = dynamic_cast<UiState*>(child);
    return state ? _pr().states.indexOf(state) : -1;
}

void UiLayout::_InsertChild(int index, ITreeItem* child)
{
    if (const auto state = dynamic_cast<UiState*>(child)) {
        _pr().states.insert(qBound(0, index, _pr().states.size()), state);
        _pr().FindComposites();
    }
}

ITreeItem* UiLayout::_RemoveChild(int index)
{
    if (!IsValidIndex(index))
        return nullptr;
    UiState* const state = _pr().states.takeAt(index);
    _pr().FindComposites();
    return state;
}

} // namespace ovk
