#include "file.h"

#include "ovk/ui_state/profile_document_p.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <QTextStream>

#include <cstdio>

namespace ovk_profile {
namespace {

const QString STANDARD_STREAM = QStringLiteral("-");

QByteArray ReadBytes(const QString& path)
{
    QFile file(path);
    const bool is_stream = path == STANDARD_STREAM;
    if (is_stream ? !file.open(stdin, QIODevice::ReadOnly) : !file.open(QIODevice::ReadOnly))
        throw FileError{
            QStringLiteral("%1: %2; check the name and its rights").arg(path, file.errorString())};
    return file.readAll();
}

QJsonObject ParseText(const QString& path, const QByteArray& data)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError) {
        const int line = 1 + data.left(error.offset).count('\n');
        const int column = error.offset - data.left(error.offset).lastIndexOf('\n');
        throw FileError{QStringLiteral("%1:%2:%3: %4; mend the text there, or take an older copy")
                            .arg(path)
                            .arg(line)
                            .arg(column)
                            .arg(error.errorString())};
    }
    if (!document.isObject())
        throw FileError{
            QStringLiteral("%1: $: the root is not an object; give a profile or a catalogue")
                .arg(path)};
    return document.object();
}

Kind KindOf(const QString& path, const QJsonObject& root)
{
    if (root.contains(QLatin1String("profile")))
        return Kind::Profile;
    if (root.contains(QLatin1String("commands")) || root.contains(QLatin1String("products")))
        return Kind::Catalogue;
    throw FileError{QStringLiteral("%1: $: neither a profile (\"profile\") nor a catalogue "
                                   "(\"commands\", \"products\"); give one of them")
                        .arg(path)};
}

} // namespace

File ReadFile(const QString& path)
{
    File file;
    file.path = path;
    const QByteArray data = ReadBytes(path);
    if (data.startsWith("qbjs")) {
        file.format = Format::Binary;
        const auto root = ovk::ParseDocument(data, ovk::DocumentFormat::Binary);
        if (!root)
            throw FileError{
                QStringLiteral("%1: $: damaged binary document; take an older copy").arg(path)};
        file.root = *root;
    } else {
        file.root = ParseText(path, data);
    }
    file.kind = KindOf(path, file.root);
    return file;
}

File ReadProfile(const QString& path)
{
    File file = ReadFile(path);
    if (file.kind != Kind::Profile || !file.root.value(QLatin1String("profile")).isObject())
        throw FileError{
            QStringLiteral("%1: $.profile: not a profile; give a file with the object \"profile\"")
                .arg(path)};
    return file;
}

void WriteFile(const QString& path, const QJsonObject& root, Format format, QTextStream& out)
{
    const auto document =
        format == Format::Binary ? ovk::DocumentFormat::Binary : ovk::DocumentFormat::Json;
    bool written = false;
    if (path.isEmpty() || path == STANDARD_STREAM) {
        const QByteArray data = ovk::FormatDocument(root, document);
        if (format == Format::Text) {
            out << QString::fromUtf8(data);
            written = !data.isEmpty();
        } else {
            QFile file;
            out.flush();
            written = !data.isEmpty() && file.open(stdout, QIODevice::WriteOnly) &&
                      file.write(data) == data.size() && file.flush();
        }
    } else {
        written = ovk::WriteDocument(path, root, document) == ovk::WriteResult::Written;
    }
    if (!written)
        throw FileError{
            QStringLiteral("%1: cannot be written; look at the folder, its rights and the room on "
                           "the disk")
                .arg(path.isEmpty() ? STANDARD_STREAM : path)};
}

Format FormatOfName(const QString& path)
{
    return QFileInfo(path).suffix() == QLatin1String("bin") ? Format::Binary : Format::Text;
}

} // namespace ovk_profile
