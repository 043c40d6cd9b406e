#include "ovk/widgets/tree_edit/spin_box_delegate.h"

#include "ovk/units/edit_dbl_suffix.h"

#include <QLineEdit>
#include <QScopedValueRollback>

namespace ovk {

namespace {

EditDblSuffix* CreateSpinBox(QWidget* parent, double min, double max, int decimals,
                             const QString& suffix)
{
    auto* const editor = new EditDblSuffix(parent);
    editor->setMinimum(min);
    editor->setMaximum(max);
    editor->setSuffix(suffix);
    editor->setSuffixVisible(EditDblSuffix::spVisible);
    editor->setDecimals(decimals);
    editor->setFrame(false);
    return editor;
}

void ShowValue(QWidget* editor, double value)
{
    if (auto* const box = qobject_cast<EditDblSuffix*>(editor)) {
        box->setValue(value);
        if (auto* const line = box->findChild<QLineEdit*>())
            line->deselect();
    }
}

} // namespace

SpinBoxDelegate::SpinBoxDelegate(int min, int max) : SpinBoxDelegate(QString(), min, max) {}

SpinBoxDelegate::SpinBoxDelegate(const QString& suffix, int min, int max)
    : m_min(min), m_max(max), m_suffix(suffix)
{
}

SpinBoxDelegate::~SpinBoxDelegate() = default;

int SpinBoxDelegate::getMin() const
{
    return m_min;
}

int SpinBoxDelegate::getMax() const
{
    return m_max;
}

void SpinBoxDelegate::setMin(int min)
{
    m_min = min;
}

void SpinBoxDelegate::setMax(int max)
{
    m_max = max;
}

const QString& SpinBoxDelegate::getSuffix() const
{
    return m_suffix;
}

void SpinBoxDelegate::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
}

QWidget* SpinBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                       const QModelIndex& index) const
{
    EditDblSuffix* const editor = CreateSpinBox(parent, m_min, m_max, 0, m_suffix);
    connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, row = QPersistentModelIndex(index)](double value) {
                if (!m_loading)
                    _WriteModel(row, static_cast<int>(value));
            });
    return editor;
}

void SpinBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QScopedValueRollback<bool> loading(m_loading, true);
    ShowValue(editor, _ReadItem(index).toInt());
}

void SpinBoxDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {}

DoubleSpinBoxDelegate::DoubleSpinBoxDelegate(double min, double max)
    : DoubleSpinBoxDelegate(QString(), min, max)
{
}

DoubleSpinBoxDelegate::DoubleSpinBoxDelegate(const QString& suffix, double min, double max)
    : m_min(min), m_max(max), m_suffix(suffix)
{
}

DoubleSpinBoxDelegate::~DoubleSpinBoxDelegate() = default;

double DoubleSpinBoxDelegate::getMin() const
{
    return m_min;
}

double DoubleSpinBoxDelegate::getMax() const
{
    return m_max;
}

void DoubleSpinBoxDelegate::setMin(double min)
{
    m_min = min;
}

void DoubleSpinBoxDelegate::setMax(double max)
{
    m_max = max;
}

int DoubleSpinBoxDelegate::getDecimals() const
{
    return m_decimals;
}

void DoubleSpinBoxDelegate::setDecimals(int decimals)
{
    m_decimals = decimals;
}

const QString& DoubleSpinBoxDelegate::getSuffix() const
{
    return m_suffix;
}

void DoubleSpinBoxDelegate::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
}

QWidget* DoubleSpinBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                             const QModelIndex& index) const
{
    EditDblSuffix* const editor = CreateSpinBox(parent, m_min, m_max, m_decimals, m_suffix);
    connect(editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, row = QPersistentModelIndex(index)](double value) {
                if (!m_loading)
                    _WriteModel(row, value);
            });
    return editor;
}

void DoubleSpinBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QScopedValueRollback<bool> loading(m_loading, true);
    ShowValue(editor, _ReadItem(index).toDouble());
}

void DoubleSpinBoxDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {}

} // namespace ovk

#include "moc_spin_box_delegate.cpp"
