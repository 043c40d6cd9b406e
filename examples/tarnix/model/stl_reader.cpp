#include "model/stl_reader.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtEndian>

#include <cstring>

namespace tarnix {
namespace {

constexpr int k_header_bytes = 80;
constexpr int k_prefix_bytes = 84;
constexpr int k_record_bytes = 50;

double FloatAt(const char* data)
{
    const quint32 bits = qFromLittleEndian<quint32>(data);
    float value = 0.0f;
    std::memcpy(&value, &bits, sizeof value);
    return static_cast<double>(value);
}

bool IsUsable(const Vec3& p)
{
    return IsFinite(p) && std::abs(p.x) <= StlReader::k_max_coordinate &&
           std::abs(p.y) <= StlReader::k_max_coordinate &&
           std::abs(p.z) <= StlReader::k_max_coordinate;
}

/// Splits ASCII text into words and knows the line of the last one.
class Words
{
public:
    explicit Words(const QByteArray& bytes) : m_at(bytes.constData()), m_end(m_at + bytes.size()) {}

    /// False at the end of the text.
    bool Next()
    {
        while (m_at != m_end && IsBlank(*m_at)) {
            if (*m_at == '\n')
                ++m_line;
            ++m_at;
        }
        m_word = m_at;
        while (m_at != m_end && !IsBlank(*m_at))
            ++m_at;
        return m_at != m_word;
    }

    QByteArray RestOfLine()
    {
        const char* start = m_at;
        while (m_at != m_end && *m_at != '\n' && *m_at != '\r')
            ++m_at;
        return QByteArray(start, static_cast<int>(m_at - start)).trimmed();
    }

    bool Is(const char* word) const
    {
        const size_t length = std::strlen(word);
        return static_cast<size_t>(m_at - m_word) == length &&
               qstrnicmp(m_word, word, static_cast<uint>(length)) == 0;
    }

    bool Number(double& value) const
    {
        bool good = false;
        value = QByteArray::fromRawData(m_word, static_cast<int>(m_at - m_word)).toDouble(&good);
        return good;
    }

    QString Text() const
    {
        constexpr int k_shown = 24;
        const int length = static_cast<int>(m_at - m_word);
        const QString text = QString::fromLatin1(m_word, std::min(length, k_shown));
        return length > k_shown ? text + QChar(0x2026) : text;
    }

    int Line() const { return m_line; }

private:
    static bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

    const char* m_at;
    const char* m_end;
    const char* m_word = nullptr;
    int m_line = 1;
};

StlReader::Result Fault(const QString& message)
{
    StlReader::Result result;
    result.error = message;
    return result;
}

} // namespace

StlReader::Format StlReader::Sniff(const QByteArray& bytes)
{
    if (bytes.size() >= k_prefix_bytes) {
        const auto count = qFromLittleEndian<quint32>(bytes.constData() + k_header_bytes);
        if (static_cast<qint64>(count) * k_record_bytes + k_prefix_bytes == bytes.size())
            return Format::Binary;
    }
    const QByteArray start = bytes.left(1024).trimmed();
    if (start.left(5).toLower() != "solid" || start.contains('\0'))
        return Format::Binary;
    return Format::Ascii;
}

StlReader::Result StlReader::Read(const QByteArray& bytes)
{
    if (bytes.isEmpty())
        return Fault(tr("The file is empty."));
    const Format format = Sniff(bytes);
    Result result = format == Format::Ascii ? ReadAscii(bytes) : ReadBinary(bytes);
    result.format = format;
    if (result.mesh && result.mesh->IsEmpty())
        return Fault(tr("The file has no triangles."));
    return result;
}

StlReader::Result StlReader::ReadFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Fault(tr("The file cannot be opened: %1.").arg(file.errorString()));
    if (QFileInfo(file).isDir())
        return Fault(tr("This is a folder, not a file."));
    if (file.size() > k_max_bytes)
        return Fault(tr("The file has %1; at most %2 can be read.")
                         .arg(QLocale().formattedDataSize(file.size()),
                              QLocale().formattedDataSize(k_max_bytes)));
    const QByteArray bytes = file.read(k_max_bytes + 1);
    if (file.error() != QFileDevice::NoError)
        return Fault(tr("The file cannot be read: %1.").arg(file.errorString()));
    if (bytes.size() > k_max_bytes)
        return Fault(tr("The file grew beyond what can be read."));
    return Read(bytes);
}

StlReader::Result StlReader::ReadBinary(const QByteArray& bytes)
{
    if (bytes.size() < k_prefix_bytes)
        return Fault(tr("This is not an STL file: it has %1 bytes, fewer than the %2 of a header.")
                         .arg(bytes.size())
                         .arg(k_prefix_bytes));
    const auto count = qFromLittleEndian<quint32>(bytes.constData() + k_header_bytes);
    const qint64 room = (bytes.size() - k_prefix_bytes) / k_record_bytes;
    if (count > room)
        return Fault(tr("The file is cut off: it announces %1 triangles and holds %2.")
                         .arg(count)
                         .arg(room));
    if (count > k_max_triangles)
        return Fault(tr("The file has %1 triangles; at most %2 can be read.")
                         .arg(count)
                         .arg(k_max_triangles));
    std::vector<Vec3> corners;
    corners.reserve(static_cast<size_t>(count) * 3);
    const char* record = bytes.constData() + k_prefix_bytes;
    for (quint32 i = 0; i < count; ++i, record += k_record_bytes) {
        for (int corner = 0; corner < 3; ++corner) {
            // The first 12 bytes are the normal, which follows from the corners.
            const char* at = record + 12 + 12 * corner;
            const Vec3 p{FloatAt(at), FloatAt(at + 4), FloatAt(at + 8)};
            if (!IsUsable(p))
                return Fault(tr("Triangle %1 has a corner that is not a usable point.").arg(i + 1));
            corners.push_back(p);
        }
    }
    Result result;
    const QByteArray header = bytes.left(k_header_bytes);
    if (header.startsWith("solid ")) {
        const QByteArray name = header.mid(6);
        const int end = name.indexOf('\0');
        result.name = QString::fromLatin1(end < 0 ? name : name.left(end)).trimmed();
    }
    result.mesh = std::make_shared<const Mesh>(Mesh::FromCorners(corners));
    return result;
}

