#pragma once

#include <ovk/core/export.h>

#include <memory>

class QIcon;
class QString;

namespace ovk {

/// The one place from which icons are loaded, by name, from a list of search paths.
class OVK_EXPORT IconsController
{
public:
    IconsController(const IconsController&) = delete;
    IconsController& operator=(const IconsController&) = delete;

    /// The one object; made on demand.
    static IconsController& GetInstance();

    /// The icon \a name, which bears no extension: the first file of the search paths that exists,
    /// ".svg" before ".png". What was found once is kept, whatever the case of \a name later. An
    /// empty icon if there is none. The reference is valid until the next call.
    static const QIcon& Load(const QString& name);
    /// Appends \a path, which must end in a separator, unless it is on the list already.
    static void AddResourcesPath(const QString& path);
    /// Puts the folder "icons" beside the executable in front of all search paths. Icons that were
    /// loaded before keep their form.
    static void UseExternalIcons();

private:
    IconsController();
    ~IconsController();

    class Impl;
    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
