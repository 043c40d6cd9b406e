#include "tests/customize/reference_site.h"

#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composite.h>
#include <ovk/ui_state/ui_state_menu.h>

using namespace ovk;

namespace ovk_test {

namespace {

bool IsContainer(NodeKind kind)
{
    return kind == NodeKind::Group || kind == NodeKind::QuickAccessBar ||
           kind == NodeKind::Toolbar || kind == NodeKind::Menu;
}

void AddLines(const RefNode& node, int depth, QStringList& lines)
{
    lines.append(QStringLiteral("%1 %2 %3").arg(depth).arg(int(node.kind)).arg(node.name));
    for (const RefNode& child : node.children)
        AddLines(child, depth + 1, lines);
}

} // namespace

ReferenceSite::ReferenceSite(const ITreeItem& root, int max_items)
    : m_root(Take(root)), m_max_items(max_items)
{
}

RefNode ReferenceSite::Take(const ITreeItem& node)
{
    auto* item = const_cast<ITreeItem*>(&node);
    RefNode taken;
    taken.id = &node;
    taken.kind = SiteTreeModel::KindOf(item);
    if (const auto* named = dynamic_cast<const UiProfileItem*>(&node))
        taken.name = named->GetName();
    if (const auto* spot = dynamic_cast<UiSpotCommand*>(item)) {
        taken.command = true;
        taken.offered = spot->GetUiItem();
    }
    if (const auto* composite_item = dynamic_cast<UiStateCompositeItem*>(item))
        taken.offered = composite_item->GetUiItem();
    if (const auto* state = dynamic_cast<const UiStateItem*>(&node))
        taken.fixed = !state->IsDeleteable();
    taken.menu_type = dynamic_cast<UiStateCompositeMenu*>(item);
    for (int i = 0; i < item->GetChildCount(); ++i)
        taken.children.append(Take(*item->GetChild(i)));
    return taken;
}

RefNode* ReferenceSite::FindIn(RefNode& node, const void* id)
{
    if (id && node.id == id)
        return &node;
    for (RefNode& child : node.children) {
        if (RefNode* found = FindIn(child, id))
            return found;
    }
    return nullptr;
}

const RefNode* ReferenceSite::FindIn(const RefNode& node, const void* id)
{
    if (id && node.id == id)
        return &node;
    for (const RefNode& child : node.children) {
        if (const RefNode* found = FindIn(child, id))
            return found;
    }
    return nullptr;
}

const RefNode* ReferenceSite::Find(const void* id) const
{
    return FindIn(m_root, id);
}

const RefNode* ReferenceSite::ParentIn(const RefNode& node, const void* id)
{
    for (const RefNode& child : node.children) {
        if (child.id == id)
            return &node;
        if (const RefNode* found = ParentIn(child, id))
            return found;
    }
    return nullptr;
}

const RefNode* ReferenceSite::ParentOf(const void* id) const
{
    return ParentIn(m_root, id);
}

QList<const RefNode*> ReferenceSite::Shown(const RefNode& node)
{
    QList<const RefNode*> shown;
    for (const RefNode& child : node.children) {
        if (child.offered)
            shown.append(&child);
    }
    return shown;
}

QStringList ReferenceSite::Lines() const
{
    QStringList lines;
    AddLines(m_root, 0, lines);
    return lines;
}

bool ReferenceSite::Holds(const RefNode& container, const QString& command) const
{
    for (const RefNode* child : Shown(container)) {
        if ((child->command || child->kind == NodeKind::CompositeItem) && child->name == command)
            return true;
    }
    return false;
}

bool ReferenceSite::HasRoom(const RefNode& container, int more) const
{
    const bool locked = container.fixed && container.kind != NodeKind::Menu;
    return !locked && container.children.size() + more <= m_max_items;
}

bool ReferenceSite::MayDrop(const RefDrag& drag, const void* target_id, int,
                            const ReferenceSite* source) const
{
    const RefNode& target = *Find(target_id);
    const bool on_spot = target.kind == NodeKind::Spot;
    const RefNode* parent = ParentOf(target_id);
    const RefNode& container = on_spot ? *parent : target;
    const bool composites = m_root.kind == NodeKind::Composites;
    if (drag.is_commands) {
        const int count = drag.commands.size();
        if (composites) {
            const RefNode* composite = target.kind == NodeKind::CompositeItem ? parent : &target;
            return composite->kind == NodeKind::Composite &&
                   composite->children.size() + count <= m_max_items;
        }
        return IsContainer(container.kind) && HasRoom(container, count);
    }
    if (drag.nodes.isEmpty())
        return false;
    const RefNode& first = *source->Find(drag.nodes.first());
    if (composites) {
        if (source != this || drag.nodes.first() == target_id)
            return false;
        if (first.kind == NodeKind::Composite)
            return target.kind == NodeKind::Composite;
        const RefNode* composite = target.kind == NodeKind::CompositeItem ? parent : &target;
        if (composite->kind != NodeKind::Composite)
            return false;
        int count = composite->children.size();
        for (const void* node : drag.nodes) {
            if (ParentOf(node) == composite) {
                --count;
                break;
            }
        }
        return count < m_max_items;
    }
    int arriving = 0;
    for (const void* id : drag.nodes) {
        const RefNode& node = *source->Find(id);
        const bool spots = first.kind == NodeKind::Spot && node.kind == NodeKind::Spot;
        if (!spots && (node.kind != first.kind || node.menu_type != first.menu_type))
            return false;
        const RefNode* from = source->ParentOf(id);
        if (m_root.kind == NodeKind::Ribbon && node.fixed && node.kind != NodeKind::Page &&
            from != &target && from != parent)
            return false;
        arriving += from == &container ? 0 : 1;
    }
    const bool on_itself = drag.nodes.contains(target_id);
    if (first.kind == NodeKind::Composite)
        return m_root.kind != NodeKind::Menus && IsContainer(container.kind) &&
               HasRoom(container, 1);
    if (source != this)
        return false;
    switch (first.kind) {
    case NodeKind::Page:
        return target.kind == NodeKind::Ribbon || (target.kind == NodeKind::Page && !on_itself);
    case NodeKind::Group:
        return target.kind == NodeKind::Page ||
               (target.kind == NodeKind::Group && !on_itself && !target.fixed);
    case NodeKind::Toolbar:
        return target.kind == NodeKind::Toolbars ||
               (target.kind == NodeKind::Toolbar && !on_itself);
    case NodeKind::Spot:
        return IsContainer(container.kind) && !on_itself && HasRoom(container, arriving);
    default:
        return false;
    }
}

const void* ReferenceSite::Anchor(const RefNode& container, int row,
                                  const QList<const void*>& without)
{
    const QList<const RefNode*> shown = Shown(container);
    if (row < 0)
        return nullptr;
    for (; row < shown.size(); ++row) {
        if (!without.contains(shown.at(row)->id))
            return shown.at(row)->id;
    }
    return nullptr;
}

void ReferenceSite::Move(const QList<const void*>& nodes, const void* container_id, int row,
                         bool unique)
{
    QList<const void*> moving;
    QStringList arriving;
    for (int i = nodes.size() - 1; i >= 0; --i) {
        const RefNode& node = *Find(nodes.at(i));
        const RefNode& container = *Find(container_id);
        if (unique && node.command && ParentOf(node.id) != &container) {
            if (Holds(container, node.name) || arriving.contains(node.name))
                continue;
            arriving.append(node.name);
        }
        moving.prepend(node.id);
    }
    const void* anchor = Anchor(*Find(container_id), row, moving);
    QList<RefNode> block;
    for (const void* id : moving) {
        RefNode* from = FindIn(m_root, ParentOf(id)->id);
        for (int i = 0; i < from->children.size(); ++i) {
            if (from->children.at(i).id == id) {
                block.append(from->children.takeAt(i));
                break;
            }
        }
    }
    RefNode& container = *FindIn(m_root, container_id);
    int at = container.children.size();
    for (int i = 0; anchor && i < container.children.size(); ++i) {
        if (container.children.at(i).id == anchor)
            at = i;
    }
    for (int i = block.size() - 1; i >= 0; --i)
        container.children.insert(at, block.at(i));
}

void ReferenceSite::Insert(const QStringList& commands, const void* container_id, int row,
                           NodeKind kind)
{
    RefNode& container = *FindIn(m_root, container_id);
    QStringList wanted;
    for (const QString& command : commands) {
        if (!Holds(container, command) && !wanted.contains(command))
            wanted.prepend(command);
    }
    const void* anchor = Anchor(container, row, {});
    int at = container.children.size();
    for (int i = 0; anchor && i < container.children.size(); ++i) {
        if (container.children.at(i).id == anchor)
            at = i;
    }
    for (const QString& command : wanted) {
        RefNode node;
        node.name = command;
        node.kind = kind;
        node.command = kind == NodeKind::Spot;
        container.children.insert(at++, node);
    }
}

void ReferenceSite::Drop(const RefDrag& drag, const void* target_id, int row,
                         const ReferenceSite* source)
{
    const RefNode& target = *Find(target_id);
    const RefNode* parent = ParentOf(target_id);
    const int behind = parent ? [&] {
        const QList<const RefNode*> shown = Shown(*parent);
        return shown.indexOf(Find(target_id)) + 1;
    }() : -1;
    const bool on_child = target.kind == NodeKind::Spot || target.kind == NodeKind::CompositeItem;
    const void* container = on_child ? parent->id : target_id;
    const int at = on_child ? behind : row;
    if (drag.is_commands) {
        Insert(drag.commands, container, at,
               m_root.kind == NodeKind::Composites ? NodeKind::CompositeItem : NodeKind::Spot);
        return;
    }
    const RefNode first = *source->Find(drag.nodes.first());
    if (first.kind == NodeKind::CompositeItem) {
        // Its row counts after it was taken out.
        const RefNode& composite = *Find(container);
        const bool same = ParentOf(first.id) == &composite;
        if (!same && Holds(composite, first.name))
            return;
        QList<const RefNode*> rest = Shown(composite);
        const int own = rest.indexOf(Find(first.id));
        rest.removeAll(Find(first.id));
        if (same && (at == own || (own == rest.size() && (at < 0 || at > rest.size()))))
            return;
        const void* anchor = at >= 0 && at < rest.size() ? rest.at(at)->id : nullptr;
        const int anchor_row = anchor ? Shown(composite).indexOf(Find(anchor)) : -1;
        Move({first.id}, container, anchor_row, false);
        return;
    }
    if (first.kind == NodeKind::Composite && m_root.kind == NodeKind::Composites) {
        QList<RefNode>& list = m_root.children;
        int a = -1;
        int b = -1;
        for (int i = 0; i < list.size(); ++i) {
            a = list.at(i).id == first.id ? i : a;
            b = list.at(i).id == target_id ? i : b;
        }
        std::swap(list[a], list[b]);
        return;
    }
    if (first.kind == NodeKind::Composite) {
        Insert({first.name}, container, at, NodeKind::Spot);
        return;
    }
    if (first.kind == target.kind && first.kind != NodeKind::Spot) {
        Move(drag.nodes, parent->id, behind, false); // a page on a page, and the like
        return;
    }
    Move(drag.nodes, container, at, first.kind == NodeKind::Spot);
}

} // namespace ovk_test
