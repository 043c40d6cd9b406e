#include "tool.h"

#include "node.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

namespace ovk_profile {
namespace {

QString ValueText(const QJsonValue& value)
{
    if (value.isUndefined())
        return QStringLiteral("(default)");
    // An array of one value, without its brackets, is the value in the form of the file.
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2));
}

struct Difference
{
    enum Kind
    {
        Removed,
        Added,
        Changed,
        Moved
    };

    Kind kind = Changed;
    QString node;
    QString field; ///< Of a change.
    QJsonValue before;
    QJsonValue after;
};

struct KindName
{
    char mark;
    const char* name;
};

constexpr KindName KIND_NAMES[] = {
    {'-', "removed"}, {'+', "added"}, {'~', "changed"}, {'>', "moved"}};

/// Children by name. Of two of one name the first meets the first.
class Children
{
public:
    explicit Children(const Node& node)
    {
        for (std::size_t i = node.children.size(); i-- > 0;)
            m_places[node.children[i].id].append(int(i));
    }

    int Take(const QString& id)
    {
        const auto places = m_places.find(id);
        return places == m_places.end() || places->isEmpty() ? -1 : places->takeLast();
    }

private:
    QHash<QString, QList<int>> m_places;
};

class Comparison
{
public:
    const std::vector<Difference>& Differences() const { return m_differences; }

    void Compare(const Node& first, const Node& second, const QString& path)
    {
        CompareFields(first, second, path);

        std::vector<bool> met(second.children.size(), false);
        Children in_second(second);
        int last = -1;
        for (std::size_t i = 0; i < first.children.size(); ++i) {
            const Node& child = first.children[i];
            const QString child_path = QStringLiteral("%1/%2").arg(path, NameOf(child, int(i)));
            const int place = in_second.Take(child.id);
            if (place < 0) {
                Tell(Difference::Removed, child_path);
                continue;
            }
            met[std::size_t(place)] = true;
            if (place < last)
                Tell(Difference::Moved, child_path);
            last = qMax(last, place);
            Compare(child, second.children[std::size_t(place)], child_path);
        }
        for (std::size_t i = 0; i < met.size(); ++i) {
            if (!met[i])
                Tell(Difference::Added,
                     QStringLiteral("%1/%2").arg(path, NameOf(second.children[i], int(i))));
        }
    }

private:
    void CompareFields(const Node& first, const Node& second, const QString& path)
    {
        QMap<QString, QJsonValue> keys = first.fields;
        for (auto field = second.fields.begin(); field != second.fields.end(); ++field)
            keys.insert(field.key(), *field);
        keys.remove(QStringLiteral("base")); // has a tree of its own
        for (auto key = keys.begin(); key != keys.end(); ++key) {
            const QJsonValue before = first.fields.value(key.key(), QJsonValue::Undefined);
            const QJsonValue after = second.fields.value(key.key(), QJsonValue::Undefined);
            if (before != after)
                m_differences.push_back({Difference::Changed, path, key.key(), before, after});
        }
    }

    void Tell(Difference::Kind kind, const QString& node)
    {
        Difference difference;
        difference.kind = kind;
        difference.node = node;
        m_differences.push_back(difference);
    }

    std::vector<Difference> m_differences;
};

void Print(const Difference& difference, QTextStream& out)
{
    out << KIND_NAMES[difference.kind].mark << ' ' << difference.node;
    if (difference.kind == Difference::Changed) {
        out << ": " << difference.field << ": " << ValueText(difference.before) << " -> "
            << ValueText(difference.after);
    }
    out << '\n';
}

QJsonObject ToJson(const Difference& difference)
{
    QJsonObject object{{QStringLiteral("kind"), QLatin1String(KIND_NAMES[difference.kind].name)},
                       {QStringLiteral("node"), difference.node}};
    if (difference.kind != Difference::Changed)
        return object;
    // A side that lacks the field has the default and no key here.
    object.insert(QStringLiteral("field"), difference.field);
    if (!difference.before.isUndefined())
        object.insert(QStringLiteral("before"), difference.before);
    if (!difference.after.isUndefined())
        object.insert(QStringLiteral("after"), difference.after);
    return object;
}

} // namespace

int Diff(const QString& first_path, const QString& second_path, bool json, QTextStream& out)
{
    const File first = ReadFile(first_path);
    const File second = ReadFile(second_path);
    if (first.kind != second.kind)
        throw FileError{
            QStringLiteral(
                "%1 and %2: a profile and a catalogue cannot be compared; give two files "
                "of one kind")
                .arg(first_path, second_path)};
    const auto silent = [](const Problem&) {};
    Comparison comparison;
    const bool is_profile = first.kind == Kind::Profile;
    comparison.Compare(TreeOf(first, silent), TreeOf(second, silent),
                       is_profile ? QStringLiteral("profile") : QStringLiteral("catalogue"));
    if (is_profile)
        comparison.Compare(BaseOf(first, silent), BaseOf(second, silent),
                           QStringLiteral("profile/base"));
    QJsonArray differences;
    for (const Difference& difference : comparison.Differences()) {
        if (json)
            differences.append(ToJson(difference));
        else
            Print(difference, out);
    }
    if (json)
        out << QJsonDocument(QJsonObject{{QStringLiteral("differences"), differences}}).toJson();
    return comparison.Differences().empty() ? Fine : Found;
}

} // namespace ovk_profile
