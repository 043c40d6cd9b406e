#include "profile_document_p.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QtEndian>

#include <vector>

namespace ovk {
namespace {

// The binary form: a header of eight bytes, then the root container. A container is its size, a
// word of its length (shifted by one, the low bit set for an object) and the offset of its table,
// each of four bytes, little-endian. A table of an array holds values, one of an object offsets of
// entries that begin with a value. The low three bits of a value are its type; the offset of a
// container within the one that holds it begins at bit five.
constexpr quint32 HEADER_SIZE = 8;
constexpr quint32 CONTAINER_SIZE = 12;
constexpr quint32 WORD_SIZE = 4;
constexpr quint32 TYPE_MASK = 7;
constexpr quint32 TYPE_ARRAY = 4;
constexpr quint32 TYPE_OBJECT = 5;
constexpr int OFFSET_SHIFT = 5;

constexpr int DEEPEST_NESTING = 1024; // what QJsonDocument::fromJson accepts

struct Container
{
    quint32 offset;
    int depth;
};

class BinaryDocument
{
public:
    explicit BinaryDocument(const QByteArray& data)
        : m_data(data), m_size(quint32(data.size())), m_work_left(m_size / WORD_SIZE)
    {
    }

    bool IsSound()
    {
        m_open.push_back({HEADER_SIZE, 1});
        while (!m_open.empty()) {
            const Container container = m_open.back();
            m_open.pop_back();
            if (container.depth > DEEPEST_NESTING || !Visit(container))
                return false;
        }
        return true;
    }

private:
    bool Has(quint64 offset, quint64 bytes) const { return offset + bytes <= m_size; }

    quint32 Word(quint32 offset) const
    {
        return qFromLittleEndian<quint32>(m_data.constData() + offset);
    }

    /// Puts the containers inside on the list; false if there is more to visit than there can be.
    bool Visit(const Container& container)
    {
        if (!Has(container.offset, CONTAINER_SIZE))
            return true;
        const quint32 word = Word(container.offset + WORD_SIZE);
        const bool is_object = word & 1;
        const quint32 length = word >> 1;
        const quint64 table = quint64(container.offset) + Word(container.offset + 2 * WORD_SIZE);
        if (!Has(table, quint64(length) * WORD_SIZE))
            return true;
        if (length >= m_work_left)
            return false;
        m_work_left -= length + 1;
        for (quint32 i = 0; i < length; ++i) {
            quint64 at = table + quint64(i) * WORD_SIZE;
            if (is_object)
                at = quint64(container.offset) + Word(quint32(at));
            if (!Has(at, WORD_SIZE))
                continue;
            const quint32 value = Word(quint32(at));
            const quint32 type = value & TYPE_MASK;
            if (type != TYPE_ARRAY && type != TYPE_OBJECT)
                continue;
            const quint64 inner = quint64(container.offset) + (value >> OFFSET_SHIFT);
            if (Has(inner, CONTAINER_SIZE))
                m_open.push_back({quint32(inner), container.depth + 1});
        }
        return true;
    }

    const QByteArray& m_data;
    const quint32 m_size;
    quint32 m_work_left;
    std::vector<Container> m_open;
};

// Profile files are binary JSON for good, whatever Qt thinks of the format by now.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

QJsonDocument FromBinary(const QByteArray& data)
{
    return QJsonDocument::fromBinaryData(data);
}

QByteArray ToBinary(const QJsonDocument& document)
{
    return document.toBinaryData();
}

QT_WARNING_POP

} // namespace

bool IsSoundBinaryJson(const QByteArray& data)
{
    return BinaryDocument(data).IsSound();
}

std::optional<QJsonObject> ParseDocument(const QByteArray& data, DocumentFormat format)
{
    QJsonDocument document;
    if (format == DocumentFormat::Json)
        document = QJsonDocument::fromJson(data);
    else if (IsSoundBinaryJson(data))
        document = FromBinary(data);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

QByteArray FormatDocument(const QJsonObject& root, DocumentFormat format)
{
    const QJsonDocument document(root);
    return format == DocumentFormat::Json ? document.toJson() : ToBinary(document);
}

std::optional<QJsonObject> ReadDocument(const QString& path, DocumentFormat format)
{
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return ParseDocument(file.readAll(), format);
}

WriteResult WriteDocument(const QString& path, const QJsonObject& root, DocumentFormat format)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return WriteResult::NotOpened;
    const QByteArray data = FormatDocument(root, format);
    // On a disk that fills up a write ends early, which is no error of its own to QSaveFile.
    if (data.isEmpty() || file.write(data) != data.size())
        file.cancelWriting();
    return file.commit() ? WriteResult::Written : WriteResult::Failed;
}

} // namespace ovk
