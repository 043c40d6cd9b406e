#pragma once

#include "file.h"
#include "schema.h"

#include <QJsonValue>
#include <QMap>

#include <functional>
#include <vector>

namespace ovk_profile {

/// A node of a file: its type, its identifier, its fields as they stand there, and its children.
struct Node
{
    const NodeType* type = nullptr; ///< Null for a node that the schema does not know.
    QString id;
    QString place;                    ///< Its JSON path: "$.profile.layouts[0]".
    QJsonObject object;               ///< All of the node as it stands in the file.
    QMap<QString, QJsonValue> fields; ///< All keys but "id" and the children.
    std::vector<Node> children;
};

/// A place of a file that is not as it should be, as seen while its nodes are made.
struct Problem
{
    enum Severity
    {
        Warning,
        Error
    };

    Severity severity = Warning;
    QString path;              ///< By identifiers: "profile/Model/ribbon".
    QString message;           ///< What is wrong, and what comes of it or what to do.
    QString place = QString(); ///< The JSON path.
};

using Report = std::function<void(const Problem&)>;

/// The tree of a file: for a profile the profile, for a catalogue a root with its two halves. What
/// has the wrong shape for a tree is told to `report` and left out.
Node TreeOf(const File& file, const Report& report);

/// The tree of a profile's base; a node without children if there is none.
Node BaseOf(const File& file, const Report& report);

/// The JSON path of what has that key, or stands at that position, in what has the path `place`.
QString PlaceIn(const QString& place, const QString& key);
QString PlaceIn(const QString& place, int position);

/// A node and all below it as JSON: its type, identifier, place, fields and children.
QJsonObject ToJson(const Node& node);

/// The name of a node among its siblings, for a path: its identifier, or its position.
QString NameOf(const Node& node, int position);

} // namespace ovk_profile
