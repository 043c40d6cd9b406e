#include "ovk/widgets/action_button.h"

#include <QAction>

namespace ovk {

ActionButton::ActionButton(QWidget* parent) : QPushButton(parent) {}

ActionButton::~ActionButton() = default;

void ActionButton::SetAction(QAction* action)
{
    if (mp_action && mp_action != action) {
        disconnect(mp_action, &QAction::changed, this, nullptr);
        disconnect(this, &QAbstractButton::clicked, mp_action, &QAction::trigger);
    }
    mp_action = action;
    if (!action)
        return;
    _UpdateButtonStatusFromAction();
    connect(action, &QAction::changed, this, &ActionButton::_UpdateButtonStatusFromAction);
    connect(this, &QAbstractButton::clicked, action, &QAction::trigger);
}

void ActionButton::setDefaultAction(QAction* action)
{
    SetAction(action);
}

void ActionButton::_UpdateButtonStatusFromAction()
{
    setText(mp_action->text());
    setStatusTip(mp_action->statusTip());
    setToolTip(mp_action->toolTip());
    setIcon(mp_action->icon());
    setEnabled(mp_action->isEnabled());
    setCheckable(mp_action->isCheckable());
    setChecked(mp_action->isChecked());
}

} // namespace ovk

#include "moc_action_button.cpp"
