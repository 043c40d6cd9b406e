#pragma once

#include <ovk/customize/site_tree_model_p.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace ovk_test {

/// A site as plain nested lists, with the drop rules written down a second time in the simplest
/// words: which node, before which other. Nothing here knows of models, rows or indexes.
struct RefNode
{
    const void* id = nullptr; ///< the live node; null for one that a drop made
    QString name;
    ovk::NodeKind kind = ovk::NodeKind::None;
    bool offered = true;  ///< resolves in this product
    bool command = false; ///< a spot with a command
    bool fixed = false;
    bool menu_type = false; ///< of two kinds of composites
    QList<RefNode> children;
};

/// What is dragged: commands by their names, or nodes by their live pointers, in the tree's order.
struct RefDrag
{
    bool is_commands = false;
    QStringList commands;
    QList<const void*> nodes;
};

class ReferenceSite
{
public:
    /// Takes the tree below `root` down.
    ReferenceSite(const ovk::ITreeItem& root, int max_items);

    /// Whether the rules let `drag` be dropped on the node at `row` of what is shown of it.
    bool MayDrop(const RefDrag& drag, const void* target, int row,
                 const ReferenceSite* source) const;
    /// Carries the drop out on the lists. `source` holds the dragged nodes: this one or, for
    /// composites, another.
    void Drop(const RefDrag& drag, const void* target, int row, const ReferenceSite* source);

    const RefNode* Find(const void* id) const;
    /// One line a node: depth, kind and name. Two sites with equal lines are equal.
    QStringList Lines() const;

private:
    static RefNode Take(const ovk::ITreeItem& node);
    static RefNode* FindIn(RefNode& node, const void* id);
    static const RefNode* FindIn(const RefNode& node, const void* id);
    static const RefNode* ParentIn(const RefNode& node, const void* id);
    const RefNode* ParentOf(const void* id) const;
    static QList<const RefNode*> Shown(const RefNode& node);
    bool Holds(const RefNode& container, const QString& command) const;
    bool HasRoom(const RefNode& container, int more) const;
    void Move(const QList<const void*>& nodes, const void* container, int row, bool unique);
    void Insert(const QStringList& commands, const void* container, int row, ovk::NodeKind kind);
    /// The live pointer of the node that is shown at a row, null for the end.
    static const void* Anchor(const RefNode& container, int row, const QList<const void*>& without);

    RefNode m_root;
    int m_max_items;
};

} // namespace ovk_test
