#include "preferences/preference_delegates.h"

#include "model/format.h"

#include <ovk/units/edit_dbl_units.h>
#include <ovk/units/units_controller.h>
#include <ovk/units/units_pair.h>
#include <ovk/widgets/color_edit.h>
#include <ovk/widgets/tree_edit/tree_edit.h>

#include <QFontDialog>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPushButton>
#include <QScopedValueRollback>

namespace tarnix {
namespace {

constexpr int k_number_width = 130;
constexpr int k_wide_width = 210;

double MillimetresOfUnit()
{
    return ovk::UnitsController::GetCurrentUnits() == ovk::UnitsInch::GetInstance() ? k_mm_per_inch
                                                                                    : 1.0;
}

/// A row is as wide as its editor wishes to be.
QWidget* WithWidth(QWidget* editor, int width)
{
    if (editor)
        editor->setMinimumWidth(width);
    if (auto* const box = qobject_cast<QDoubleSpinBox*>(editor)) {
        box->setAlignment(Qt::AlignRight);
        box->setAccelerated(true);
        box->setKeyboardTracking(false);
    }
    return editor;
}

QString NameOf(const QFont& font)
{
    QString name = font.family() + QLatin1Char(' ') + QString::number(qMax(font.pointSize(), 1));
    if (font.bold())
        name += QLatin1Char(' ') + QObject::tr("bold");
    if (font.italic())
        name += QLatin1Char(' ') + QObject::tr("italic");
    return name;
}

} // namespace

LengthDelegate::LengthDelegate(double low, double high) : m_low(low), m_high(high) {}

QWidget* LengthDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                      const QModelIndex& index) const
{
    auto* const editor = new ovk::EditDblUnits(parent);
    editor->setMin(ovk::UnitsPair(m_low, m_low / k_mm_per_inch));
    editor->setMax(ovk::UnitsPair(m_high, m_high / k_mm_per_inch));
    editor->setStep(ovk::UnitsPair(1.0, 0.1));
    editor->setSuffixFormat(QStringLiteral(" %"));
    editor->setSuffixVisible(ovk::EditDblSuffix::spVisible);
    editor->setFrame(false);
    connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, row = QPersistentModelIndex(index)](double value) {
                if (!m_loading)
                    _WriteModel(row, value * MillimetresOfUnit());
            });
    return WithWidth(editor, k_number_width);
}

void LengthDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const box = qobject_cast<QDoubleSpinBox*>(editor);
    if (!box)
        return;
    const QScopedValueRollback<bool> loading(m_loading, true);
    box->setValue(_ReadItem(index).toDouble() / MillimetresOfUnit());
    if (auto* const line = box->findChild<QLineEdit*>())
        line->deselect();
}

NumberDelegate::NumberDelegate(const QString& suffix, double low, double high, int decimals,
                               double step)
    : DoubleSpinBoxDelegate(suffix, low, high), m_step(step)
{
    setDecimals(decimals);
}

QWidget* NumberDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    QWidget* const editor = DoubleSpinBoxDelegate::createEditor(parent, option, index);
    if (auto* const box = qobject_cast<QDoubleSpinBox*>(editor))
        box->setSingleStep(m_step);
    return WithWidth(editor, k_number_width);
}

QWidget* WholeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    return WithWidth(SpinBoxDelegate::createEditor(parent, option, index), k_number_width);
}

ChoiceDelegate::ChoiceDelegate(const QStringList& texts) : ComboBoxDelegate(texts)
{
    for (int i = 0; i < texts.size(); ++i)
        m_values.append(i);
}

ChoiceDelegate::ChoiceDelegate(const QStringList& texts, const QVariantList& values)
    : ComboBoxDelegate(texts), m_values(values)
{
}

QWidget* ChoiceDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    return WithWidth(ComboBoxDelegate::createEditor(parent, option, index), k_wide_width);
}

QVariant ChoiceDelegate::_ItemIndexToData(int itemIndex) const
{
    return m_values.value(itemIndex);
}

int ChoiceDelegate::_DataToItemIndex(const QVariant& data) const
{
    return m_values.indexOf(data);
}

QWidget* ThemeColorDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const
{
    QWidget* const editor = ColorEditDelegate::createEditor(parent, option, index);
    if (auto* const edit = qobject_cast<ovk::ColorEdit*>(editor)) {
        edit->setDefaultText(m_text);
        edit->setDefaultEnabled(true);
    }
    return WithWidth(editor, k_number_width);
}

QWidget* FontDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const
{
    auto* const button = new QPushButton(parent);
    connect(
        button, &QPushButton::clicked, this, [this, button, row = QPersistentModelIndex(index)] {
            auto* const dialog = new QFontDialog(_ReadItem(row).value<QFont>(), button->window());
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->setOption(QFontDialog::DontUseNativeDialog);
            connect(dialog, &QFontDialog::fontSelected, this,
                    [row](const QFont& font) { _WriteModel(row, font); });
            dialog->open();
        });
    return WithWidth(button, k_wide_width);
}

void FontDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const button = qobject_cast<QPushButton*>(editor))
        button->setText(NameOf(_ReadItem(index).value<QFont>()));
}

QWidget* TextDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const
{
    auto* const edit = new QLineEdit(parent);
    edit->setFrame(false);
    connect(edit, &QLineEdit::editingFinished, this, [edit, row = QPersistentModelIndex(index)] {
        if (edit->isModified()) {
            edit->setModified(false);
            _WriteModel(row, edit->text());
        }
    });
    return WithWidth(edit, k_wide_width);
}

void TextDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const edit = qobject_cast<QLineEdit*>(editor);
    if (edit && !edit->isModified())
        edit->setText(_ReadItem(index).toString());
}

QWidget* ActionDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                      const QModelIndex&) const
{
    auto* const button = new QPushButton(parent);
    // Later: what it does may take the row away, and the button with it.
    connect(button, &QPushButton::clicked, this, m_run, Qt::QueuedConnection);
    return WithWidth(button, k_wide_width);
}

void ActionDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const button = qobject_cast<QPushButton*>(editor))
        button->setText(_ReadItem(index).toString());
}

} // namespace tarnix

#include "moc_preference_delegates.cpp"
