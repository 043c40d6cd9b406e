#include "model/build_file.h"

#include "model/stl_reader.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

#include <unordered_map>

namespace tarnix {
namespace {

constexpr quint32 k_magic = 0x54524e58;
constexpr quint16 k_version = 2;
constexpr quint16 k_without_notes = 1;
constexpr int k_point_bytes = 24;
constexpr int k_triangle_bytes = 12;
constexpr quint32 k_most_parts = 10000;

void WriteMesh(QDataStream& stream, const Mesh& mesh)
{
    stream << static_cast<quint32>(mesh.Points().size())
           << static_cast<quint32>(mesh.Triangles().size());
    for (const Vec3& p : mesh.Points())
        stream << p.x << p.y << p.z;
    for (const Triangle& t : mesh.Triangles())
        stream << t.a << t.b << t.c;
}

/// Null when the counts do not fit what is left, or an index or number is bad.
MeshPtr ReadMesh(QDataStream& stream)
{
    quint32 point_count = 0, triangle_count = 0;
    stream >> point_count >> triangle_count;
    const qint64 needed =
        qint64(point_count) * k_point_bytes + qint64(triangle_count) * k_triangle_bytes;
    if (stream.status() != QDataStream::Ok || needed > stream.device()->bytesAvailable() ||
        triangle_count == 0)
        return nullptr;
    std::vector<Vec3> points(point_count);
    for (Vec3& p : points) {
        stream >> p.x >> p.y >> p.z;
        if (!IsFinite(p))
            return nullptr;
    }
    std::vector<Triangle> triangles(triangle_count);
    for (Triangle& t : triangles) {
        stream >> t.a >> t.b >> t.c;
        if (t.a >= point_count || t.b >= point_count || t.c >= point_count)
            return nullptr;
    }
    return std::make_shared<const Mesh>(std::move(points), std::move(triangles));
}

void Set(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
}

} // namespace

QByteArray BuildFile::Write(const PartList& parts, const Plate& plate,
                            const std::function<QString(int)>& note_of)
{
    std::vector<const Mesh*> meshes;
    std::unordered_map<const Mesh*, quint32> numbers;
    for (const Part& part : parts) {
        if (numbers.emplace(part.GetMesh().get(), static_cast<quint32>(meshes.size())).second)
            meshes.push_back(part.GetMesh().get());
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    Set(stream);
    stream << k_magic << k_version << plate.width << plate.depth << plate.height;
    stream << static_cast<quint32>(meshes.size());
    for (const Mesh* mesh : meshes)
        WriteMesh(stream, *mesh);
    stream << static_cast<quint32>(parts.size());
    for (const Part& part : parts) {
        stream << part.name << part.file << part.color << part.visible << part.locked;
        stream << numbers[part.GetMesh().get()];
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column)
                stream << part.GetPlacement().At(row, column);
        }
        const Vec3 shift = part.GetPlacement().Shift();
        stream << shift.x << shift.y << shift.z;
    }
    const auto note = [&note_of](int id) { return note_of ? note_of(id) : QString(); };
    stream << note(0) << static_cast<quint32>(parts.size());
    for (const Part& part : parts)
        stream << note(part.id);
    return bytes;
}

BuildFile::Result BuildFile::Read(const QByteArray& bytes)
{
    Result result;
    const auto fail = [](const QString& error) {
        Result failed;
        failed.error = error;
        return failed;
    };
    QDataStream stream(bytes);
    Set(stream);
    quint32 magic = 0, count = 0;
    quint16 version = 0;
    stream >> magic >> version;
    if (stream.status() != QDataStream::Ok || magic != k_magic)
        return fail(tr("This is not a build of this program."));
    if (version != k_version && version != k_without_notes)
        return fail(tr("The build was saved by a newer program (form %1).").arg(version));
    stream >> result.plate.width >> result.plate.depth >> result.plate.height >> count;
    const auto usable = [](double side) { return side >= 1.0 && side <= 10000.0; };
    if (!usable(result.plate.width) || !usable(result.plate.depth) ||
        !usable(result.plate.height) || count > k_most_parts)
        return fail(tr("The build is damaged: its head makes no sense."));
    std::vector<MeshPtr> meshes;
    for (quint32 i = 0; i < count; ++i) {
        MeshPtr mesh = ReadMesh(stream);
        if (!mesh)
            return fail(tr("The build is damaged: mesh %1 cannot be read.").arg(i + 1));
        meshes.push_back(std::move(mesh));
    }
    stream >> count;
    if (stream.status() != QDataStream::Ok || count > k_most_parts)
        return fail(tr("The build is damaged: its list of parts makes no sense."));
    for (quint32 i = 0; i < count; ++i) {
        QString name, file;
        QRgb color = 0;
        bool visible = true, locked = false;
        quint32 mesh = 0;
        stream >> name >> file >> color >> visible >> locked >> mesh;
        Transform placement;
        bool finite = true;
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                double value = 0.0;
                stream >> value;
                finite = finite && std::isfinite(value);
                placement.Set(row, column, value);
            }
        }
        Vec3 shift;
        stream >> shift.x >> shift.y >> shift.z;
        placement.SetShift(shift);
        if (stream.status() != QDataStream::Ok || mesh >= meshes.size() || !finite ||
            !IsFinite(shift))
            return fail(tr("The build is damaged: part %1 cannot be read.").arg(i + 1));
        Part part(name, meshes[mesh], color);
        part.file = file;
        part.visible = visible;
        part.locked = locked;
        part.SetPlacement(placement);
        result.parts.push_back(std::move(part));
    }
    if (version != k_without_notes) {
        quint32 notes = 0;
        stream >> result.note >> notes;
        // Not a whole list at once: a damaged length would ask for all the memory there is.
        for (quint32 i = 0; i < notes && i < result.parts.size(); ++i) {
            QString note;
            stream >> note;
            result.notes.append(note);
        }
        if (stream.status() != QDataStream::Ok || notes != result.parts.size())
            return fail(tr("The build is damaged: its notes cannot be read."));
    }
    return result;
}

QString BuildFile::Save(const QString& path, const PartList& parts, const Plate& plate,
                        const std::function<QString(int)>& note_of)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return tr("The file cannot be written: %1.").arg(file.errorString());
    file.write(Write(parts, plate, note_of));
    return file.commit() ? QString()
                         : tr("The file cannot be written: %1.").arg(file.errorString());
}

BuildFile::Result BuildFile::Load(const QString& path)
{
    Result failed;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        failed.error = tr("The file cannot be opened: %1.").arg(file.errorString());
        return failed;
    }
    if (file.size() > StlReader::k_max_bytes) {
        failed.error = tr("The file is too large.");
        return failed;
    }
    return Read(file.readAll());
}

} // namespace tarnix
