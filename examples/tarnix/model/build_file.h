#pragma once

#include "model/scene.h"

#include <QByteArray>
#include <QCoreApplication>

namespace tarnix {

/// The program's own file: the plate, and all parts with their meshes, so that a build can be
/// moved to another machine as one file. Also the form of parts on the clipboard.
class BuildFile
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::BuildFile)

public:
    struct Result
    {
        PartList parts;
        Plate plate;
        QString note;      ///< about the build
        QStringList notes; ///< about the parts, one each
        QString error; ///< empty when all went well

        explicit operator bool() const { return error.isEmpty(); }
    };

    static const char* MimeType() { return "application/x-tarnix-build"; }
    static QString Extension() { return QStringLiteral("tarnix"); }

    /// Meshes that several parts share are written once. Notes, where there are any, go by the
    /// parts' ids; 0 is the build.
    static QByteArray Write(const PartList& parts, const Plate& plate,
                            const std::function<QString(int)>& note_of = nullptr);
    static Result Read(const QByteArray& bytes);

    /// Empty on success, else a sentence for the user. An old file stays whole on failure.
    static QString Save(const QString& path, const PartList& parts, const Plate& plate,
                        const std::function<QString(int)>& note_of = nullptr);
    static Result Load(const QString& path);
};

} // namespace tarnix
