#include "widget_accessibility_p.h"

#include "color_text_p.h"

#include "ovk/widgets/check_combo_box.h"
#include "ovk/widgets/color_edit.h"
#include "ovk/widgets/color_legend.h"
#include "ovk/widgets/color_range_selection.h"
#include "ovk/widgets/expander_button.h"
#include "ovk/widgets/m_switcher.h"
#include "ovk/widgets/tooltip.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTextDocumentFragment>

#include <memory>

namespace ovk {

#ifndef QT_NO_ACCESSIBILITY

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("ovk::WidgetAccessibility", text);
}

/// Runs a click once the client has its answer: some clicks open a menu and return when it closes.
void ClickLater(QAbstractButton* button)
{
    QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
}

class AccessibleSwitcher : public QAccessibleWidget
{
public:
    explicit AccessibleSwitcher(MSwitcher* switcher)
        : QAccessibleWidget(switcher, QAccessible::CheckBox)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        return type == QAccessible::Name && own.isEmpty() ? Switcher()->text() : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = Switcher()->isToggled();
        state.disabled = state.disabled || Switcher()->isDisable();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled() && !Switcher()->isDisable())
            names.prepend(toggleAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == toggleAction() || name == pressAction())
            Switcher()->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    MSwitcher* Switcher() const { return static_cast<MSwitcher*>(object()); }
};

class AccessibleExpander : public QAccessibleWidget
{
public:
    explicit AccessibleExpander(ExpanderButton* button)
        : QAccessibleWidget(button, QAccessible::Button)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        return type == QAccessible::Name && own.isEmpty() ? Button()->text() : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = Button()->isExpanded();
        state.collapsed = !state.expanded;
        state.pressed = Button()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            Button()->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ExpanderButton* Button() const { return static_cast<ExpanderButton*>(object()); }
};

/// Unlike Qt's, it bears the name of its label where there is one; the texts of the checked rows
/// are its value.
class AccessibleCheckCombo : public QAccessibleWidget
{
public:
    explicit AccessibleCheckCombo(CheckComboBox* combo)
        : QAccessibleWidget(combo, QAccessible::ComboBox)
    {
    }

    int childCount() const override { return 2; }

    QAccessibleInterface* child(int index) const override
    {
        switch (index) {
        case 0:
            return QAccessible::queryAccessibleInterface(Combo()->view());
        case 1:
            return QAccessible::queryAccessibleInterface(Combo()->lineEdit());
        default:
            return nullptr;
        }
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        if (child && child->object() == Combo()->view())
            return 0;
        return child && child->object() == Combo()->lineEdit() ? 1 : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        return rect().contains(x, y) ? child(1) : nullptr;
    }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Value ? Combo()->currentText() : QAccessibleWidget::text(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = Combo()->view()->isVisible();
        state.collapsed = !state.expanded;
        state.readOnly = true;
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name != showMenuAction() && name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (Combo()->view()->isVisible())
            Combo()->QComboBox::hidePopup();
        else
            Combo()->showPopup();
    }

private:
    CheckComboBox* Combo() const { return static_cast<CheckComboBox*>(object()); }
};

/// The value of a colour edit is told in words. It stands in the description as well, since not
/// every platform asks a button for a value.
class AccessibleColorEdit : public QAccessibleWidget
{
public:
    explicit AccessibleColorEdit(ColorEdit* edit) : QAccessibleWidget(edit, QAccessible::ButtonMenu)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        switch (type) {
        case QAccessible::Name:
            return own.isEmpty()
                       ? Translated(QT_TRANSLATE_NOOP("ovk::WidgetAccessibility", "Color"))
                       : own;
        case QAccessible::Value:
            return ColorText(Edit()->color());
        case QAccessible::Description:
            return own.isEmpty() ? ColorText(Edit()->color())
                                 : own + QLatin1String(". ") + ColorText(Edit()->color());
        default:
            return own;
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.pressed = Edit()->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{pressAction(), showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction() || name == showMenuAction())
            ClickLater(Edit());
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ColorEdit* Edit() const { return static_cast<ColorEdit*>(object()); }
};

class AccessibleColorMap : public QAccessibleWidget
{
public:
    explicit AccessibleColorMap(ColorMap* map, QAccessible::Role role = QAccessible::Graphic)
        : QAccessibleWidget(map, role)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        if (!own.isEmpty())
            return own;
        switch (type) {
        case QAccessible::Name:
            return Translated(QT_TRANSLATE_NOOP("ovk::WidgetAccessibility", "Color scale"));
        case QAccessible::Description:
            return Translated(QT_TRANSLATE_NOOP("ovk::WidgetAccessibility", "From %1 to %2"))
                .arg(ColorText(Map()->startColor()), ColorText(Map()->endColor()));
        default:
            return own;
        }
    }

protected:
    ColorMap* Map() const { return static_cast<ColorMap*>(object()); }
};

