#pragma once

#include <ovk/core/application_controller.h>
#include <ovk/core/observable.h>

#include <memory>

namespace ovk {

class IUpdateableUi;
class UiLayout;
class UiProfile;
class UpdatableContext;

/// Holds the profile of the user interface, knows which of its layouts is on the screen, and runs
/// the update cycle. Observers are told whenever the active layout changes.
///
/// The host constructs it once; the RootController then owns it. It loads the profile at the start
/// of the application, through UiProfileController, and saves it at the end; the host activates a
/// layout once its main window exists.
class OVK_EXPORT UiController : public IApplicationController, public Observable
{
public:
    UiController();
    ~UiController() override;

    /// The one object; null before it is constructed.
    static UiController* GetInstance();

    /// Puts a layout of the present profile on the screen, or none with null; from inside a switch,
    /// right after it. The former one is stored and taken down. Validates the active one always.
    void SetActiveLayout(UiLayout* layout);
    /// The layout on the screen; null if there is none.
    UiLayout* GetActiveLayout();
    const UiLayout* GetActiveLayout() const;

    /// Looks the items of the active layout up again if it was invalidated.
    void ValidateActiveLayout();
    /// Marks all layouts of the profile as out of date: what their identifiers stand for may have
    /// changed.
    void InvalidateLayouts();
    /// Looks the items of all layouts up again that were invalidated.
    void ValidateLayouts();

    /// Takes \a profile, which this then owns, and activates its layout of the same name as the
    /// active one. The former profile is not stored into, not deleted, and the caller's.
    void SetProfile(UiProfile* profile);
    /// As SetProfile(), but deletes the former profile.
    void ResetProfile(UiProfile* profile);
    /// As SetProfile(), but leaves the docking system in its place and validates nothing: it puts
    /// a saved copy back. The former profile is the caller's.
    void RestoreProfile(UiProfile* profile);

    /// The profile; null after ResetProfile(nullptr). What is on the screen may be ahead of it.
    UiProfile* GetProfile();
    const UiProfile* GetProfile() const;
    /// The profile, once the active layout was stored into it.
    UiProfile* GetActualProfile();

    /// One update cycle: refreshes the context and hands it to each registered object in the order
    /// of registration. The context is null if the host gave none.
    void UpdateUi();

    /// The host's context, refreshed first with \a refresh; null if the host gave none.
    UpdatableContext* GetUpdatableContext(bool refresh);
    /// Takes over the context of the host; the former one is deleted.
    void SetUpdatableContext(std::unique_ptr<UpdatableContext> context);

protected:
    /// Loads the profile, or the default one.
    void _DoOnAppStart() override;
    /// Takes the active layout down, saves the profile unless it is empty, and deletes it.
    void _DoOnAppShutdown() override;

private:
    friend class IUpdateableUi;

    void _RegisterUpdateableUi(IUpdateableUi& item);
    void _UnregisterUpdateableUi(IUpdateableUi& item);

    class Impl;

    Impl* _pp() { return m_impl.get(); }
    const Impl* _pp() const { return m_impl.get(); }
    Impl& _pr() { return *m_impl; }
    const Impl& _pr() const { return *m_impl; }

    std::unique_ptr<Impl> m_impl;
};

} // namespace ovk
