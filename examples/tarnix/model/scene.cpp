#include "model/scene.h"

#include <set>
#include <stdexcept>

namespace tarnix {

Box Plate::Bounds() const
{
    Box box;
    box.Add(Vec3{-width / 2.0, -depth / 2.0, 0.0});
    box.Add(Vec3{width / 2.0, depth / 2.0, height});
    return box;
}

Scene::Scene(QObject* parent) : QObject(parent) {}

const Part* Scene::Find(int id) const
{
    for (const Part& part : m_parts) {
        if (part.id == id)
            return &part;
    }
    return nullptr;
}

void Scene::SetPlate(const Plate& plate)
{
    m_plate = plate;
    Q_EMIT PlateChanged();
}

bool Scene::Edit(const Phrase& title, const std::function<bool(PartList&)>& change)
{
    PartList parts = m_parts;
    if (!change(parts))
        return false;
    parts.swap(m_parts);
    GiveIds();
    m_merge_key = 0;
    Push(title, std::move(parts));
    return true;
}

bool Scene::EditSelected(const Phrase& title, const std::function<void(Part&)>& change)
{
    return Edit(title, [&change](PartList& parts) {
        bool any = false;
        for (Part& part : parts) {
            if (!part.selected || part.locked)
                continue;
            change(part);
            any = true;
        }
        return any;
    });
}

bool Scene::EditSelectedMerged(const Phrase& title, int merge_key,
                               const std::function<void(Part&)>& change)
{
    const bool joins = merge_key != 0 && merge_key == m_merge_key && !m_undo.empty() &&
                       m_undo.back().title == title && m_redo.empty();
    if (!joins) {
        const bool done = EditSelected(title, change);
        m_merge_key = done ? merge_key : 0;
        return done;
    }
    for (Part& part : m_parts) {
        if (part.selected && !part.locked)
            change(part);
    }
    Touched();
    return true;
}

void Scene::Add(const Phrase& title, PartList parts)
{
    if (parts.empty())
        return;
    Edit(title, [&parts](PartList& all) {
        for (Part& part : all)
            part.selected = false;
        for (Part& part : parts) {
            part.id = 0;
            part.selected = true;
            part.visible = true;
            all.push_back(std::move(part));
        }
        return true;
    });
}

void Scene::DeleteSelected(const Phrase& title)
{
    Edit(title, [](PartList& parts) {
        const auto gone = std::remove_if(parts.begin(), parts.end(), [](const Part& part) {
            return part.selected && !part.locked;
        });
        const bool any = gone != parts.end();
        parts.erase(gone, parts.end());
        return any;
    });
}

void Scene::Reset(PartList parts)
{
    m_parts = std::move(parts);
    for (Part& part : m_parts)
        part.id = 0;
    GiveIds();
    m_undo.clear();
    m_redo.clear();
    m_notes.clear();
    m_merge_key = 0;
    m_modified = false;
    Q_EMIT NoteChanged(-1);
    Q_EMIT PartsChanged();
    Q_EMIT SelectionChanged();
    Q_EMIT HistoryChanged();
}

void Scene::Select(const std::function<bool(const Part&)>& wanted)
{
    bool changed = false;
    for (Part& part : m_parts) {
        const bool selected = wanted(part);
        changed = changed || selected != part.selected;
        part.selected = selected;
    }
    m_merge_key = 0;
    if (changed)
        Q_EMIT SelectionChanged();
}

void Scene::SelectOnly(int id)
{
    Select([id](const Part& part) { return part.id == id; });
}

void Scene::ToggleSelected(int id)
{
    Select([id](const Part& part) { return part.id == id ? !part.selected : part.selected; });
}

void Scene::SelectNext(int direction)
{
    std::vector<int> visible;
    int current = -1;
    for (const Part& part : m_parts) {
        if (!part.visible)
            continue;
        if (part.selected && current < 0)
            current = static_cast<int>(visible.size());
        visible.push_back(part.id);
    }
    if (visible.empty())
        return;
    const int count = static_cast<int>(visible.size());
    const int next =
        current < 0 ? (direction > 0 ? 0 : count - 1) : (current + direction + count) % count;
    SelectOnly(visible[static_cast<size_t>(next)]);
}

void Scene::SetVisible(const std::function<bool(const Part&)>& wanted)
{
    bool selection = false;
    for (Part& part : m_parts) {
        part.visible = wanted(part);
        // What cannot be seen is not edited by mistake.
        selection = selection || (part.selected && !part.visible);
        part.selected = part.selected && part.visible;
    }
    Q_EMIT PartsChanged();
    if (selection)
        Q_EMIT SelectionChanged();
}

void Scene::SetLocked(const std::function<bool(const Part&)>& wanted)
{
    for (Part& part : m_parts)
        part.locked = wanted(part);
    Q_EMIT PartsChanged();
}

void Scene::Rename(int id, const QString& name)
{
    const Part* part = Find(id);
    const QString text = name.simplified();
    if (!part || text.isEmpty() || part->name == text)
        return;
    Edit(Phrase("tarnix::Scene", QT_TR_NOOP("Rename")), [&](PartList& parts) {
        for (Part& entry : parts) {
            if (entry.id == id)
                entry.name = text;
        }
        return true;
    });
}

QString Scene::Note(int id) const
{
    const auto note = m_notes.find(id);
    return note == m_notes.end() ? QString() : note->second;
}

void Scene::SetNote(int id, const QString& text)
{
    if (text == Note(id))
        return;
    if (text.isEmpty())
        m_notes.erase(id);
    else
        m_notes[id] = text;
    Q_EMIT NoteChanged(id);
    if (!m_modified) {
        m_modified = true;
        Q_EMIT HistoryChanged();
    }
}

int Scene::SelectedCount() const
{
    return static_cast<int>(std::count_if(m_parts.begin(), m_parts.end(),
                                          [](const Part& part) { return part.selected; }));
}

std::vector<const Part*> Scene::Selected() const
{
    std::vector<const Part*> result;
    for (const Part& part : m_parts) {
        if (part.selected)
            result.push_back(&part);
    }
    return result;
}

bool Scene::HasEditableSelection() const
{
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [](const Part& part) { return part.selected && !part.locked; });
}

