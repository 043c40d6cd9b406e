#pragma once

#include <ovk/core/observable.h>

namespace ovk {

class DataBindingController;

/// The link between one editor and one value of a source. Hosts derive from it; observers hear of
/// changes of the value.
class OVK_EXPORT DataBinding : public Observable
{
public:
    /// Who modified the value; what that means is the host's.
    enum Modifier : int {
        mdNone = 0,
        mdUser = 1,
        mdProgram = 2
    };

    DataBinding();
    ~DataBinding() override;

    /// Joins \a controller, which owns the binding from then on.
    void SetController(DataBindingController& controller);

    /// True unless the editor holds a value that the source cannot take.
    bool IsValid() const;
    /// True if the editor's value differs from the source's.
    bool IsModified() const;
    /// Who modified the value.
    Modifier GetModifier() const;

protected:
    /// Takes the value from the source for the first time.
    virtual void _LoadFromSource() = 0;
    /// Takes the value from the source again.
    virtual void _ReloadFromSource() = 0;
    /// Gives the value to the source.
    virtual void _CommitToSource() = 0;

    /// Tells observers, then the controllers up the chain, that the value changed.
    void _NotifyOnValueChanged();
    /// Tells the controllers up the chain, and no observers, that the validity changed.
    void _NotifyOnValidityChanged();

    Modifier m_modifier = mdNone;
    bool m_modified = false;
    bool m_valid = true;

private:
    friend class DataBindingController;

    DataBindingController* mp_controller = nullptr;
};

} // namespace ovk
