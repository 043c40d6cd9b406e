#include "check_rules.h"

#include "ovk/core/version_info.h"

#include <QJsonArray>
#include <QKeySequence>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace ovk_profile {
namespace {

bool Is(const Node& node, const char* type)
{
    return node.type && QLatin1String(node.type->name) == QLatin1String(type);
}

QStringList TextsOf(const QJsonValue& value)
{
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i)
        texts << array.at(i).toString();
    return texts;
}

bool HasType(const QJsonValue& value, FieldType type)
{
    switch (type) {
    case FieldType::Text:
        return value.isString();
    case FieldType::Flag:
        return value.isBool();
    case FieldType::Number:
        return value.isDouble() && std::floor(value.toDouble()) == value.toDouble();
    case FieldType::Texts:
        break;
    }
    if (!value.isArray())
        return false;
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        if (!array.at(i).isString())
            return false;
    }
    return true;
}

QString TypeText(FieldType type)
{
    switch (type) {
    case FieldType::Text:
        return QStringLiteral("a string");
    case FieldType::Flag:
        return QStringLiteral("true or false");
    case FieldType::Number:
        return QStringLiteral("an integer");
    case FieldType::Texts:
        break;
    }
    return QStringLiteral("an array of strings");
}

const Field* FindField(const NodeType& type, const QString& key)
{
    const auto find = [&key](const std::vector<Field>& fields) -> const Field* {
        for (const Field& field : fields) {
            if (key == QLatin1String(field.key))
                return &field;
        }
        return nullptr;
    };
    if (const Field* const field = find(type.fields))
        return field;
    return type.has_state ? find(StateFields()) : nullptr;
}

/// Ranges of numbers, by type of node ("" for any) and key.
struct Range
{
    const char* node;
    const char* key;
    int least;
    int most;
};

constexpr Range RANGES[] = {
    {"", "persistence", 0, 4},      {"spot", "style", 0, 4}, // Qt::ToolButtonStyle
    {"toolbar", "area", 0, 8},                               // Qt::ToolBarArea
    {"menu", "key", 0, 0x7fffffff}, {"profile", "counter", 0, 0x7fffffff},
};

void CheckRange(const Node& node, const QString& key, const QJsonValue& value, const QString& path,
                const Report& report)
{
    for (const Range& range : RANGES) {
        if (key != QLatin1String(range.key) || (*range.node && !Is(node, range.node)))
            continue;
        const double number = value.toDouble();
        if (number < range.least || number > range.most) {
            report({Problem::Error, path,
                    QStringLiteral("\"%1\" is %2, not in %3 to %4")
                        .arg(key)
                        .arg(number)
                        .arg(range.least)
                        .arg(range.most)});
        }
    }
}

void CheckText(const Node& node, const QString& key, const QString& text, const QString& path,
               const Report& report)
{
    if (Is(node, "spot") && key == QLatin1String("type") && text != QLatin1String("command") &&
        text != QLatin1String("separator")) {
        report({Problem::Error, path,
                QStringLiteral("the type \"%1\" is unknown; the spot is skipped").arg(text)});
    }
    if (Is(node, "binding") && !text.isEmpty()) {
        const QKeySequence keys(text, QKeySequence::PortableText);
        bool readable = !keys.isEmpty();
        for (int i = 0; i < keys.count(); ++i)
            readable = readable && keys[uint(i)] != Qt::Key_unknown;
        if (!readable)
            report({Problem::Error, path, QStringLiteral("\"%1\" is no key sequence").arg(text)});
    }
}

/// The greatest number in the identifiers that the program generated below a node.
int GreatestGenerated(const Node& node)
{
    static const QRegularExpression generated(QStringLiteral("^__\\w+\\.([0-9a-f]+)$"));
    int greatest = 0;
    const QRegularExpressionMatch match = generated.match(node.id);
    if (match.hasMatch())
        greatest = match.captured(1).toInt(nullptr, 16);
    for (const Node& child : node.children)
        greatest = qMax(greatest, GreatestGenerated(child));
    return greatest;
}

bool IsCommandSpot(const Node& node)
{
    return Is(node, "spot") &&
           node.fields.value(QStringLiteral("type")).toString(QStringLiteral("command")) ==
               QLatin1String("command");
}

/// Whether commands are made at run time whose identifiers no catalogue has.
bool HasFamilies(const QSet<QString>& known)
{
    return std::any_of(known.begin(), known.end(), [](const QString& id) {
        return id.startsWith(QLatin1String("DynamicCommands."));
    });
}