Box Scene::Bounds(bool selected_only) const
{
    Box box;
    for (const Part& part : m_parts) {
        if (part.visible && (part.selected || !selected_only))
            box.Add(part.Bounds());
    }
    return box;
}

QStringList Scene::UndoTitles() const
{
    QStringList titles;
    for (const Step& step : m_undo)
        titles.append(step.title.Text());
    return titles;
}

QStringList Scene::RedoTitles() const
{
    QStringList titles;
    for (auto step = m_redo.rbegin(); step != m_redo.rend(); ++step)
        titles.append(step->title.Text());
    return titles;
}

void Scene::Undo(int steps)
{
    Walk(m_undo, m_redo, steps);
}

void Scene::Redo(int steps)
{
    Walk(m_redo, m_undo, steps);
}

void Scene::SetSaved()
{
    m_modified = false;
    Q_EMIT HistoryChanged();
}

void Scene::SetMostSteps(size_t steps)
{
    m_most_steps = std::max<size_t>(steps, 1);
    if (m_undo.size() <= m_most_steps)
        return;
    m_undo.erase(m_undo.begin(), m_undo.end() - std::ptrdiff_t(m_most_steps));
    Q_EMIT HistoryChanged();
}

void Scene::CheckConsistency() const
{
    std::set<int> ids;
    for (const Part& part : m_parts) {
        if (part.id <= 0 || part.id >= m_next_id || !ids.insert(part.id).second)
            throw std::logic_error("a part has no id of its own");
        if (!part.GetMesh() || part.GetMesh()->IsEmpty())
            throw std::logic_error("a part has no mesh");
    }
    if (m_undo.size() > m_most_steps)
        throw std::logic_error("too many undo steps");
}

void Scene::Push(const Phrase& title, PartList before)
{
    m_undo.push_back({title, std::move(before)});
    if (m_undo.size() > m_most_steps)
        m_undo.erase(m_undo.begin());
    m_redo.clear();
    Touched();
}

void Scene::GiveIds()
{
    for (Part& part : m_parts) {
        if (part.id == 0)
            part.id = m_next_id++;
    }
}

void Scene::Touched()
{
    m_modified = true;
    Q_EMIT PartsChanged();
    Q_EMIT SelectionChanged();
    Q_EMIT HistoryChanged();
}

void Scene::Walk(std::vector<Step>& from, std::vector<Step>& to, int steps)
{
    bool moved = false;
    for (; steps > 0 && !from.empty(); --steps) {
        Step step = std::move(from.back());
        from.pop_back();
        step.parts.swap(m_parts);
        to.push_back(std::move(step));
        moved = true;
    }
    m_merge_key = 0;
    if (moved)
        Touched();
}

} // namespace tarnix

#include "moc_scene.cpp"
