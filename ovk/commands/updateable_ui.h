#pragma once

#include <ovk/core/export.h>

namespace ovk {

class UiController;
class UpdatableContext;

/// Something that shows the state of commands and is refreshed in every update cycle.
class OVK_EXPORT IUpdateableUi
{
public:
    /// Refreshes this object from \a context. With null the context of the UiController is
    /// refreshed and taken, which is null still if the host gave none.
    void DoUpdateUi(const UpdatableContext* context);

protected:
    /// The refresh itself. \a context is null if the host gave none. Nothing may be registered or
    /// unregistered from here that this cycle is to take note of.
    virtual void _UpdateUi(const UpdatableContext* context) = 0;

    IUpdateableUi() = default;
    IUpdateableUi(const IUpdateableUi&) = default;
    IUpdateableUi& operator=(const IUpdateableUi&) = default;

public:
    virtual ~IUpdateableUi();

protected:
    /// Joins the update cycle of \a controller at its end; nothing if it has joined already.
    void _Register(UiController& controller);
    /// Leaves the update cycle of \a controller.
    void _Unregister(UiController& controller);
};

/// An IUpdateableUi that is part of the update cycle for as long as it lives. One that is
/// constructed before the UiController exists is never updated.
class OVK_EXPORT UpdateableUiBasics : public IUpdateableUi
{
public:
    UpdateableUiBasics(const UpdateableUiBasics&) = delete;
    UpdateableUiBasics& operator=(const UpdateableUiBasics&) = delete;
    /// Leaves the update cycle.
    ~UpdateableUiBasics() override;

protected:
    /// Joins the update cycle of the UiController, if there is one.
    UpdateableUiBasics();
};

} // namespace ovk
