#include "app/transform_dialog.h"

#include "app/transform_bindings.h"

#include <ovk/units/data_binding_controller.h>
#include <ovk/units/edit_dbl_units.h>
#include <ovk/units/status_label.h>
#include <ovk/units/units_controller.h>
#include <ovk/units/units_label.h>
#include <ovk/units/units_pair.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarnix {
namespace {

constexpr int k_editor_width = 130;

/// An editor with the label of its unit, one of which shows the unit.
QWidget* WithLabel(QWidget* parent, QWidget* editor, ovk::SuffixLabel* label)
{
    auto* const row = new QWidget(parent);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(editor);
    layout->addWidget(label);
    layout->addStretch(1);
    editor->setMinimumWidth(k_editor_width);
    // The width does not jump when the unit moves into the editors.
    row->setMinimumWidth(k_editor_width +
                         row->fontMetrics().horizontalAdvance(QStringLiteral("inch__")) + 12);
    row->setFocusProxy(editor);
    return row;
}

} // namespace

/// The fields of one kind.
class TransformDialog::Fields : public ovk::DataBindingController
{
};

/// All fields; whatever happens to one of them is looked at here.
class TransformDialog::Top : public ovk::DataBindingController
{
public:
    explicit Top(TransformDialog& dialog) : m_dialog(dialog) {}

    /// What the fields say, before it is committed.
    MoveTurn Present() const
    {
        MoveTurn move;
        for (int axis = 0; axis < 3; ++axis)
            move.shift[axis] = lengths[axis]->Value();
        move.degrees = angle->Value();
        return move;
    }

    LengthBinding* lengths[3] = {};
    NumberBinding* angle = nullptr;
    /// Has no editor: it is valid while the parts stay where they can be built.
    CheckBinding* inside = nullptr;

protected:
    void _OnValueChanged(ovk::DataBinding*) override { m_dialog.Check(); }
    void _OnValidityChanged(ovk::DataBinding*) override { m_dialog.ShowState(); }
    void _OnLoad() override { m_dialog.Check(); }
    void _OnCommit() override { m_dialog.m_job.apply(*m_dialog.m_job.source); }

private:
    TransformDialog& m_dialog;
};

TransformDialog::TransformDialog(QWidget* parent, const QString& title, const Job& job)
    : QDialog(parent), m_job(job), mp_top(std::make_unique<Top>(*this)),
      mp_lengths(std::make_unique<Fields>()), mp_angles(std::make_unique<Fields>())
{
    setObjectName(QStringLiteral("transformDialog"));
    setWindowTitle(title);
    auto* const layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto* const form = new QFormLayout;
    mp_lengths->SetTopController(mp_top.get());
    mp_angles->SetTopController(mp_top.get());

    const QString titles[3] = {tr("Along &X:"), tr("Along &Y:"), tr("Along &Z:")};
    static const char* const k_names[3] = {"moveX", "moveY", "moveZ"};
    const auto pair = [](double mm) { return ovk::UnitsPair(mm, mm / k_mm_per_inch); };
    for (int axis = 0; axis < 3; ++axis) {
        auto* const editor = new ovk::EditDblUnits(this);
        editor->setObjectName(QLatin1String(k_names[axis]));
        editor->setMin(pair(-m_job.length_limit));
        editor->setMax(pair(m_job.length_limit));
        editor->setStep(ovk::UnitsPair(1.0, 0.1));
        editor->setSuffixFormat(QStringLiteral(" %"));
        editor->setAlignment(Qt::AlignRight);
        form->addRow(titles[axis], WithLabel(this, editor, new ovk::UnitsLabel(this)));
        // The bindings belong to their controllers.
        mp_top->lengths[axis] = new LengthBinding(*editor, m_job.source->shift[axis]);
        mp_top->lengths[axis]->SetController(*mp_lengths);
    }
    auto* const angle = new ovk::EditDblSuffix(this);
    angle->setObjectName(QStringLiteral("turnZ"));
    angle->setRange(-360.0, 360.0);
    angle->setSingleStep(m_job.angle_step);
    angle->setSuffix(QString(QChar(0x00b0)));
    angle->setAlignment(Qt::AlignRight);
    auto* const degrees = new ovk::SuffixLabel(this);
    degrees->setText(angle->suffix());
    form->addRow(tr("&Turn about Z:"), WithLabel(this, angle, degrees));
    mp_top->angle = new NumberBinding(*angle, m_job.source->degrees);
    mp_top->angle->SetController(*mp_angles);
    layout->addLayout(form);

    mp_keep_inside = new QCheckBox(tr("&Keep the parts inside the build volume"), this);
    mp_keep_inside->setObjectName(QStringLiteral("keepInside"));
    mp_keep_inside->setChecked(true);
    connect(mp_keep_inside, &QCheckBox::toggled, this, &TransformDialog::Check);
    layout->addWidget(mp_keep_inside);
    mp_top->inside = new CheckBinding;
    mp_top->inside->SetController(*mp_top);

    mp_state = new ovk::StatusLabel;
    mp_state->setObjectName(QStringLiteral("moveState"));
    mp_state->setMinimumHeight(mp_state->fontMetrics().height() + 4);
    layout->addWidget(mp_state);

    mp_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply |
                                          QDialogButtonBox::Reset | QDialogButtonBox::Cancel,
                                      this);
    connect(mp_buttons, &QDialogButtonBox::accepted, this, [this] {
        if (Commit())
            accept();
    });
    connect(mp_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mp_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            [this] { Commit(); });
    connect(mp_buttons->button(QDialogButtonBox::Reset), &QPushButton::clicked, this,
            [this] { mp_top->LoadFromSources(); });
    layout->addWidget(mp_buttons);

    mp_units_observer =
        std::make_unique<ovk::ObserverFunctor>([this] { mp_top->ReloadFromSources(); }, false);
    ovk::UnitsController::GetInstance().Attach(*mp_units_observer);
    mp_top->LoadFromSources();
    mp_top->lengths[0]->SelectAll();
}

TransformDialog::~TransformDialog()
{
    // Controllers below first: those above would be left with dead ones.
    mp_lengths->SetTopController(nullptr);
    mp_angles->SetTopController(nullptr);
}

void TransformDialog::Ask(QWidget* parent, const QString& title, const Job& job)
{
    auto* const dialog = new TransformDialog(parent, title, job);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

bool TransformDialog::Commit()
{
    const bool committed = mp_top->CommitToSources();
    ShowState();
    return committed;
}

void TransformDialog::Check()
{
    mp_top->inside->SetValid(!mp_keep_inside->isChecked() || m_job.fits(mp_top->Present()));
    ShowState();
}

void TransformDialog::ShowState()
{
    const bool fields_valid = mp_lengths->IsValid() && mp_angles->IsValid();
    const bool valid = mp_top->IsValid();
    mp_state->UpdateStatusText(!fields_valid ? tr("A field holds no number that is allowed.")
                               : !valid      ? tr("The parts would leave the build volume.")
                               : mp_top->IsModified() ? tr("Changed from the last move.")
                                                      : tr("The last move, as it was."));
    mp_buttons->button(QDialogButtonBox::Ok)->setEnabled(valid);
    mp_buttons->button(QDialogButtonBox::Apply)->setEnabled(valid);
    mp_buttons->button(QDialogButtonBox::Reset)->setEnabled(mp_top->IsModified() || !fields_valid);
}

} // namespace tarnix

#include "moc_transform_dialog.cpp"
