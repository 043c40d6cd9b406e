#include "ui_controller.h"

#include "commands_generation_p.h"
#include "ovk/commands/updatable_context.h"
#include "ovk/commands/updateable_ui.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile.h"
#include "ovk/ui_state/ui_profile_controller.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <optional>
#include <vector>

namespace ovk {

namespace {

UiController* g_instance = nullptr;

} // namespace

class UiController::Impl : public PimplBasics<UiController>
{
public:
    /// A running cycle; the outermost one closes the gaps at its end, however it ends.
    class Cycle
    {
    public:
        explicit Cycle(Impl& impl) : m_impl(impl) { ++impl.cycles; }
        ~Cycle()
        {
            if (--m_impl.cycles > 0 || !m_impl.gaps)
                return;
            std::vector<IUpdateableUi*>& list = m_impl.updatables;
            list.erase(std::remove(list.begin(), list.end(), nullptr), list.end());
            m_impl.gaps = false;
        }
        Q_DISABLE_COPY(Cycle)

    private:
        Impl& m_impl;
    };

    explicit Impl(UiController& owner)
        : PimplBasics<UiController>(owner), profile(std::make_unique<UiProfile>())
    {
    }
    ~Impl() override = default;

    QString ActiveName() const { return active ? active->GetName() : QString(); }

    /// Takes the active layout off the screen without storing what the user sees.
    void Drop(UiProfileItem::ActivationMode mode)
    {
        if (!active)
            return;
        active->Deactivate(mode);
        active = nullptr;
        _pr()._Notify();
    }

    /// Puts another layout on the screen.
    void Switch(UiLayout* layout)
    {
        const QScopedValueRollback<bool> guard(switching, true);
        if (active) {
            active->Store();
            active->Deactivate(UiProfileItem::amOrdinary);
        }
        active = layout;
        if (layout)
            layout->Activate(UiProfileItem::amOrdinary);
    }

    /// Runs one cycle. An object that leaves meanwhile leaves a gap, so that the walk goes on.
    void Update(const UpdatableContext* context)
    {
        const Cycle cycle(*this);
        for (std::size_t i = 0; i < updatables.size(); ++i) {
            if (IUpdateableUi* const item = updatables[i])
                item->DoUpdateUi(context);
        }
    }

    UiLayout* active = nullptr;
    std::unique_ptr<UiProfile> profile;
    std::vector<IUpdateableUi*> updatables;
    std::unique_ptr<UpdatableContext> context;
    int cycles = 0;
    bool gaps = false;
    bool switching = false;
    // What was asked for in the middle of a switch.
    std::optional<UiLayout*> asked_layout;
    std::optional<std::unique_ptr<UiProfile>> asked_profile;
};

UiController::UiController() : m_impl(std::make_unique<Impl>(*this))
{
    g_instance = this;
}

UiController::~UiController()
{
    g_instance = nullptr;
}

UiController* UiController::GetInstance()
{
    return g_instance;
}

void UiController::SetActiveLayout(UiLayout* layout)
{
    Impl& impl = _pr();
    if (impl.switching) {
        // What is being built must not be taken down under the hands that build it.
        impl.asked_layout = layout;
        return;
    }
    while (layout != impl.active) {
        impl.Switch(layout);
        _Notify();
        if (impl.asked_layout)
            layout = *std::exchange(impl.asked_layout, std::nullopt);
    }
    if (impl.asked_profile)
        ResetProfile(std::exchange(impl.asked_profile, std::nullopt)->release());
    ValidateActiveLayout();
}

UiLayout* UiController::GetActiveLayout()
{
    return _pr().active;
}

const UiLayout* UiController::GetActiveLayout() const
{
    return _pr().active;
}

void UiController::ValidateActiveLayout()
{
    if (UiLayout* const layout = _pr().active)
        layout->Validate();
}

void UiController::InvalidateLayouts()
{
    impl::NextCommandsGeneration();
    if (!_pr().profile)
        return;
    _pr().profile->ForEach([](UiLayout* layout) {
        layout->Invalidate();
        return true;
    });
}

void UiController::ValidateLayouts()
{
    if (!_pr().profile)
        return;
    _pr().profile->ForEach([](UiLayout* layout) {
        layout->Validate();
        return true;
    });
}

void UiController::SetProfile(UiProfile* profile)
{
    Impl& impl = _pr();
    const QString name = impl.ActiveName();
    impl.Drop(UiProfileItem::amOrdinary);
    impl.profile.release(); // the caller's from now on
    impl.profile.reset(profile);
    if (profile)
        SetActiveLayout(profile->GetLayout(name));
}

void UiController::ResetProfile(UiProfile* profile)
{
    if (_pr().switching) {
        _pr().asked_layout.reset(); // of the profile that goes
        _pr().asked_profile.emplace(profile);
        return;
    }
    UiProfile* const former = _pr().profile.get();
    SetProfile(profile);
    if (former != profile)
        delete former;
}

void UiController::RestoreProfile(UiProfile* profile)
{
    Impl& impl = _pr();
    const QString name = impl.ActiveName();
    impl.Drop(UiProfileItem::amRestore);
    impl.profile.release(); // the caller's from now on
    impl.profile.reset(profile);
    if (!profile)
        return;
    UiLayout* const layout = profile->GetLayout(name);
    if (layout == impl.active)
        return;
    impl.active = layout;
    if (layout)
        layout->Activate(UiProfileItem::amRestore);
    _Notify();
}

UiProfile* UiController::GetProfile()
{
    return _pr().profile.get();
}

const UiProfile* UiController::GetProfile() const
{
    return _pr().profile.get();
}

UiProfile* UiController::GetActualProfile()
{
    if (UiLayout* const layout = _pr().active)
        layout->Store();
    return GetProfile();
}

void UiController::UpdateUi()
{
    _pr().Update(GetUpdatableContext(true));
}

UpdatableContext* UiController::GetUpdatableContext(bool refresh)
{
    UpdatableContext* const context = _pr().context.get();
    if (refresh && context)
        context->Refresh();
    return context;
}

void UiController::SetUpdatableContext(std::unique_ptr<UpdatableContext> context)
{
    _pr().context = std::move(context);
}

void UiController::_DoOnAppStart()
{
    UiProfileController* const files = UiProfileController::GetInstance();
    UiProfile* const profile = GetProfile();
    if (files && profile && !files->Load(*profile))
        files->LoadDefault(*profile);
}

void UiController::_DoOnAppShutdown()
{
    SetActiveLayout(nullptr);
    UiProfileController* const files = UiProfileController::GetInstance();
    UiProfile* const profile = GetProfile();
    if (files && profile && profile->GetCount() > 0)
        files->Save(*profile);
    ResetProfile(nullptr);
}

void UiController::_RegisterUpdateableUi(IUpdateableUi& item)
{
    std::vector<IUpdateableUi*>& list = _pr().updatables;
    if (std::find(list.begin(), list.end(), &item) == list.end())
        list.push_back(&item);
}

void UiController::_UnregisterUpdateableUi(IUpdateableUi& item)
{
    Impl& impl = _pr();
    const auto found = std::find(impl.updatables.begin(), impl.updatables.end(), &item);
    if (found == impl.updatables.end())
        return;
    if (impl.cycles > 0) {
        *found = nullptr;
        impl.gaps = true;
    } else {
        impl.updatables.erase(found);
    }
}

} // namespace ovk
