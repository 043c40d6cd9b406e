#include "version_block_p.h"

#include "ovk/core/version_info.h"

#include <QIODevice>
#include <QtEndian>

#include <optional>

namespace ovk {

namespace {

constexpr quint32 BlockSignature = 0xfeef04bd;
constexpr int BlockSize = 52;

/// Reads numbers at given places of a file.
class Image
{
public:
    explicit Image(QIODevice& device, bool bigEndian = false)
        : m_device(device), m_size(static_cast<quint64>(qMax<qint64>(device.size(), 0))), m_big_endian(bigEndian)
    {
    }

    QByteArray Bytes(quint64 offset, int count) const
    {
        if (offset > m_size || static_cast<quint64>(count) > m_size - offset
            || !m_device.seek(static_cast<qint64>(offset)))
            return QByteArray();
        const QByteArray bytes = m_device.read(count);
        return bytes.size() == count ? bytes : QByteArray();
    }

    template <class Number>
    std::optional<quint64> Read(quint64 offset) const
    {
        const QByteArray bytes = Bytes(offset, sizeof(Number));
        if (bytes.isEmpty())
            return std::nullopt;
        return m_big_endian ? qFromBigEndian<Number>(bytes.constData())
                            : qFromLittleEndian<Number>(bytes.constData());
    }
    std::optional<quint64> U16(quint64 offset) const { return Read<quint16>(offset); }
    std::optional<quint64> U32(quint64 offset) const { return Read<quint32>(offset); }
    std::optional<quint64> U64(quint64 offset) const { return Read<quint64>(offset); }

private:
    QIODevice& m_device;
    quint64 m_size;
    bool m_big_endian;
};

/// The version in the fixed file information at \a offset.
VersionInfo VersionAt(const Image& image, quint64 offset)
{
    if (image.Bytes(offset, BlockSize).isEmpty() || image.U32(offset) != BlockSignature)
        return VersionInfo();
    const auto high = static_cast<quint32>(*image.U32(offset + 8));
    const auto low = static_cast<quint32>(*image.U32(offset + 12));
    return VersionInfo(static_cast<int>(high >> 16), static_cast<int>(high & 0xffff),
                       static_cast<int>(low >> 16), static_cast<int>(low & 0xffff));
}

/// The version resource of a PE file.
class PeReader
{
public:
    explicit PeReader(const Image& image) : m_image(image) {}

    VersionInfo Read()
    {
        const auto header = m_image.U32(0x3c);
        if (!header || m_image.Bytes(*header, 4) != QByteArray("PE\0\0", 4))
            return VersionInfo();
        const quint64 coff = *header + 4;
        const quint64 optional = coff + 20;
        const auto section_count = m_image.U16(coff + 2);
        const auto optional_size = m_image.U16(coff + 16);
        const auto magic = m_image.U16(optional);
        if (!section_count || !optional_size || (magic != 0x10b && magic != 0x20b))
            return VersionInfo();
        // The third data directory is that of the resources.
        const quint64 count_at = magic == 0x20b ? 108 : 92;
        const quint64 directory_at = count_at + 4 + 2 * 8;
        const auto directories = m_image.U32(optional + count_at);
        if (!directories || *directories < 3 || *optional_size < directory_at + 8)
            return VersionInfo();
        const auto resources = m_image.U32(optional + directory_at);
        if (!resources || *resources == 0)
            return VersionInfo();
        m_sections = optional + *optional_size;
        m_section_count = *section_count;
        const auto root = FileOffset(*resources);
        return root ? ReadResources(*root) : VersionInfo();
    }

private:
    static constexpr quint64 VersionType = 16;
    static constexpr quint64 IsDirectory = 0x80000000u;
    static constexpr int MaxEntries = 4096;

    /// Where the address \a rva of the loaded image is in the file.
    std::optional<quint64> FileOffset(quint64 rva) const
    {
        for (quint64 i = 0; i < m_section_count; ++i) {
            const quint64 section = m_sections + i * 40;
            const auto address = m_image.U32(section + 12);
            const auto raw_size = m_image.U32(section + 16);
            const auto raw_offset = m_image.U32(section + 20);
            if (!address || !raw_size || !raw_offset)
                return std::nullopt;
            if (rva >= *address && rva - *address < *raw_size)
                return *raw_offset + (rva - *address);
        }
        return std::nullopt;
    }

    /// The value of the first entry of the directory at \a directory, or of the one with \a id.
    std::optional<quint64> Entry(quint64 directory, std::optional<quint64> id) const
    {
        const auto named = m_image.U16(directory + 12);
        const auto numbered = m_image.U16(directory + 14);
        if (!named || !numbered)
            return std::nullopt;
        const quint64 count = qMin<quint64>(*named + *numbered, MaxEntries);
        for (quint64 i = 0; i < count; ++i) {
            const auto name = m_image.U32(directory + 16 + i * 8);
            const auto value = m_image.U32(directory + 16 + i * 8 + 4);
            if (!name || !value)
                return std::nullopt;
            if (!id || *name == *id)
                return value;
        }
        return std::nullopt;
    }

