#include "tests/support/fake_application.h"

#include <ovk/core/version_info.h>
#include <windows/file_version.h>

#include <QRandomGenerator>
#include <QtEndian>

using namespace ovk;
using namespace ovk_test;

namespace {

/// Writes little-endian numbers, or big-endian ones, at given places.
class Bytes
{
public:
    explicit Bytes(int size, bool bigEndian = false) : m_bytes(size, '\0'), m_big_endian(bigEndian) {}

    template <class Number>
    void Put(int offset, Number value)
    {
        if (m_big_endian)
            qToBigEndian<Number>(value, m_bytes.data() + offset);
        else
            qToLittleEndian<Number>(value, m_bytes.data() + offset);
    }
    void Put16(int offset, quint16 value) { Put(offset, value); }
    void Put32(int offset, quint32 value) { Put(offset, value); }
    void Put64(int offset, quint64 value) { Put(offset, value); }
    void Text(int offset, const QByteArray& text) { m_bytes.replace(offset, text.size(), text); }
    const QByteArray& Get() const { return m_bytes; }

private:
    QByteArray m_bytes;
    bool m_big_endian;
};

void PutBlock(Bytes& bytes, int offset)
{
    bytes.Put32(offset, 0xfeef04bd);
    bytes.Put32(offset + 4, 0x00010000);
    bytes.Put32(offset + 8, (3u << 16) | 2u);
    bytes.Put32(offset + 12, (1u << 16) | 65535u);
}

constexpr int PeResources = 0x400;
constexpr int PeVersion = PeResources + 0x60;

/// A file with the version resource in its second section, loaded elsewhere than it is stored.
QByteArray PeFile(bool is64 = true)
{
    Bytes pe(0x600);
    pe.Text(0, "MZ");
    pe.Put32(0x3c, 0x80);
    pe.Text(0x80, QByteArray("PE\0\0", 4));
    pe.Put16(0x84 + 2, 2); // sections
    const int optional = 0x84 + 20;
    const int optional_size = is64 ? 240 : 224;
    pe.Put16(0x84 + 16, quint16(optional_size));
    pe.Put16(optional, is64 ? 0x20b : 0x10b);
    const int count = optional + (is64 ? 108 : 92);
    pe.Put32(count, 16);
    pe.Put32(count + 4 + 16, 0x3000); // resources
    pe.Put32(count + 4 + 20, 0x200);
    const int sections = optional + optional_size;
    pe.Put32(sections + 12, 0x1000);
    pe.Put32(sections + 16, 0x200);
    pe.Put32(sections + 20, 0x200);
    pe.Put32(sections + 40 + 12, 0x3000);
    pe.Put32(sections + 40 + 16, 0x200);
    pe.Put32(sections + 40 + 20, PeResources);
    // Types: icons by name first, then the version; one name; one language.
    pe.Put16(PeResources + 12, 1);
    pe.Put16(PeResources + 14, 1);
    pe.Put32(PeResources + 16, 0x80000100);
    pe.Put32(PeResources + 20, 0x80000100);
    pe.Put32(PeResources + 24, 16);
    pe.Put32(PeResources + 28, 0x80000020);
    pe.Put16(PeResources + 0x20 + 14, 1);
    pe.Put32(PeResources + 0x30, 1);
    pe.Put32(PeResources + 0x34, 0x80000038);
    pe.Put16(PeResources + 0x38 + 14, 1);
    pe.Put32(PeResources + 0x48, 0x409);
    pe.Put32(PeResources + 0x4c, 0x50);
    pe.Put32(PeResources + 0x50, 0x3060);
    pe.Put32(PeResources + 0x54, 92);
    pe.Put16(PeVersion, 92);
    pe.Put16(PeVersion + 2, 52);
    const QByteArray key("VS_VERSION_INFO");
    for (int i = 0; i < key.size(); ++i)
        pe.Put16(PeVersion + 6 + 2 * i, quint16(key.at(i)));
    PutBlock(pe, PeVersion + 40);
    return pe.Get();
}

/// A file with three sections: none, names, version.
QByteArray ElfFile(bool is64 = true, bool bigEndian = false)
{
    Bytes elf(0x400, bigEndian);
    elf.Text(0, "\x7f" "ELF");
    elf.Text(4, QByteArray(1, is64 ? 2 : 1) + QByteArray(1, bigEndian ? 2 : 1));
    const int table = 0x100;
    const int entry = is64 ? 64 : 40;
    if (is64)
        elf.Put64(0x28, table);
    else
        elf.Put32(0x20, table);
    elf.Put16(is64 ? 0x3a : 0x2e, quint16(entry));
    elf.Put16(is64 ? 0x3c : 0x30, 3);
    elf.Put16(is64 ? 0x3e : 0x32, 1);
    const auto section = [&](int index, quint32 name, quint32 offset, quint32 size) {
        const int at = table + index * entry;
        elf.Put32(at, name);
        if (is64) {
            elf.Put64(at + 0x18, offset);
            elf.Put64(at + 0x20, size);
        } else {
            elf.Put32(at + 0x10, offset);
            elf.Put32(at + 0x14, size);
        }
    };
    section(1, 1, 0x300, 0x20);
    section(2, 11, 0x340, 52);
    elf.Text(0x301, QByteArray(".shstrtab\0.ovk.version\0", 23));
    PutBlock(elf, 0x340);
    return elf.Get();
}

} // namespace

class FileVersionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theVersionIsFound_data();
    void theVersionIsFound();
    void aDamagedFileHasNoVersion_data();
    void aDamagedFileHasNoVersion();
    void everyTruncationIsHarmless_data();
    void everyTruncationIsHarmless();
    void noiseIsHarmless();
    void aFileIsReadFromTheDisk();
    void manySectionsAreCountedInTheFirst();
};

