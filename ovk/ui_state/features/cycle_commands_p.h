#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace ovk {

class UiCommand;
class UpdatableContext;

/// The commands of a layout as the update cycle visits them, looked up once and kept for as long
/// as the look-up would come out the same. What an identifier stands for is asked again in every
/// cycle only where it stood for nothing, and where it is a family, whose members come and go.
class CycleCommands
{
public:
    /// The command behind an identifier; null if there is none.
    using Lookup = std::function<UiCommand*(const QString&)>;
    /// Appends the commands that a family stands for.
    using Family = std::function<void(const QString&, QList<UiCommand*>&)>;

    /// A list without commands that is never current.
    CycleCommands() = default;

    /// Looks all identifiers up. \a generation is what impl::CommandsGeneration() answered before.
    CycleCommands(const QString& layout, const QStringList& ids, quint64 generation,
                  const Lookup& lookup);

    /// Whether this is the list for that layout, those identifiers and that generation.
    bool IsCurrent(const QString& layout, const QStringList& ids, quint64 generation) const;

    /// The identifiers that stood for nothing.
    const QStringList& Unresolved() const { return m_unresolved; }

    /// Whether there is a family among the identifiers.
    bool HasFamilies() const { return !m_families.empty(); }

    /// All commands but those of families, in the order of the identifiers.
    const std::vector<UiCommand*>& Commands() const { return m_commands; }

    /// All commands in the order of the identifiers, families included.
    QList<UiCommand*> WithFamilies(const Family& family) const;

private:
    struct FamilyPlace
    {
        QString id;
        std::size_t before; ///< how many of m_commands come before it
    };

    QString m_layout;
    QStringList m_ids;
    quint64 m_generation = 0;
    std::vector<UiCommand*> m_commands;
    std::vector<FamilyPlace> m_families;
    QStringList m_unresolved;
};

/// Whether the identifier stands for a family of commands that are generated at run time.
bool IsCommandFamily(const QString& id);

} // namespace ovk
