#pragma once

#include <QtCore/QString>

class QJsonObject;

namespace ovk {

/// The titles and the user's choice of a ribbon page or group, which follow the same rules.
struct RibbonNodeData
{
    /// The stored title, which is what is shown once it was translated.
    QString title;
    /// The title as the default profile gave it; what is written for a persistent node.
    QString source_title;
    /// The user's choice to have the node.
    bool available = true;

    /// \a availableKey names the user's choice in the file.
    void Write(QJsonObject& json, const QString& availableKey, bool persistent) const;
    void Read(const QJsonObject& json, const QString& availableKey);
    /// A title that the user left as the old default had it follows the new default.
    void Merge(const RibbonNodeData& source, const RibbonNodeData& base);
};

} // namespace ovk