void FileVersionTest::theVersionIsFound_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("PE 64") << PeFile(true);
    QTest::newRow("PE 32") << PeFile(false);
    QTest::newRow("ELF 64 little") << ElfFile(true, false);
    QTest::newRow("ELF 64 big") << ElfFile(true, true);
    QTest::newRow("ELF 32 little") << ElfFile(false, false);
    QTest::newRow("ELF 32 big") << ElfFile(false, true);
}

void FileVersionTest::theVersionIsFound()
{
    QFETCH(QByteArray, file);
    QCOMPARE(ReadFileVersion(file).ToString(), QString("3.2.1.65535"));
}

void FileVersionTest::aDamagedFileHasNoVersion_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto row = [](const char* name, QByteArray file, int offset, const QByteArray& bytes) {
        QTest::newRow(name) << file.replace(offset, bytes.size(), bytes);
    };
    const QByteArray ones(4, '\xff');
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("#!/bin/sh\n");
    row("PE header far outside", PeFile(), 0x3c, ones);
    row("PE signature", PeFile(), 0x80, "XX");
    row("PE optional header", PeFile(), 0x84 + 20, "XX");
    row("PE few directories", PeFile(), 0x84 + 20 + 108, QByteArray("\2\0\0\0", 4));
    row("PE resources outside all sections", PeFile(), 0x84 + 20 + 108 + 20, ones);
    row("PE resource section outside the file", PeFile(), 0x84 + 20 + 240 + 40 + 20, ones);
    row("PE no version type", PeFile(), PeResources + 24, QByteArray("\3\0\0\0", 4));
    row("PE type is no folder", PeFile(), PeResources + 28, QByteArray(4, '\0'));
    row("PE folder outside the file", PeFile(), PeResources + 28, ones);
    row("PE folder in itself", PeFile(), PeResources + 0x4c, QByteArray("\x20\0\0\x80", 4));
    row("PE data outside", PeFile(), PeResources + 0x50, ones);
    row("PE data too short", PeFile(), PeResources + 0x54, QByteArray("\x20\0\0\0", 4));
    row("PE key", PeFile(), PeVersion + 6, "X");
    row("PE no value", PeFile(), PeVersion + 2, QByteArray(2, '\0'));
    row("PE block signature", PeFile(), PeVersion + 40, "XX");
    row("ELF class", ElfFile(), 4, "\3");
    row("ELF table outside", ElfFile(), 0x28, QByteArray(8, '\xff'));
    row("ELF entries too small", ElfFile(), 0x3a, QByteArray("\1\0", 2));
    row("ELF names index outside", ElfFile(), 0x3e, QByteArray("\7\0", 2));
    row("ELF names outside the file", ElfFile(), 0x100 + 64 + 0x18, QByteArray(8, '\xff'));
    row("ELF other section", ElfFile(), 0x301 + 10, ".txt");
    row("ELF longer name", ElfFile(), 0x301 + 10 + 12, "s");
    row("ELF section too small", ElfFile(), 0x100 + 128 + 0x20, QByteArray("\x10", 1));
    row("ELF block outside", ElfFile(), 0x100 + 128 + 0x18, QByteArray(8, '\xff'));
    row("ELF block signature", ElfFile(), 0x340, "XX");
}

void FileVersionTest::aDamagedFileHasNoVersion()
{
    QFETCH(QByteArray, file);
    QCOMPARE(ReadFileVersion(file).ToString(), QString("0.0.0.0"));
}

void FileVersionTest::everyTruncationIsHarmless_data()
{
    theVersionIsFound_data();
}

void FileVersionTest::everyTruncationIsHarmless()
{
    QFETCH(QByteArray, file);
    for (int size = 0; size < file.size(); ++size) {
        const QString version = ReadFileVersion(file.left(size)).ToString();
        QVERIFY(version == "0.0.0.0" || version == "3.2.1.65535");
    }
}

void FileVersionTest::noiseIsHarmless()
{
    const quint32 seed = 20240611;
    QRandomGenerator random(seed);
    const QByteArray files[] = {PeFile(true), PeFile(false), ElfFile(true, false), ElfFile(false, true)};
    for (int round = 0; round < 4000; ++round) {
        QByteArray file = files[round % 4];
        const int changes = random.bounded(1, 12);
        for (int i = 0; i < changes; ++i)
            file[random.bounded(file.size())] = char(random.bounded(256));
        ReadFileVersion(file);
    }
}

void FileVersionTest::aFileIsReadFromTheDisk()
{
#ifndef Q_OS_WIN
    const QString path = DataHome() + "/version/host";
    QVERIFY(WriteFile(path, ElfFile()));
    QCOMPARE(ReadFileVersion(path).ToString(), QString("3.2.1.65535"));
#endif
    QVERIFY(!ReadFileVersion(DataHome() + "/version/none").IsValid());
    QVERIFY(!ReadFileVersion(DataHome()).IsValid());
    QVERIFY(!ReadFileVersion(QString()).IsValid());
}

void FileVersionTest::manySectionsAreCountedInTheFirst()
{
    QByteArray file = ElfFile();
    file.replace(0x3c, 2, QByteArray(2, '\0'));
    file.replace(0x3e, 2, QByteArray("\xff\xff", 2));
    QCOMPARE(ReadFileVersion(file).ToString(), QString("0.0.0.0"));
    file.replace(0x100 + 0x20, 1, "\3");
    file.replace(0x100 + 0x28, 1, "\1");
    QCOMPARE(ReadFileVersion(file).ToString(), QString("3.2.1.65535"));
}

OVK_TEST_CLASS(FileVersionTest)

#include "file_version_test.moc"
