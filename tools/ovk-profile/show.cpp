#include "tool.h"

#include "node.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace ovk_profile {
namespace {

QString ValueText(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 15);
    case QJsonValue::String:
        return QStringLiteral("\"%1\"").arg(value.toString());
    case QJsonValue::Array: {
        QStringList parts;
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            parts << ValueText(array.at(i));
        return QStringLiteral("[%1]").arg(parts.join(QStringLiteral(", ")));
    }
    case QJsonValue::Object:
        return QStringLiteral("{...}");
    default:
        return QStringLiteral("null");
    }
}

void Print(const Node& node, int position, int depth, QTextStream& out)
{
    out << QString(depth * 2, QLatin1Char(' ')) << NameOf(node, position);
    if (node.type && QLatin1String(node.type->name) != node.id)
        out << " (" << node.type->name << ')';
    for (auto field = node.fields.begin(); field != node.fields.end(); ++field)
        out << "  " << field.key() << '=' << ValueText(*field);
    out << '\n';
    for (std::size_t i = 0; i < node.children.size(); ++i)
        Print(node.children[i], int(i), depth + 1, out);
}

} // namespace

int Show(const QString& path, const ShowOptions& options, QTextStream& out)
{
    const File file = ReadFile(path);
    const auto silent = [](const Problem&) {};
    Node tree = options.base ? BaseOf(file, silent) : TreeOf(file, silent);
    if (!options.layout.isEmpty()) {
        const auto other = [&](const Node& child) { return child.id != options.layout; };
        tree.children.erase(std::remove_if(tree.children.begin(), tree.children.end(), other),
                            tree.children.end());
        if (tree.children.empty()) {
            throw FileError{
                QStringLiteral("%1: no layout \"%2\"; show it without --layout to see which "
                               "there are")
                    .arg(path, options.layout)};
        }
    }
    if (options.json) {
        out << QJsonDocument(ToJson(tree)).toJson();
        return Fine;
    }
    if (file.kind == Kind::Profile && !options.base) {
        for (const char* key : {"product", "version", "counter"}) {
            const QJsonValue value = tree.fields.value(QLatin1String(key));
            if (!value.isUndefined())
                out << key << ": " << ValueText(value) << '\n';
        }
        out << "base: " << (tree.fields.contains(QStringLiteral("base")) ? "yes" : "no") << '\n';
    }
    for (std::size_t i = 0; i < tree.children.size(); ++i)
        Print(tree.children[i], int(i), 0, out);
    return Fine;
}

} // namespace ovk_profile
