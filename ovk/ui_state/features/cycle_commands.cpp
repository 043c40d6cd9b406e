#include "cycle_commands_p.h"

#include <QList>

namespace ovk {

bool IsCommandFamily(const QString& id)
{
    return id.startsWith(QLatin1String("DynamicCommands."));
}

CycleCommands::CycleCommands(const QString& layout, const QStringList& ids, quint64 generation,
                             const Lookup& lookup)
    : m_layout(layout), m_ids(ids), m_generation(generation)
{
    m_commands.reserve(static_cast<std::size_t>(ids.size()));
    for (const QString& id : ids) {
        if (IsCommandFamily(id))
            m_families.push_back({id, m_commands.size()});
        else if (UiCommand* const command = lookup(id))
            m_commands.push_back(command);
        else
            m_unresolved.append(id);
    }
}

bool CycleCommands::IsCurrent(const QString& layout, const QStringList& ids,
                              quint64 generation) const
{
    // The lists share their data as long as nobody changed one, so comparing them costs nothing.
    return m_generation == generation && m_ids == ids && m_layout == layout;
}

QList<UiCommand*> CycleCommands::WithFamilies(const Family& family) const
{
    QList<UiCommand*> all;
    all.reserve(static_cast<int>(m_commands.size()));
    std::size_t next = 0;
    for (const FamilyPlace& place : m_families) {
        for (; next < place.before; ++next)
            all.append(m_commands[next]);
        family(place.id, all);
    }
    for (; next < m_commands.size(); ++next)
        all.append(m_commands[next]);
    return all;
}

} // namespace ovk
