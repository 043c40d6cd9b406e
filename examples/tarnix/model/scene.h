#pragma once

#include "model/part.h"
#include "model/phrase.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

namespace tarnix {

/// The build volume in millimetres; the plate is its floor, with the origin at its middle.
struct Plate
{
    double width = 250.0;
    double depth = 210.0;
    double height = 220.0;

    Box Bounds() const;
};

/// Everything that one undo step restores.
using PartList = std::vector<Part>;

/// The parts on the plate, with selection, undo and redo. A change is made by Edit(), which
/// keeps the former parts; meshes are shared, so a step costs next to nothing.
class Scene : public QObject
{
    Q_OBJECT

public:
    explicit Scene(QObject* parent = nullptr);

    const PartList& Parts() const { return m_parts; }
    int Count() const { return static_cast<int>(m_parts.size()); }
    const Part* Find(int id) const;

    const Plate& GetPlate() const { return m_plate; }
    void SetPlate(const Plate& plate);

    /// Runs `change` on the parts as one undo step with a title for the user. Parts without an
    /// id get one. When the change returns false, nothing has happened.
    bool Edit(const Phrase& title, const std::function<bool(PartList&)>& change);
    /// Runs `change` on each selected part that is not locked. False when there is none.
    bool EditSelected(const Phrase& title, const std::function<void(Part&)>& change);
    /// As EditSelected, joined to the last step while it has the same title and `merge_key` and
    /// nothing else came in between: a drag or a burst of arrow keys is one step.
    bool EditSelectedMerged(const Phrase& title, int merge_key,
                            const std::function<void(Part&)>& change);
    /// Ends merging: the next merged edit is a step of its own.
    void EndMerge() { m_merge_key = 0; }

    /// Adds parts and selects them alone.
    void Add(const Phrase& title, PartList parts);
    /// Deletes the selected parts that are not locked.
    void DeleteSelected(const Phrase& title);
    /// Takes everything away, history too. For a new or loaded build.
    void Reset(PartList parts);

    // Selection and visibility are not undo steps.
    void Select(const std::function<bool(const Part&)>& wanted);
    void SelectOnly(int id);
    void ToggleSelected(int id);
    /// Selects the visible part after (or before) the first selected one.
    void SelectNext(int direction);
    void SetVisible(const std::function<bool(const Part&)>& wanted);
    void SetLocked(const std::function<bool(const Part&)>& wanted);
    void Rename(int id, const QString& name);

    /// What the user wrote about a part; with 0 instead of an id, about the whole build. No undo
    /// step: a text has its own. It comes back with a part whose deletion is undone.
    QString Note(int id) const;
    void SetNote(int id, const QString& text);

    int SelectedCount() const;
    std::vector<const Part*> Selected() const;
    bool HasEditableSelection() const;
    /// The box of all parts, or of the selected ones.
    Box Bounds(bool selected_only = false) const;

    bool CanUndo() const { return !m_undo.empty(); }
    bool CanRedo() const { return !m_redo.empty(); }
    QString UndoTitle() const { return m_undo.empty() ? QString() : m_undo.back().title.Text(); }
    QString RedoTitle() const { return m_redo.empty() ? QString() : m_redo.back().title.Text(); }
    /// Titles of the steps that can be undone, the oldest first, and of those to redo, next first.
    QStringList UndoTitles() const;
    QStringList RedoTitles() const;
    void Undo(int steps = 1);
    void Redo(int steps = 1);

    /// Whether anything changed since SetSaved().
    bool IsModified() const { return m_modified; }
    void SetSaved();
    /// How many steps can be undone; older ones are forgotten.
    void SetMostSteps(size_t steps);

    /// Throws when ids are double or zero or a part has no mesh; for tests.
    void CheckConsistency() const;

Q_SIGNALS:
    /// Parts, placements, names or visibility changed.
    void PartsChanged();
    void SelectionChanged();
    void PlateChanged();
    /// A note was written, or all were read anew (-1).
    void NoteChanged(int id);
    /// Undo, redo or saved state changed.
    void HistoryChanged();

private:
    struct Step
    {
        Phrase title;
        PartList parts;
    };


    void Push(const Phrase& title, PartList before);
    void GiveIds();
    void Touched();
    void Walk(std::vector<Step>& from, std::vector<Step>& to, int steps);

    PartList m_parts;
    std::map<int, QString> m_notes;
    Plate m_plate;
    std::vector<Step> m_undo;
    std::vector<Step> m_redo;
    size_t m_most_steps = 200;
    int m_next_id = 1;
    int m_merge_key = 0;
    bool m_modified = false;
};

} // namespace tarnix