/// A slider whose value is the place at which the legend is read: to move it changes nothing but
/// what is told.
class AccessibleColorLegend : public AccessibleColorMap, public QAccessibleValueInterface
{
public:
    explicit AccessibleColorLegend(ColorLegend* legend)
        : AccessibleColorMap(legend, QAccessible::Slider)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        switch (type) {
        case QAccessible::Value:
            return Legend()->GetReadingText();
        case QAccessible::Name: {
            const QString own = QAccessibleWidget::text(type);
            return own.isEmpty()
                       ? Translated(QT_TRANSLATE_NOOP("ovk::WidgetAccessibility", "Color legend"))
                       : own;
        }
        default:
            return AccessibleColorMap::text(type);
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : AccessibleColorMap::interface_cast(type);
    }

    QVariant currentValue() const override { return Legend()->GetReadingValue(); }
    QVariant minimumValue() const override { return Legend()->GetFirstValue(); }
    QVariant maximumValue() const override { return Legend()->GetLastValue(); }
    QVariant minimumStepSize() const override { return Legend()->GetReadingStep(); }
    void setCurrentValue(const QVariant& value) override
    {
        Legend()->SetReadingValue(value.toDouble());
    }

private:
    ColorLegend* Legend() const { return static_cast<ColorLegend*>(object()); }
};

class AccessibleTooltip : public QAccessibleWidget
{
public:
    explicit AccessibleTooltip(Tooltip* tooltip)
        : QAccessibleWidget(tooltip, QAccessible::StaticText)
    {
    }

    QAccessible::Role role() const override
    {
        return Label()->getIcon().isNull() ? QAccessible::StaticText : QAccessible::Graphic;
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        if (!own.isEmpty())
            return own;
        if (type == QAccessible::Name)
            return Label()->text().isEmpty() ? Message() : Plain(Label()->text());
        return type == QAccessible::Description ? Message() : own;
    }

private:
    Tooltip* Label() const { return static_cast<Tooltip*>(object()); }
    QString Message() const { return Plain(Label()->getMessage()); }
    static QString Plain(const QString& html)
    {
        return QTextDocumentFragment::fromHtml(html).toPlainText();
    }
};

class AccessibleColorRange : public QAccessibleWidget
{
public:
    explicit AccessibleColorRange(ColorRangeSelection* range)
        : QAccessibleWidget(range, QAccessible::Grouping)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        return type == QAccessible::Name && own.isEmpty() ? widget()->windowTitle() : own;
    }
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    if (auto* const switcher = qobject_cast<MSwitcher*>(object))
        return std::make_unique<AccessibleSwitcher>(switcher).release();
    if (auto* const expander = qobject_cast<ExpanderButton*>(object))
        return std::make_unique<AccessibleExpander>(expander).release();
    if (auto* const combo = qobject_cast<CheckComboBox*>(object))
        return std::make_unique<AccessibleCheckCombo>(combo).release();
    if (auto* const edit = qobject_cast<ColorEdit*>(object))
        return std::make_unique<AccessibleColorEdit>(edit).release();
    if (auto* const legend = qobject_cast<ColorLegend*>(object))
        return std::make_unique<AccessibleColorLegend>(legend).release();
    if (auto* const map = qobject_cast<ColorMap*>(object))
        return std::make_unique<AccessibleColorMap>(map).release();
    if (auto* const tooltip = qobject_cast<Tooltip*>(object))
        return std::make_unique<AccessibleTooltip>(tooltip).release();
    if (auto* const range = qobject_cast<ColorRangeSelection*>(object))
        return std::make_unique<AccessibleColorRange>(range).release();
    return nullptr;
}

} // namespace

void InstallWidgetAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

#else

void InstallWidgetAccessibility() {}

#endif

} // namespace ovk
