#pragma once

#include <ovk/widgets/tree_edit/color_edit_delegate.h>
#include <ovk/widgets/tree_edit/combo_box_delegate.h>
#include <ovk/widgets/tree_edit/spin_box_delegate.h>
#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

#include <functional>

namespace tarnix {

/// A row that is a length: its value is in millimetres, its editor in the unit of the program.
class LengthDelegate : public ovk::TreeItemDelegateBase
{
    Q_OBJECT

public:
    /// Millimetres.
    LengthDelegate(double low, double high);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

private:
    double m_low;
    double m_high;
    mutable bool m_loading = false;
};

/// A number whose editors are all of one width.
class NumberDelegate : public ovk::DoubleSpinBoxDelegate
{
    Q_OBJECT

public:
    NumberDelegate(const QString& suffix, double low, double high, int decimals, double step);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

private:
    double m_step;
};

/// A whole number whose editors are all of one width.
class WholeDelegate : public ovk::SpinBoxDelegate
{
    Q_OBJECT

public:
    using SpinBoxDelegate::SpinBoxDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

/// One of several texts, whose value may be anything.
class ChoiceDelegate : public ovk::ComboBoxDelegate
{
    Q_OBJECT

public:
    /// The value of a text is its number.
    explicit ChoiceDelegate(const QStringList& texts);
    ChoiceDelegate(const QStringList& texts, const QVariantList& values);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

protected:
    QVariant _ItemIndexToData(int itemIndex) const override;
    int _DataToItemIndex(const QVariant& data) const override;

private:
    QVariantList m_values;
};

/// A colour that may be left to the theme.
class ThemeColorDelegate : public ovk::ColorEditDelegate
{
    Q_OBJECT

public:
    explicit ThemeColorDelegate(const QString& text) : m_text(text) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

private:
    QString m_text;
};

/// A row that is a font: a button that names it and opens the dialog of fonts.
class FontDelegate : public ovk::TreeItemDelegateBase
{
    Q_OBJECT

public:
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
};

/// A row that is a text; it is taken when the field is left or Return is pressed.
class TextDelegate : public ovk::TreeItemDelegateBase
{
    Q_OBJECT

public:
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
};

/// A row that does something: its value is the text of its button.
class ActionDelegate : public ovk::TreeItemDelegateBase
{
    Q_OBJECT

public:
    explicit ActionDelegate(const std::function<void()>& run) : m_run(run) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

private:
    std::function<void()> m_run;
};

} // namespace tarnix
