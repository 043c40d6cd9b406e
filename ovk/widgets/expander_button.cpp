#include "ovk/widgets/expander_button.h"

#include "widget_accessibility_p.h"

namespace ovk {

ExpanderButton::ExpanderButton(const QString& text, QWidget* parent) : QToolButton(parent)
{
    InstallWidgetAccessibility();
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setCheckable(true);
    setText(text);
    connect(this, &QToolButton::toggled, this, &ExpanderButton::_OnToggled);
    _OnToggled(false);
}

ExpanderButton::ExpanderButton(QWidget* parent) : ExpanderButton(QString(), parent) {}

ExpanderButton::~ExpanderButton() = default;

bool ExpanderButton::isExpanded() const
{
    return isChecked();
}

void ExpanderButton::setExpanded(bool expanded)
{
    setChecked(expanded);
}

void ExpanderButton::_OnToggled(bool checked)
{
    setArrowType(checked ? Qt::DownArrow : Qt::RightArrow);
}

} // namespace ovk

#include "moc_expander_button.cpp"
