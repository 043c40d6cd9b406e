#pragma once

#include "model/move_turn.h"

#include <ovk/core/observer.h>

#include <QDialog>

#include <functional>
#include <memory>

class QAbstractButton;
class QCheckBox;
class QDialogButtonBox;

namespace ovk {
class StatusLabel;
}

namespace tarnix {

/// Asks for a move and a turn. The fields are bound to a value that outlives the dialog, so that
/// the last move is there again; they follow the unit while the dialog is open. Only what is valid
/// can be committed. The dialog does not block.
class TransformDialog : public QDialog
{
    Q_OBJECT

public:
    struct Job
    {
        /// Where the values come from, and where they go; it outlives the dialog.
        MoveTurn* source = nullptr;
        double length_limit = 5000.0; ///< millimetres, in both directions
        double angle_step = 5.0;
        /// Whether the parts would stay inside the build volume.
        std::function<bool(const MoveTurn&)> fits;
        /// Runs once `source` has the new values.
        std::function<void(const MoveTurn&)> apply;
    };

    TransformDialog(QWidget* parent, const QString& title, const Job& job);
    ~TransformDialog() override;

    /// Shows a dialog that deletes itself.
    static void Ask(QWidget* parent, const QString& title, const Job& job);

private:
    class Fields;
    class Top;

    bool Commit();
    void Check();
    void ShowState();

    Job m_job;
    std::unique_ptr<Top> mp_top;
    std::unique_ptr<Fields> mp_lengths;
    std::unique_ptr<Fields> mp_angles;
    std::unique_ptr<ovk::ObserverFunctor> mp_units_observer;
    QCheckBox* mp_keep_inside;
    ovk::StatusLabel* mp_state;
    QDialogButtonBox* mp_buttons;
};

} // namespace tarnix
