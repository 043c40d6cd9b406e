#pragma once

#include <ovk/commands/ui_command.h>

#include "app/host.h"

namespace tarnix {

/// What a command needs before it can run; each need has the sentence that says so.
enum class Need
{
    Nothing,
    Parts,
    VisibleParts,
    Selection,
    Editable,
    OneSelected,
    OneEditable,
    TwoSelected,
    ExactlyTwo,
    TwoEditable,
    ThreeEditable,
    EditableWithFile,
    Hidden,
    Locked,
    Undo,
    Redo,
    ClipboardParts,
    Placement,
    Section,
    SectionThroughPart,
    Layers,
    LayersShown,
    LayerAbove,
    LayerBelow,
    Hatched,
    Measurements,
    Measuring,
    Findings,
    Recent,
    FormerView
};

/// Whether a need is met.
bool IsMet(Need need, const Facts& facts);
/// The reason, for the tooltip of a disabled command, as source text of the context "tarnix::Need".
QString ReasonOf(Need need);

/// One row of the tables of commands.
struct CommandSpec
{
    const char* id;
    Need need;
    void (*run)(Host&);
    /// For commands that can be on: whether this one is.
    bool (*is_on)(const Host&) = nullptr;
};

/// A part of the tables.
struct CommandTable
{
    const CommandSpec* rows;
    size_t count;

    const CommandSpec* begin() const { return rows; }
    const CommandSpec* end() const { return rows + count; }
};

CommandTable FileCommands();
CommandTable EditCommands();
CommandTable SelectCommands();
CommandTable AddCommands();
CommandTable PlaceCommands();
CommandTable TurnScaleCommands();
CommandTable RepairCommands();
CommandTable InspectCommands();
CommandTable ViewCommands();
CommandTable SliceCommands();
CommandTable WindowCommands();

/// A command by its row.
class HostCommand : public ovk::UiCommand
{
    Q_OBJECT

public:
    HostCommand(const CommandSpec& spec, Host& host);

    /// Source texts; the base tooltip is kept to be joined with the reason when disabled.
    void SetTexts(const QString& title, const QString& tooltip, const QString& status_tip);

protected:
    void _DoExecute() override;
    void _DoUpdateUi(const ovk::UpdatableContext& context) override;

private:
    const CommandSpec& m_spec;
    Host& m_host;
    QString m_tooltip;
};

/// One of the recent files: title and file come and go with the list.
class RecentFileCommand : public ovk::UiCommand
{
    Q_OBJECT

public:
    RecentFileCommand(const QString& id, int index, Host& host);
    /// Takes its file from the list; without one it is not offered.
    void Follow();

protected:
    void _DoExecute() override;
    void _DoUpdateUi(const ovk::UpdatableContext& context) override;

private:
    int m_index;
    Host& m_host;
};

} // namespace tarnix
