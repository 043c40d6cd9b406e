#include "node.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace ovk_profile {
namespace {

const QString ROOT = QStringLiteral("$");

QString Quoted(const QString& text)
{
    return QStringLiteral("\"%1\"").arg(text);
}

class TreeMaker
{
public:
    explicit TreeMaker(const Report& report) : m_report(report) {}

    Node Make(const QJsonObject& object, const NodeType& type, const QString& id,
              const QString& path, const QString& place) const
    {
        Node node;
        node.place = place;
        node.type = &type;
        node.id = id;
        node.object = object;
        for (auto entry = object.begin(); entry != object.end(); ++entry) {
            const QString key = entry.key();
            if (type.children && key == QLatin1String(type.children))
                AddChildren(node, entry.value(), path);
            else if (key != QLatin1String("id"))
                node.fields.insert(key, entry.value());
        }
        return node;
    }

private:
    void AddChildren(Node& node, const QJsonValue& value, const QString& path) const
    {
        const QLatin1String key(node.type->children);
        const QString place = PlaceIn(node.place, key);
        // Suites stand under their names, all other children in arrays.
        if (value.isObject() && !node.type->child && key == QLatin1String("states")) {
            const QJsonObject states = value.toObject();
            for (auto entry = states.begin(); entry != states.end(); ++entry)
                AddChild(node, entry.value(), entry.key(), path, PlaceIn(place, entry.key()));
            return;
        }
        if (!value.isArray() || key == QLatin1String("states")) {
            m_report(
                {Problem::Error, path, Quoted(key) + QStringLiteral(" has the wrong type"), place});
            return;
        }
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            const QString id = array.at(i).toObject().value(QLatin1String("id")).toString();
            AddChild(node, array.at(i), id, path, PlaceIn(place, i));
        }
    }

    void AddChild(Node& parent, const QJsonValue& value, const QString& id, const QString& path,
                  const QString& place) const
    {
        const int position = int(parent.children.size());
        const QString child_path = QStringLiteral("%1/%2").arg(
            path, id.isEmpty() ? QStringLiteral("[%1]").arg(position) : id);
        if (!value.isObject()) {
            m_report({Problem::Error, child_path, QStringLiteral("is not an object"), place});
            return;
        }
        const NodeType* const type = FindChildType(*parent.type, id);
        if (!type) {
            m_report({Problem::Warning, child_path,
                      QStringLiteral("is unknown here and is ignored"), place});
            return;
        }
        parent.children.push_back(Make(value.toObject(), *type, id, child_path, place));
    }

    const Report& m_report;
};

Node CatalogueTree(const File& file, const TreeMaker& maker, const Report& report)
{
    Node root;
    for (const char* half : {"commands", "products"}) {
        const QString name = QLatin1String(half);
        const QJsonValue value = file.root.value(name);
        if (value.isObject())
            root.children.push_back(
                maker.Make(value.toObject(), *FindNodeType(name), name, name, PlaceIn(ROOT, name)));
        else
            report({Problem::Error, name, QStringLiteral("is missing or not an object"),
                    PlaceIn(ROOT, name)});
    }
    return root;
}

} // namespace

Node TreeOf(const File& file, const Report& report)
{
    const TreeMaker maker(report);
    if (file.kind == Kind::Catalogue)
        return CatalogueTree(file, maker, report);
    const QString name = QStringLiteral("profile");
    const QJsonValue value = file.root.value(name);
    if (!value.isObject())
        report({Problem::Error, name, QStringLiteral("is not an object"), PlaceIn(ROOT, name)});
    return maker.Make(value.toObject(), *FindNodeType(name), QString(), name, PlaceIn(ROOT, name));
}

Node BaseOf(const File& file, const Report& report)
{
    const QString name = QStringLiteral("profile");
    const QJsonObject profile = file.root.value(name).toObject();
    return TreeMaker(report).Make(profile.value(QLatin1String("base")).toObject(),
                                  *FindNodeType(name), QString(), QStringLiteral("profile/base"),
                                  QStringLiteral("$.profile.base"));
}

QString PlaceIn(const QString& place, const QString& key)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    if (plain.match(key).hasMatch())
        return place + QLatin1Char('.') + key;
    QString quoted = key;
    quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QStringLiteral("%1['%2']").arg(place, quoted);
}

QString PlaceIn(const QString& place, int position)
{
    return QStringLiteral("%1[%2]").arg(place).arg(position);
}

QJsonObject ToJson(const Node& node)
{
    QJsonObject object{{QStringLiteral("id"), node.id}};
    if (node.type)
        object.insert(QStringLiteral("type"), QLatin1String(node.type->name));
    if (!node.place.isEmpty())
        object.insert(QStringLiteral("path"), node.place);
    QJsonObject fields;
    for (auto field = node.fields.begin(); field != node.fields.end(); ++field) {
        if (field.key() != QLatin1String("base")) // has a tree of its own
            fields.insert(field.key(), *field);
    }
    if (!fields.isEmpty())
        object.insert(QStringLiteral("fields"), fields);
    QJsonArray children;
    for (const Node& child : node.children)
        children.append(ToJson(child));
    if (!children.isEmpty())
        object.insert(QStringLiteral("children"), children);
    return object;
}

QString NameOf(const Node& node, int position)
{
    return node.id.isEmpty() ? QStringLiteral("[%1]").arg(position) : node.id;
}

} // namespace ovk_profile