StlReader::Result StlReader::ReadAscii(const QByteArray& bytes)
{
    Words words(bytes);
    Result result;
    std::vector<Vec3> corners;
    const auto expected = [&words](const char* what) {
        return Fault(tr("Line %1: \"%2\" was expected, not \"%3\".")
                         .arg(words.Line())
                         .arg(QLatin1String(what), words.Text()));
    };
    const auto cut_off = [] { return Fault(tr("The file is cut off: the solid has no end.")); };
    bool in_solid = false;
    while (words.Next()) {
        if (!in_solid) {
            if (!words.Is("solid"))
                return expected("solid");
            const QByteArray name = words.RestOfLine();
            if (result.name.isEmpty())
                result.name = QString::fromUtf8(name);
            in_solid = true;
            continue;
        }
        if (words.Is("endsolid")) {
            words.RestOfLine();
            in_solid = false;
            continue;
        }
        if (!words.Is("facet"))
            return expected("facet");
        static constexpr const char* k_before[] = {"normal", nullptr, nullptr,
                                                   nullptr,  "outer", "loop"};
        for (const char* word : k_before) {
            if (!words.Next())
                return cut_off();
            double ignored = 0.0;
            if (word && !words.Is(word))
                return expected(word);
            // A normal may be anything that reads as a number, not-a-number among it: it is not
            // used.
            if (!word && !words.Number(ignored) && !words.Is("nan") && !words.Is("-nan"))
                return expected("a number");
        }
        for (int corner = 0; corner < 3; ++corner) {
            if (!words.Next())
                return cut_off();
            if (!words.Is("vertex"))
                return expected("vertex");
            Vec3 p;
            for (int axis = 0; axis < 3; ++axis) {
                if (!words.Next())
                    return cut_off();
                if (!words.Number(p[axis]))
                    return expected("a number");
            }
            if (!IsUsable(p))
                return Fault(tr("Line %1: the vertex is not a usable point.").arg(words.Line()));
            corners.push_back(p);
        }
        for (const char* word : {"endloop", "endfacet"}) {
            if (!words.Next())
                return cut_off();
            if (!words.Is(word))
                return expected(word);
        }
        if (corners.size() / 3 > k_max_triangles)
            return Fault(tr("The file has more than %1 triangles.").arg(k_max_triangles));
    }
    if (in_solid)
        return cut_off();
    result.mesh = std::make_shared<const Mesh>(Mesh::FromCorners(corners));
    return result;
}

QByteArray StlWriter::Binary(const Mesh& mesh, const QString& name)
{
    // Not "solid" at the start: simple readers would take the file for ASCII.
    QByteArray bytes = ("Tarnix " + name.toLatin1()).left(k_header_bytes);
    bytes.append(QByteArray(k_header_bytes - bytes.size(), '\0'));
    const auto count = static_cast<quint32>(mesh.Triangles().size());
    bytes.reserve(k_prefix_bytes + static_cast<int>(count) * k_record_bytes);
    const auto put = [&bytes](auto value) {
        char raw[sizeof value];
        qToLittleEndian(value, raw);
        bytes.append(raw, sizeof value);
    };
    const auto put_point = [&put](const Vec3& p) {
        for (int axis = 0; axis < 3; ++axis) {
            const auto value = static_cast<float>(p[axis]);
            quint32 bits = 0;
            std::memcpy(&bits, &value, sizeof bits);
            put(bits);
        }
    };
    put(count);
    for (size_t i = 0; i < count; ++i) {
        const Triangle& t = mesh.Triangles()[i];
        put_point(mesh.Normals()[i]);
        for (int corner = 0; corner < 3; ++corner)
            put_point(mesh.Points()[t[corner]]);
        put(static_cast<quint16>(0));
    }
    return bytes;
}

QByteArray StlWriter::Ascii(const Mesh& mesh, const QString& name)
{
    const QByteArray solid = name.simplified().toUtf8();
    const auto numbers = [](const Vec3& p) {
        return QByteArray::number(static_cast<double>(static_cast<float>(p.x)), 'g', 9) + ' ' +
               QByteArray::number(static_cast<double>(static_cast<float>(p.y)), 'g', 9) + ' ' +
               QByteArray::number(static_cast<double>(static_cast<float>(p.z)), 'g', 9) + '\n';
    };
    QByteArray text = "solid " + solid + '\n';
    for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
        const Triangle& t = mesh.Triangles()[i];
        text += "  facet normal " + numbers(mesh.Normals()[i]) + "    outer loop\n";
        for (int corner = 0; corner < 3; ++corner)
            text += "      vertex " + numbers(mesh.Points()[t[corner]]);
        text += "    endloop\n  endfacet\n";
    }
    return text + "endsolid " + solid + '\n';
}

} // namespace tarnix
