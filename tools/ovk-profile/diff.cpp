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
    explicit Comparison(QTextStream& out) : m_out(out) {}

    bool HasDifferences() const { return m_differences > 0; }

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
                Tell('-', child_path);
                continue;
            }
            met[std::size_t(place)] = true;
            if (place < last)
                Tell('>', child_path);
            last = qMax(last, place);
            Compare(child, second.children[std::size_t(place)], child_path);
        }
        for (std::size_t i = 0; i < met.size(); ++i) {
            if (!met[i])
                Tell('+', QStringLiteral("%1/%2").arg(path, NameOf(second.children[i], int(i))));
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
            if (before != after) {
                Tell('~', QStringLiteral("%1: %2: %3 -> %4")
                              .arg(path, key.key(), ValueText(before), ValueText(after)));
            }
        }
    }

    void Tell(char mark, const QString& text)
    {
        ++m_differences;
        m_out << mark << ' ' << text << '\n';
    }

    QTextStream& m_out;
    int m_differences = 0;
};

} // namespace

int Diff(const QString& first_path, const QString& second_path, QTextStream& out)
{
    const File first = ReadFile(first_path);
    const File second = ReadFile(second_path);
    if (first.kind != second.kind)
        throw FileError{QStringLiteral("a profile and a catalogue cannot be compared")};
    const auto silent = [](const Problem&) {};
    Comparison comparison(out);
    const bool is_profile = first.kind == Kind::Profile;
    comparison.Compare(TreeOf(first, silent), TreeOf(second, silent),
                       is_profile ? QStringLiteral("profile") : QStringLiteral("catalogue"));
    if (is_profile)
        comparison.Compare(BaseOf(first, silent), BaseOf(second, silent),
                           QStringLiteral("profile/base"));
    return comparison.HasDifferences() ? Found : Fine;
}

} // namespace ovk_profile
