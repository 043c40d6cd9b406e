#include "ovk/units/edit_dbl_suffix.h"

#include "edit_dbl_suffix_p.h"
#include "number_input_p.h"

#include "ovk/preferences/pref_ui.h"
#include "ovk/units/suffix_controller.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QToolTip>

#include <cmath>

namespace ovk {

EditDblSuffix::EditDblSuffix(QWidget* parent)
    : QDoubleSpinBox(parent), mp_impl(std::make_unique<EditDblSuffixPrivate>(*this))
{
    _Init();
}

EditDblSuffix::EditDblSuffix(EditDblSuffixPrivate* impl, QWidget* parent)
    : QDoubleSpinBox(parent), mp_impl(impl)
{
    _Init();
}

EditDblSuffix::~EditDblSuffix() = default;

void EditDblSuffix::_Init()
{
    mp_impl->mp_mode_observer =
        std::make_unique<ObserverProxy<EditDblSuffix>>(this, &EditDblSuffix::_ModeChanged);
    g_pref_suffix_in_editor.Attach(*mp_impl->mp_mode_observer);
    _ModeChanged();
    lineEdit()->installEventFilter(this);
}

EditDblSuffixPrivate* EditDblSuffix::_pp()
{
    return mp_impl.get();
}

const EditDblSuffixPrivate* EditDblSuffix::_pp() const
{
    return mp_impl.get();
}

EditDblSuffixPrivate& EditDblSuffix::_pr()
{
    return *mp_impl;
}

const EditDblSuffixPrivate& EditDblSuffix::_pr() const
{
    return *mp_impl;
}

QDoubleSpinBox* EditDblSuffix::spinBox()
{
    return this;
}

QString EditDblSuffix::suffix() const
{
    return mp_impl->m_suffix;
}

QString EditDblSuffix::suffixFormat() const
{
    return mp_impl->m_suffix_format;
}

EditDblSuffix::SuffixVisibility EditDblSuffix::suffixVisible() const
{
    return mp_impl->m_suffix_visible;
}

bool EditDblSuffix::showValidationError() const
{
    return mp_impl->m_show_validation_error;
}

void EditDblSuffix::setSuffixVisible(SuffixVisibility visible)
{
    if (mp_impl->m_suffix_visible == visible)
        return;
    mp_impl->m_suffix_visible = visible;
    _UpdateSuffix();
}

void EditDblSuffix::setSuffix(const QString& suffix)
{
    mp_impl->m_suffix = suffix;
    _UpdateSuffix();
}

void EditDblSuffix::setSuffixFormat(const QString& format)
{
    mp_impl->m_suffix_format = format;
    _UpdateSuffix();
}

void EditDblSuffix::setShowValidationError(bool show)
{
    mp_impl->m_show_validation_error = show;
}

void EditDblSuffix::setValidationSmartMode(bool smart)
{
    mp_impl->m_validation_smart_mode = smart;
}

void EditDblSuffix::_ModeChanged()
{
    _UpdateSuffix();
}

void EditDblSuffix::_UpdateSuffix()
{
    QString text = mp_impl->m_suffix;
    if (!mp_impl->m_suffix_format.isEmpty())
        text = QString(mp_impl->m_suffix_format).replace(QLatin1Char('%'), mp_impl->m_suffix);
    bool shown = mp_impl->m_suffix_visible == spVisible;
    if (mp_impl->m_suffix_visible == spAuto)
        shown = SuffixController::GetInstance().IsInsideEditor();
    QDoubleSpinBox::setSuffix(shown ? text : QString());
}

QValidator::State EditDblSuffix::validate(QString& input, int& pos) const
{
    // A spin box validates as it accepts what was typed, where it may set its value and tell its
    // listeners; the base declares all of that const.
    auto* const self = const_cast<EditDblSuffix*>(this);
    UnifyDecimalPoint(input, QLocale::system().decimalPoint());

    NumberInputRules rules;
    rules.minimum = minimum();
    rules.maximum = maximum();
    rules.decimals = decimals();
    rules.locale = locale();
    rules.prefix = prefix();
    rules.suffix = suffix();
    rules.shown_suffix = QDoubleSpinBox::suffix();
    rules.special_value_text = specialValueText();
    // The preference, and not the controller that the shown suffix follows: hosts keep both in step.
    rules.show_suffix = mp_impl->m_suffix_visible == spVisible
                        || (mp_impl->m_suffix_visible == spAuto && g_pref_suffix_in_editor.GetData());
    rules.smart_mode = mp_impl->m_validation_smart_mode;
    const NumberInput result = InterpretNumberInput(rules, input, pos);
    if (result.enlarged) {
        self->setValue(result.number);
        lineEdit()->end(true);
    }

    if (result.state != QValidator::Acceptable && mp_impl->m_show_validation_error && result.show_tip) {
        const QString text = tr("Please enter value between %1 and %2")
                                 .arg(minimum(), 0, 'f', decimals(), QLatin1Char(' '))
                                 .arg(maximum(), 0, 'f', decimals(), QLatin1Char(' '));
        QToolTip::showText(mapToGlobal(QPoint(0, 0)), text, self);
    } else {
        QToolTip::hideText();
    }

    if (result.state != m_validation_state) {
        m_validation_state = result.state;
        Q_EMIT self->validityChanged(result.state != QValidator::Invalid);
    }
    return result.state;
}

double EditDblSuffix::valueFromText(const QString& text) const
{
    // An accepted input bears the suffix without its format, which the base does not know.
    QString number = text;
    const QString shown = QDoubleSpinBox::suffix();
    const QString& plain = mp_impl->m_suffix;
    if (!plain.isEmpty() && number.endsWith(plain) && (shown.isEmpty() || !number.endsWith(shown)))
        number = number.left(number.size() - plain.size()) + shown;
    return QDoubleSpinBox::valueFromText(number);
}

bool EditDblSuffix::eventFilter(QObject* object, QEvent* event)
{
    if (object == lineEdit() && event->type() == QEvent::MouseButtonDblClick
        && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        lineEdit()->selectAll();
        return true;
    }
    return QDoubleSpinBox::eventFilter(object, event);
}

} // namespace ovk

#include "moc_edit_dbl_suffix.cpp"
