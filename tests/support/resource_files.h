#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace ovk_test {

/// Files of the test's own in the resource system, for as long as this lives: whatever the library
/// reads from ":/...", a test can put there with the bytes it likes, broken ones included.
///
///     ResourceFiles files({{"features.definition.default.json", "{}"}});
///
/// Several may live at once as long as no two hold the same path.
class ResourceFiles
{
public:
    /// Path below ":/", with "/" between folders, and content.
    using Files = QMap<QString, QByteArray>;

    explicit ResourceFiles(const Files& files);
    ~ResourceFiles();
    ResourceFiles(const ResourceFiles&) = delete;
    ResourceFiles& operator=(const ResourceFiles&) = delete;

private:
    QByteArray m_image;
};

} // namespace ovk_test
