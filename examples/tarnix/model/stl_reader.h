#pragma once

#include "model/mesh.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace tarnix {

/// Reads STL files, binary and ASCII. What the file claims is never trusted: counts are checked
/// against the bytes that are there, numbers must be finite and of a size that a machine could
/// build, and a fault is told with its place.
class StlReader
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::StlReader)

public:
    enum class Format
    {
        Binary,
        Ascii
    };

    static constexpr qint64 k_max_bytes = 512ll * 1024 * 1024;
    static constexpr quint32 k_max_triangles = 5000000;
    /// Millimetres from the origin; further out lies a broken file.
    static constexpr double k_max_coordinate = 1.0e6;

    struct Result
    {
        MeshPtr mesh;  ///< null when there was an error
        QString name;  ///< the name that the file gives its solid, often empty
        QString error; ///< one sentence for the user, empty when all went well
        Format format = Format::Binary;

        explicit operator bool() const { return mesh != nullptr; }
    };

    /// Which of the two forms the bytes are. A file that starts with "solid" is binary all the
    /// same when its length is what the binary count says, as many programs write it.
    static Format Sniff(const QByteArray& bytes);

    static Result Read(const QByteArray& bytes);
    static Result ReadFile(const QString& path);

private:
    static Result ReadBinary(const QByteArray& bytes);
    static Result ReadAscii(const QByteArray& bytes);
};

/// Writes STL files.
class StlWriter
{
public:
    static QByteArray Binary(const Mesh& mesh, const QString& name);
    static QByteArray Ascii(const Mesh& mesh, const QString& name);
};

} // namespace tarnix