void CheckOffered(const Node& node, const QSet<QString>& known, const QString& path,
                  const Report& report)
{
    const QString unless = HasFamilies(known)
                               ? QStringLiteral(", unless one of its families makes it at run time")
                               : QString();
    if ((IsCommandSpot(node) || Is(node, "binding")) && !known.contains(node.id)) {
        report({Problem::Warning, path,
                QStringLiteral("the product does not offer it here, so nothing is shown") + unless,
                node.place});
        return;
    }
    if (Is(node, "composite")) {
        const QStringList items = TextsOf(node.fields.value(QStringLiteral("items")));
        int offered = 0;
        for (int i = 0; i < items.size(); ++i) {
            if (known.contains(items.at(i))) {
                ++offered;
                continue;
            }
            report(
                {Problem::Warning, path,
                 QStringLiteral("the product does not offer \"%1\" here").arg(items.at(i)) + unless,
                 PlaceIn(PlaceIn(node.place, QStringLiteral("items")), i)});
        }
        if (!items.isEmpty() && offered == 0) {
            report(
                {Problem::Warning, path,
                 QStringLiteral("none of its commands is offered, so it is never shown") + unless,
                 node.place});
        }
    }
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        const Node& child = node.children[i];
        CheckOffered(child, known, QStringLiteral("%1/%2").arg(path, NameOf(child, int(i))),
                     report);
    }
}

/// The composites of a layout, which spots may name too.
QSet<QString> CompositesOf(const Node& layout)
{
    QSet<QString> names;
    for (const Node& suite : layout.children) {
        if (!Is(suite, "composite suite"))
            continue;
        for (const Node& composite : suite.children)
            names.insert(composite.id);
    }
    return names;
}

/// How many spots a site takes from the user; more in a file are shown.
struct Capacity
{
    const char* node;
    int most;
};

constexpr Capacity CAPACITIES[] = {
    {"group", 128}, {"quick access bar", 128}, {"toolbar", 64}, {"menu", 12}, {"composite", 32}};

void CheckCapacity(const Node& node, const QString& path, const Report& report)
{
    for (const Capacity& capacity : CAPACITIES) {
        if (!Is(node, capacity.node))
            continue;
        const int count = Is(node, "composite")
                              ? node.fields.value(QStringLiteral("items")).toArray().size()
                              : int(node.children.size());
        if (count > capacity.most) {
            report({Problem::Warning, path,
                    QStringLiteral("holds %1 commands; the user can add none beyond %2")
                        .arg(count)
                        .arg(capacity.most),
                    node.place});
        }
    }
}

/// The names of all spots below a node, and of the items of its composites.
void CollectPlaced(const Node& node, QSet<QString>& names)
{
    if (IsCommandSpot(node))
        names.insert(node.id);
    if (Is(node, "composite")) {
        for (const QString& item : TextsOf(node.fields.value(QStringLiteral("items"))))
            names.insert(item);
    }
    for (const Node& child : node.children)
        CollectPlaced(child, names);
}

void CheckComposites(const Node& layout, const QString& path, const Report& report)
{
    QSet<QString> placed;
    CollectPlaced(layout, placed);
    for (const Node& suite : layout.children) {
        if (!Is(suite, "composite suite"))
            continue;
        for (std::size_t i = 0; i < suite.children.size(); ++i) {
            const Node& composite = suite.children[i];
            const QString name =
                QStringLiteral("%1/%2/%3").arg(path, suite.id, NameOf(composite, int(i)));
            if (TextsOf(composite.fields.value(QStringLiteral("items"))).isEmpty()) {
                report({Problem::Warning, name,
                        QStringLiteral("has no commands, so it is never shown"), composite.place});
            } else if (!placed.contains(composite.id)) {
                report({Problem::Warning, name, QStringLiteral("stands on no site of its layout"),
                        composite.place});
            }
            const QString type = composite.fields.value(QStringLiteral("type")).toString();
            if (type != QLatin1String("menu") && type != QLatin1String("command")) {
                report({Problem::Warning, name,
                        QStringLiteral("the type \"%1\" is unknown and taken for \"command\"")
                            .arg(type),
                        PlaceIn(composite.place, QStringLiteral("type"))});
            }
        }
    }
}

} // namespace

Offer OfferOf(const File& catalogue, const QString& product)
{
    const Node root = TreeOf(catalogue, [](const Problem&) {});
    for (const Node& half : root.children) {
        if (!Is(half, "products"))
            continue;
        for (const Node& node : half.children) {
            if (node.id != product && (!product.isEmpty() || half.children.size() != 1))
                continue;
            Offer offer;
            offer.product = node.id;
            for (const Node& layout : node.children) {
                const QStringList ids = TextsOf(layout.fields.value(QStringLiteral("command_ids")));
                offer.layouts.insert(layout.id, QSet<QString>(ids.begin(), ids.end()));
            }
            return offer;
        }
    }
    throw FileError{product.isEmpty()
                        ? QStringLiteral("%1: name one of its products").arg(catalogue.path)
                        : QStringLiteral("%1: no product \"%2\"").arg(catalogue.path, product)};
}

