#include "tool.h"

#include "check_rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QSet>

namespace ovk_profile {
namespace {

/// What a catalogue and some profiles say of one command.
struct Entry
{
    QString id;
    QString title;
    bool visual = true;
    QStringList offered; ///< "Product/Layout", in the order of the file.
    int places = 0;      ///< How often the profiles name it.
};

QString Title(const Node& node)
{
    return node.fields.value(QStringLiteral("title")).toString();
}

std::vector<Entry> EntriesOf(const Node& catalogue, const QString& product)
{
    std::vector<Entry> entries;
    QMap<QString, std::size_t> by_id;
    for (const Node& half : catalogue.children) {
        if (half.id != QLatin1String("commands"))
            continue;
        for (const Node& command : half.children) {
            if (by_id.contains(command.id))
                continue;
            by_id.insert(command.id, entries.size());
            Entry entry;
            entry.id = command.id;
            entry.title = Title(command);
            entry.visual = command.fields.value(QStringLiteral("visual")).toBool(true);
            entries.push_back(entry);
        }
    }
    for (const Node& half : catalogue.children) {
        if (half.id != QLatin1String("products"))
            continue;
        for (const Node& node : half.children) {
            if (!product.isEmpty() && node.id != product)
                continue;
            for (const Node& layout : node.children) {
                const QJsonArray ids = layout.fields.value(QStringLiteral("command_ids")).toArray();
                for (int i = 0; i < ids.size(); ++i) {
                    const auto found = by_id.constFind(ids.at(i).toString());
                    if (found != by_id.constEnd())
                        entries[*found].offered << QStringLiteral("%1/%2").arg(node.id, layout.id);
                }
            }
            // Functions are commands that no site shows: the product has them in every layout.
            const QJsonArray functions = node.fields.value(QStringLiteral("functions"))
                                             .toObject()
                                             .value(QStringLiteral("function_ids"))
                                             .toArray();
            for (int i = 0; i < functions.size(); ++i) {
                const auto found = by_id.constFind(functions.at(i).toString());
                if (found != by_id.constEnd())
                    entries[*found].offered << node.id;
            }
        }
    }
    return entries;
}

void CountPlaces(const Node& node, QMap<QString, int>& places)
{
    const QLatin1String type(node.type ? node.type->name : "");
    if (type == QLatin1String("spot") || type == QLatin1String("binding"))
        ++places[node.id];
    if (type == QLatin1String("composite")) {
        const QJsonArray items = node.fields.value(QStringLiteral("items")).toArray();
        for (int i = 0; i < items.size(); ++i)
            ++places[items.at(i).toString()];
    }
    for (const Node& child : node.children)
        CountPlaces(child, places);
}

/// A command that no layout and no product offers, or that a site could show and no profile does.
bool IsUnused(const Entry& entry, bool has_profiles)
{
    return entry.offered.isEmpty() || (has_profiles && entry.visual && entry.places == 0);
}

QJsonObject ToJson(const Entry& entry, bool has_profiles)
{
    QJsonObject object{{QStringLiteral("id"), entry.id},
                       {QStringLiteral("title"), entry.title},
                       {QStringLiteral("visual"), entry.visual},
                       {QStringLiteral("offered"), QJsonArray::fromStringList(entry.offered)},
                       {QStringLiteral("unused"), IsUnused(entry, has_profiles)}};
    if (has_profiles)
        object.insert(QStringLiteral("places"), entry.places);
    return object;
}

void Print(const Entry& entry, bool has_profiles, QTextStream& out)
{
    out << entry.id << "  \"" << entry.title << '"';
    if (!entry.visual)
        out << "  not visual";
    out << "  "
        << (entry.offered.isEmpty() ? QStringLiteral("offered nowhere")
                                    : entry.offered.join(QStringLiteral(", ")));
    if (has_profiles && entry.visual)
        out << "  " << entry.places << (entry.places == 1 ? " place" : " places");
    out << '\n';
}

} // namespace

int Catalogue(const QString& path, const QStringList& profiles, const CatalogueOptions& options,
              QTextStream& out)
{
    const File file = ReadFile(path);
    if (file.kind != Kind::Catalogue) {
        throw FileError{
            QStringLiteral("%1: $: not a catalogue; give a file with \"commands\" and \"products\"")
                .arg(path)};
    }
    if (!options.product.isEmpty())
        OfferOf(file, options.product); // throws if there is none of that name
    const auto silent = [](const Problem&) {};
    std::vector<Entry> entries = EntriesOf(TreeOf(file, silent), options.product);
    QMap<QString, int> places;
    for (const QString& profile : profiles)
        CountPlaces(TreeOf(ReadProfile(profile), silent), places);

    const bool has_profiles = !profiles.isEmpty();
    int unused = 0;
    QJsonArray commands;
    for (Entry& entry : entries) {
        entry.places = places.value(entry.id);
        const bool is_unused = IsUnused(entry, has_profiles);
        unused += is_unused ? 1 : 0;
        if (options.unused && !is_unused)
            continue;
        if (options.json)
            commands.append(ToJson(entry, has_profiles));
        else
            Print(entry, has_profiles, out);
    }
    if (options.json) {
        out << QJsonDocument(QJsonObject{{QStringLiteral("commands"), commands},
                                         {QStringLiteral("count"), int(entries.size())},
                                         {QStringLiteral("unused"), unused}})
                   .toJson();
    } else {
        out << entries.size() << (entries.size() == 1 ? " command, " : " commands, ") << unused
            << " unused\n";
    }
    return options.unused && unused > 0 ? Found : Fine;
}

} // namespace ovk_profile
