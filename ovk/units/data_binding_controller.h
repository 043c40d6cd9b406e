#pragma once

#include <ovk/core/export.h>

#include <QList>

namespace ovk {

class DataBinding;

/// Holds the bindings of a dialog, and the controllers of its pages. In a tree of controllers the
/// pages come first, then the own bindings, then the hook.
class OVK_EXPORT DataBindingController
{
public:
    DataBindingController();
    /// Copies the lists as they stand: both would delete the same bindings.
    DataBindingController(const DataBindingController&);
    /// Copies the lists as they stand: both would delete the same bindings.
    DataBindingController& operator=(const DataBindingController&);
    /// Deletes the bindings. Neither the pages nor the controller above are told: destroy or detach
    /// the pages first.
    virtual ~DataBindingController();

    /// True unless a binding here or below is not valid.
    bool IsValid() const;
    /// True if a binding here or below is modified.
    bool IsModified() const;

    /// Gives all values to their sources. False, and nothing is touched, if not all are valid.
    bool CommitToSources();
    /// Takes all values from their sources for the first time.
    void LoadFromSources();
    /// Takes all values from their sources again.
    void ReloadFromSources();

    /// Moves this under \a top; out of any if null.
    void SetTopController(DataBindingController* top);
    /// Puts \a sub under this; not owned. Its previous top is not told. Null, what is there already,
    /// and what this stands under itself are ignored.
    void AddSubController(DataBindingController* sub);
    /// Takes \a sub out, if this is its top.
    void RemoveSubController(DataBindingController* sub);

protected:
    /// The value of \a binding, here or below, changed.
    virtual void _OnValueChanged(DataBinding* binding);
    /// The validity of \a binding, here or below, changed.
    virtual void _OnValidityChanged(DataBinding* binding);
    /// All values were committed.
    virtual void _OnCommit();
    /// All values were loaded or loaded again.
    virtual void _OnLoad();

private:
    friend class DataBinding;

    void _ValueChanged(DataBinding* binding);
    void _ValidityChanged(DataBinding* binding);
    void _Attach(DataBinding* binding);

    QList<DataBinding*> m_bindings;
    QList<DataBindingController*> m_sub_controllers;
    DataBindingController* mp_top = nullptr;
};

} // namespace ovk