void CheckFields(const Node& node, const QString& path, const Report& report)
{
    if (!node.type)
        return;
    const QJsonValue id = node.object.value(QLatin1String("id"));
    if (!id.isUndefined() && !id.isString())
        report({Problem::Error, path, QStringLiteral("\"id\" is not a string")});
    if (Is(node, "layout") && !node.object.contains(QLatin1String("states")))
        report({Problem::Error, path,
                QStringLiteral("\"states\" is missing; the layout is not read")});
    for (auto field = node.fields.begin(); field != node.fields.end(); ++field) {
        const Field* const known = FindField(*node.type, field.key());
        const bool is_special = (Is(node, "profile") && field.key() == QLatin1String("base")) ||
                                (Is(node, "product") && field.key() == QLatin1String("functions"));
        if (is_special) {
            if (!field->isObject()) {
                report({Problem::Error, path,
                        QStringLiteral("\"%1\" is not an object").arg(field.key())});
            }
        } else if (!known) {
            report({Problem::Warning, path,
                    QStringLiteral("\"%1\" is unknown here").arg(field.key())});
        } else if (!HasType(*field, known->type)) {
            report({Problem::Error, path,
                    QStringLiteral("\"%1\" is not %2").arg(field.key(), TypeText(known->type))});
        } else if (known->type == FieldType::Number) {
            CheckRange(node, field.key(), *field, path, report);
        } else if (known->type == FieldType::Text) {
            CheckText(node, field.key(), field->toString(), path, report);
        }
    }
}

void CheckChildren(const Node& node, const QString& path, const Report& report)
{
    CheckCapacity(node, path, report);
    QSet<QString> ids;
    QMap<QString, QString> keys;
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        const Node& child = node.children[i];
        const QString child_path = QStringLiteral("%1/%2").arg(path, NameOf(child, int(i)));
        if (child.id.isEmpty() && node.type) {
            report({Problem::Warning, child_path, QStringLiteral("has no \"id\""), child.place});
        } else if (ids.contains(child.id)) {
            report({Problem::Warning, child_path, QStringLiteral("stands here more than once"),
                    child.place});
        }
        ids.insert(child.id);
        const QString key = child.fields.value(QStringLiteral("key sequence")).toString();
        if (!Is(child, "binding") || key.isEmpty())
            continue;
        if (keys.contains(key)) {
            report({Problem::Warning, child_path,
                    QStringLiteral("%1 is bound to \"%2\" already").arg(key, keys.value(key)),
                    child.place});
        } else {
            keys.insert(key, child.id);
        }
    }
}

void CheckProfile(const File& file, const Node& profile, const Report& report)
{
    const QString path = QStringLiteral("profile");
    ovk::VersionInfo version;
    version.FromString(profile.fields.value(QStringLiteral("version")).toString());
    if (!version.IsValid()) {
        report(
            {Problem::Warning, path,
             QStringLiteral("\"version\" is missing or not valid; the file can be a default only"),
             profile.place});
    }
    const int counter = profile.fields.value(QStringLiteral("counter")).toInt();
    const int greatest =
        qMax(GreatestGenerated(profile), GreatestGenerated(BaseOf(file, [](const Problem&) {})));
    if (greatest > counter) {
        report({Problem::Error, path,
                QStringLiteral(
                    "\"counter\" is %1, but an identifier was made from %2; it would be made "
                    "again")
                    .arg(counter)
                    .arg(greatest),
                PlaceIn(profile.place, QStringLiteral("counter"))});
    }
    if (profile.fields.value(QStringLiteral("base")).toObject().contains(QLatin1String("base")))
        report({Problem::Warning, QStringLiteral("profile/base"),
                QStringLiteral("has a base of its own"), QStringLiteral("$.profile.base.base")});
    for (std::size_t i = 0; i < profile.children.size(); ++i) {
        const Node& layout = profile.children[i];
        CheckComposites(layout, QStringLiteral("%1/%2").arg(path, NameOf(layout, int(i))), report);
    }
}

void CheckCatalogue(const Node& catalogue, const Report& report)
{
    QSet<QString> defined;
    for (const Node& half : catalogue.children) {
        if (!Is(half, "commands"))
            continue;
        for (const Node& command : half.children)
            defined.insert(command.id);
    }
    for (const Node& half : catalogue.children) {
        if (!Is(half, "products"))
            continue;
        for (const Node& product : half.children) {
            for (const Node& layout : product.children) {
                const QString path = QStringLiteral("products/%1/%2").arg(product.id, layout.id);
                const QStringList ids = TextsOf(layout.fields.value(QStringLiteral("command_ids")));
                for (const QString& id : ids) {
                    if (!defined.contains(id) &&
                        !id.startsWith(QLatin1String("DynamicCommands."))) {
                        report({Problem::Warning, path,
                                QStringLiteral("the command \"%1\" is not defined").arg(id),
                                layout.place});
                    }
                }
            }
        }
    }
}

void CheckOffer(const Node& profile, const Offer& offer, const Report& report)
{
    for (std::size_t i = 0; i < profile.children.size(); ++i) {
        const Node& layout = profile.children[i];
        const QString path = QStringLiteral("profile/%1").arg(NameOf(layout, int(i)));
        if (!offer.layouts.contains(layout.id)) {
            report({Problem::Warning, path,
                    QStringLiteral("the product \"%1\" has no such layout").arg(offer.product),
                    layout.place});
            continue;
        }
        CheckOffered(layout, offer.layouts.value(layout.id) | CompositesOf(layout), path, report);
    }
}

} // namespace ovk_profile
