#include "ovk/core/icons_controller.h"

#include "ovk/core/svg_icon_engine_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QIcon>
#include <QString>
#include <QStringList>

namespace ovk {

namespace {

IconsController* g_icons = nullptr;

QIcon Open(const QString& path)
{
    if (path.endsWith(QLatin1String(".svg")))
        return QIcon(std::make_unique<SvgIconEngine>(path).release()); // the icon's
    return QIcon(path);
}

} // namespace

class IconsController::Impl
{
public:
    QHash<QString, QIcon> m_cache;
    QStringList m_paths{QStringLiteral(":/icons/"), QStringLiteral(":/")};
};

IconsController::IconsController() : mp_impl(std::make_unique<Impl>())
{
    g_icons = this;
}

IconsController::~IconsController()
{
    g_icons = nullptr;
}

IconsController& IconsController::GetInstance()
{
    if (!g_icons)
        g_icons = new IconsController; // lives as long as the process: icons outlive no application
    return *g_icons;
}

const QIcon& IconsController::Load(const QString& name)
{
    static const QIcon s_none;
    Impl& impl = *GetInstance().mp_impl;

    const QString key = name.toLower();
    const auto cached = impl.m_cache.constFind(key);
    if (cached != impl.m_cache.constEnd())
        return cached.value();
    for (const QString& path : qAsConst(impl.m_paths)) {
        for (const char* extension : {".svg", ".png"}) {
            const QString candidate = path + name + QLatin1String(extension);
            if (QFile::exists(candidate))
                return impl.m_cache.insert(key, Open(candidate)).value();
        }
    }
    return s_none;
}

void IconsController::AddResourcesPath(const QString& path)
{
    QStringList& paths = GetInstance().mp_impl->m_paths;
    if (!paths.contains(path))
        paths.append(path);
}

void IconsController::UseExternalIcons()
{
    const QFileInfo executable(QCoreApplication::applicationFilePath());
    GetInstance().mp_impl->m_paths.prepend(executable.absolutePath() + QStringLiteral("/icons/"));
}

} // namespace ovk
