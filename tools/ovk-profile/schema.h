#pragma once

#include <QString>

#include <vector>

namespace ovk_profile {

/// The type of a field of a node.
enum class FieldType
{
    Text,
    Flag,
    Number, ///< An integer.
    Texts   ///< An array of texts.
};

struct Field
{
    const char* key;
    FieldType type;
};

/// What a kind of node may hold in a file.
struct NodeType
{
    const char* name;          ///< For the user.
    const char* children;      ///< The key of the array (or object) of children, or null.
    const char* child;         ///< The type of the children; null where it depends on the child.
    bool has_state;            ///< Has "visible", "persistence" and "is_changed_by_user".
    std::vector<Field> fields; ///< Beside "id" and those.
};

/// The type of that name; null if there is none.
const NodeType* FindNodeType(const QString& name);

/// The type of a suite of a layout; null for a name that no suite has.
const NodeType* FindSuiteType(const QString& suite);

/// The fields of every node that can be hidden.
const std::vector<Field>& StateFields();

/// The type of a child of `parent`, which may depend on the child's identifier; null if such a
/// child is not known there.
const NodeType* FindChildType(const NodeType& parent, const QString& id);

} // namespace ovk_profile
