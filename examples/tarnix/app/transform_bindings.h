#pragma once

#include "model/format.h"

#include <ovk/units/data_binding.h>
#include <ovk/units/edit_dbl_suffix.h>

#include <QObject>

namespace tarnix {

/// Binds a number to an editor. Loading shows the number; loading again keeps what the user has
/// changed and shows it anew, as in another unit.
class NumberBinding : public ovk::DataBinding
{
public:
    /// Both outlive the binding's use of them: the editor may be gone by the time it is destroyed.
    NumberBinding(ovk::EditDblSuffix& editor, double& source);

    /// What the editor says, in the unit of the source.
    double Value() const { return m_value; }
    void SelectAll();

protected:
    void _LoadFromSource() override;
    void _ReloadFromSource() override;
    void _CommitToSource() override;

    /// How much of the source's unit one of the editor's is.
    virtual double _Factor() const { return 1.0; }

private:
    void Show();
    void SetValid(bool valid);

    ovk::EditDblSuffix& m_editor;
    double& m_source;
    double m_value = 0.0;
    bool m_showing = false;
    QObject m_context; ///< the connections to the editor end with it
};

/// Binds a length in millimetres to an editor in the unit of the program.
class LengthBinding : public NumberBinding
{
public:
    using NumberBinding::NumberBinding;

protected:
    double _Factor() const override;
};

/// A condition that all fields have to fulfil together.
class CheckBinding : public ovk::DataBinding
{
public:
    void SetValid(bool valid);

protected:
    void _LoadFromSource() override {}
    void _ReloadFromSource() override {}
    void _CommitToSource() override {}
};

} // namespace tarnix
