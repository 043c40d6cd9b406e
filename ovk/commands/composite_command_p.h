#pragma once

#include "ovk/commands/composite_command.h"
#include "ovk/core/pimpl_basics.h"

#include <QIcon>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QString>

class QAction;
class QToolBar;
class QToolButton;

namespace ovk {

class UiCommand;

class ICompositeCommand::Impl : public PimplBasics<ICompositeCommand>
{
public:
    explicit Impl(ICompositeCommand& owner);
    /// Copies all but the popup.
    Impl(const Impl& other, ICompositeCommand& owner);
    ~Impl() override;

    void DropPopup();

    /// The first item, if it is a command.
    UiCommand* FirstCommand() const;

    /// Gives the button of an action on a tool bar its popup; false if the action has no tool
    /// button there.
    bool SetUpButton(QToolBar& bar, QAction* action, UiSpotCommand* spot, int popupMode);

    QList<IUiItem*> items; // null is a separator
    QString title;
    QIcon icon;
    std::unique_ptr<QMenu> popup;
    mutable QObject lifetime;
};

} // namespace ovk