    /// Type, name, language, data: three levels, no more, so that no cycle can catch the walk.
    VersionInfo ReadResources(quint64 root) const
    {
        const auto type = Entry(root, VersionType);
        if (!type || !(*type & IsDirectory))
            return VersionInfo();
        const auto name = Entry(root + (*type & ~IsDirectory), std::nullopt);
        if (!name || !(*name & IsDirectory))
            return VersionInfo();
        const auto language = Entry(root + (*name & ~IsDirectory), std::nullopt);
        if (!language || (*language & IsDirectory))
            return VersionInfo();
        const auto rva = m_image.U32(root + *language);
        const auto size = m_image.U32(root + *language + 4);
        const auto data = rva ? FileOffset(*rva) : std::nullopt;
        if (!data || !size)
            return VersionInfo();
        return ReadVersionResource(*data, *size);
    }

    /// Behind three words and the key, padded to 32 bits, stands the fixed file information.
    VersionInfo ReadVersionResource(quint64 data, quint64 size) const
    {
        static const QByteArray s_key = [] {
            QByteArray key;
            for (const char c : QByteArray("VS_VERSION_INFO"))
                key.append(c).append('\0');
            return key.append("\0\0", 2);
        }();
        const quint64 value = (6 + static_cast<quint64>(s_key.size()) + 3) & ~quint64(3);
        const auto value_length = m_image.U16(data + 2);
        if (size < value + BlockSize || !value_length || *value_length < BlockSize
            || m_image.Bytes(data + 6, s_key.size()) != s_key)
            return VersionInfo();
        return VersionAt(m_image, data + value);
    }

    const Image& m_image;
    quint64 m_sections = 0;
    quint64 m_section_count = 0;
};

/// The section ".ovk.version" of an ELF file of either width and either byte order.
class ElfReader
{
public:
    ElfReader(const Image& image, bool is64) : m_image(image), m_is64(is64) {}

    VersionInfo Read() const
    {
        const auto table = Word(m_is64 ? 0x28 : 0x20);
        const auto entry_size = m_image.U16(m_is64 ? 0x3a : 0x2e);
        auto count = m_image.U16(m_is64 ? 0x3c : 0x30);
        auto names = m_image.U16(m_is64 ? 0x3e : 0x32);
        if (!table || *table == 0 || !entry_size || *entry_size < (m_is64 ? 64u : 40u) || !count || !names)
            return VersionInfo();
        // Large numbers of sections stand in the first entry of the table.
        if (*count == 0)
            count = Word(*table + (m_is64 ? 0x20 : 0x14));
        if (*names == 0xffff)
            names = m_image.U32(*table + (m_is64 ? 0x28 : 0x18));
        if (!count || !names || *names >= *count)
            return VersionInfo();
        const auto names_offset = SectionOffset(*table + *names * *entry_size);
        if (!names_offset)
            return VersionInfo();

        const QByteArray wanted(".ovk.version", sizeof(".ovk.version"));
        const quint64 end = qMin<quint64>(*count, MaxSections);
        for (quint64 i = 0; i < end; ++i) {
            const quint64 section = *table + i * *entry_size;
            const auto name = m_image.U32(section);
            if (!name)
                return VersionInfo();
            if (m_image.Bytes(*names_offset + *name, wanted.size()) != wanted)
                continue;
            const auto offset = SectionOffset(section);
            const auto size = Word(section + (m_is64 ? 0x20 : 0x14));
            if (offset && size && *size >= BlockSize)
                return VersionAt(m_image, *offset);
        }
        return VersionInfo();
    }

private:
    static constexpr quint64 MaxSections = 65536;

    std::optional<quint64> Word(quint64 offset) const
    {
        return m_is64 ? m_image.U64(offset) : m_image.U32(offset);
    }
    std::optional<quint64> SectionOffset(quint64 section) const
    {
        return Word(section + (m_is64 ? 0x18 : 0x10));
    }

    const Image& m_image;
    bool m_is64;
};

} // namespace

VersionInfo ReadVersionBlock(QIODevice& device)
{
    const Image image(device);
    const QByteArray start = image.Bytes(0, 6);
    if (start.startsWith("MZ"))
        return PeReader(image).Read();
    if (start.startsWith("\x7f" "ELF") && (start.at(4) == 1 || start.at(4) == 2)) {
        const Image elf(device, start.at(5) == 2);
        return ElfReader(elf, start.at(4) == 2).Read();
    }
    return VersionInfo();
}

} // namespace ovk
