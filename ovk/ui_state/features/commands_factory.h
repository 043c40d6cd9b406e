#pragma once

#include <ovk/core/export.h>

#include <QtContainerFwd>

class QString;

namespace ovk {

class UiCommand;

/// A source of commands; the host implements one per module that provides commands. It owns its
/// commands.
///
/// What GetCommand() answers for an identifier may be remembered until a command is created or
/// destroyed, a factory is added or removed, or UiController::InvalidateLayouts() runs: call that
/// when the same commands are to be found under other identifiers.
class OVK_EXPORT ICommandsFactory
{
public:
    /// The command \a id; null if this factory does not know it. \a variant is the host's
    /// business; the library itself always passes 0.
    virtual UiCommand* GetCommand(const QString& id, int variant) = 0;

    /// Called once, when the factory is added, with all identifiers of the active product: create
    /// what this factory owns.
    virtual void CreateCommands(const QSet<QString>& ids) = 0;

    /// Appends to \a out the commands that the family \a id stands for at present; the identifier
    /// of a family begins with "DynamicCommands.". Answers whether the family is this factory's.
    virtual bool ResolveDynamicCommand(const QString& id, QList<UiCommand*>& out) = 0;

    virtual ~ICommandsFactory();

protected:
    ICommandsFactory() = default;
    ICommandsFactory(const ICommandsFactory&) = default;
    ICommandsFactory& operator=(const ICommandsFactory&) = default;
};

} // namespace ovk
