#pragma once

#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

#include <QString>

namespace ovk {

/// A row that is an integer: an EditDblSuffix without decimals. Changes of the limits and the
/// suffix do not reach editors made before.
class OVK_EXPORT SpinBoxDelegate : public TreeItemDelegateBase
{
    Q_OBJECT

public:
    SpinBoxDelegate(int min, int max);
    SpinBoxDelegate(const QString& suffix, int min, int max);
    ~SpinBoxDelegate() override;

    /// The least value.
    int getMin() const;
    /// The largest value.
    int getMax() const;
    /// Changes the least value.
    void setMin(int min);
    /// Changes the largest value.
    void setMax(int max);
    /// The suffix, which is always shown.
    const QString& getSuffix() const;
    /// Changes the suffix.
    void setSuffix(const QString& suffix);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Does nothing: every change has been written already.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    int m_min;
    int m_max;
    QString m_suffix;
    mutable bool m_loading = false;
};

/// A row that is a number: an EditDblSuffix. Changes of the limits, the decimals and the suffix do
/// not reach editors made before.
class OVK_EXPORT DoubleSpinBoxDelegate : public TreeItemDelegateBase
{
    Q_OBJECT

public:
    DoubleSpinBoxDelegate(double min, double max);
    DoubleSpinBoxDelegate(const QString& suffix, double min, double max);
    ~DoubleSpinBoxDelegate() override;

    /// The least value.
    double getMin() const;
    /// The largest value.
    double getMax() const;
    /// Changes the least value.
    void setMin(double min);
    /// Changes the largest value.
    void setMax(double max);
    /// The number of digits behind the decimal point; 3 at the start.
    int getDecimals() const;
    /// Changes the number of digits behind the decimal point.
    void setDecimals(int decimals);
    /// The suffix, which is always shown.
    const QString& getSuffix() const;
    /// Changes the suffix.
    void setSuffix(const QString& suffix);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Does nothing: every change has been written already.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    double m_min;
    double m_max;
    int m_decimals = 3;
    QString m_suffix;
    mutable bool m_loading = false;
};

} // namespace ovk
