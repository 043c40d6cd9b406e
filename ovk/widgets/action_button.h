#pragma once

#include <ovk/core/export.h>

#include <QPointer>
#include <QPushButton>

class QAction;

namespace ovk {

/// A push button that looks like an action and triggers it.
class OVK_EXPORT ActionButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ActionButton(QWidget* parent = nullptr);
    ~ActionButton() override;

    /// Leaves the action held so far, if it is another one, and follows \a action, which is not
    /// owned. The same action given twice is triggered twice by a click. Null only leaves.
    void SetAction(QAction* action);
    /// SetAction().
    void setDefaultAction(QAction* action);

private:
    void _UpdateButtonStatusFromAction();

    QPointer<QAction> mp_action;
};

} // namespace ovk
