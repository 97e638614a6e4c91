#include "Contents.h"

#include "EntryName.h"
#include "FileDescriptor.h"
#include "LittleEndian.h"
#include "LocalHeaders.h"
#include "UnzipStatus.h"

#include <sys/stat.h>
#include <zip.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <unordered_map>

namespace
{

struct Discard {
    void operator()(zip_t *zip) const { zip_discard(zip); }
};
using Zip = std::unique_ptr<zip_t, Discard>;

[[noreturn]] void failToOpen(const ArchiveFile &file, zip_error_t &error)
{
    const UnzipStatus status = zip_error_code_zip(&error) == ZIP_ER_MEMORY ? NoMemory : Damaged;
    const std::string reason = zip_error_strerror(&error);
    zip_error_fini(&error);
    failAs(status, file.path, reason);
}

// libzip gets a descriptor of its own, with which it reads from where the archive starts.
Zip openZip(const ArchiveFile &file, std::uint64_t shift)
{
    zip_error_t error;
    zip_error_init(&error);
    FILE *stream = ::fdopen(::dup(file.descriptor), "rb");
    zip_source_t *source =
        zip_source_filep_create(stream, shift, static_cast<zip_int64_t>(file.size - shift), &error);
    zip_t *zip = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    if (zip)
        return Zip(zip);
    if (source)
        zip_source_free(source);
    else if (stream)
        std::fclose(stream);
    failToOpen(file, error);
}

// Reads what libzip has of one entry.
class EntryReader
{
public:
    EntryReader(zip_t *zip, std::uint64_t index, const CentralDirectory::Item &item)
        : m_zip(zip), m_index(index), m_item(item)
    {
        zip_stat_init(&m_stat);
        zip_file_get_external_attributes(zip, index, 0, &m_system, &m_attributes);
    }

    // Both readers of the directory must have seen the same.
    bool isAgreed()
    {
        return zip_stat_index(m_zip, m_index, 0, &m_stat) == 0 && m_stat.size == m_item.size
            && m_stat.comp_size == m_item.packedSize && m_stat.crc == m_item.crc
            && (m_stat.comp_method == m_item.method || m_item.method == winzipAes);
    }

    std::string name() const;
    std::time_t time() const;
    bool isEncrypted() const { return m_stat.encryption_method != ZIP_EM_NONE; }

    // None for devices, pipes and sockets.
    std::optional<Contents::Kind> kind(std::string_view name) const;
    mode_t mode(Contents::Kind kind) const;

private:
    bool isUnix() const { return m_system == ZIP_OPSYS_UNIX || m_system == ZIP_OPSYS_OS_X; }
    bool isDos() const
    {
        return m_system == ZIP_OPSYS_DOS || m_system == ZIP_OPSYS_OS_2
            || m_system == ZIP_OPSYS_WINDOWS_NTFS || m_system == infoZipNtfs
            || m_system == ZIP_OPSYS_VFAT;
    }
    mode_t unixMode() const { return isUnix() ? m_attributes >> 16 : 0; }

    static constexpr zip_uint16_t winzipAes = 99; // libzip gives the method that it hides
    static constexpr zip_uint8_t infoZipNtfs = 11;
    static constexpr zip_uint32_t dosReadOnly = 1;
    static constexpr zip_uint32_t dosFolder = 16;

    zip_t *m_zip;
    std::uint64_t m_index;
    const CentralDirectory::Item &m_item;
    zip_stat_t m_stat;
    zip_uint8_t m_system = ZIP_OPSYS_UNIX;
    zip_uint32_t m_attributes = 0;
};

// From Unix as it is; from elsewhere UTF-8 if it is that, else code page 437.
std::string EntryReader::name() const
{
    const zip_flags_t encoding = isUnix() ? ZIP_FL_ENC_RAW : ZIP_FL_ENC_GUESS;
    const char *text = zip_get_name(m_zip, m_index, encoding);
    std::string name = text ? text : "";
    if (isDos())
        std::ranges::replace(name, '\\', '/');
    return name;
}

std::time_t EntryReader::time() const
{
    constexpr zip_uint16_t universalTime = 'U' | 'T' << 8;
    zip_uint16_t size = 0;
    const zip_uint8_t *field =
        zip_file_extra_field_get_by_id(m_zip, m_index, universalTime, 0, &size, ZIP_FL_CENTRAL);
    if (!field || size < 5 || !(field[0] & 1))
        return m_stat.mtime;
    const std::string_view bytes(reinterpret_cast<const char *>(field), size);
    return archive::numberAt<std::int32_t>(bytes, 1);
}

std::optional<Contents::Kind> EntryReader::kind(std::string_view name) const
{
    const mode_t type = unixMode() & S_IFMT;
    const bool isDosFolder = isDos() && (m_attributes & dosFolder) != 0 && m_item.size == 0;
    if (name.ends_with('/') || type == S_IFDIR || isDosFolder)
        return Contents::Kind::Folder;
    if (type == S_IFLNK)
        return Contents::Kind::Link;
    if (type == S_IFREG || type == 0)
        return Contents::Kind::File;
    return std::nullopt;
}

mode_t EntryReader::mode(Contents::Kind kind) const
{
    const mode_t all = kind == Contents::Kind::Folder ? 0777 : 0666;
    if (const mode_t mode = unixMode(); mode != 0)
        return mode & 0777;
    const bool isReadOnly =
        kind == Contents::Kind::File && isDos() && (m_attributes & dosReadOnly) != 0;
    return isReadOnly ? all & ~0222U : all;
}

// Puts the entries together, and finds those of one name.
class Collector
{
public:
    Collector(Contents &contents, archive::Report &report) : m_contents(contents), m_report(report)
    {
    }

    void add(EntryReader &reader, const CentralDirectory::Item &item);

private:
    bool isNew(const std::string &path, Contents::Kind kind);
    void list(const EntryReader &reader, const CentralDirectory::Item &item, Contents::Entry entry);

    Contents &m_contents;
    archive::Report &m_report;
    std::unordered_map<std::string, Contents::Kind> m_kinds;
};

// A folder that comes twice loses nothing.
bool Collector::isNew(const std::string &path, Contents::Kind kind)
{
    const auto [found, isNew] = m_kinds.emplace(path, kind);
    return isNew || (kind == Contents::Kind::Folder && found->second == kind);
}

void Collector::add(EntryReader &reader, const CentralDirectory::Item &item)
{
    const std::string name = reader.name();
    const bool hasNull = item.name.find('\0') != std::string_view::npos;
    const auto path = hasNull || name.empty() ? std::nullopt : entryname::below(name);
    const auto kind = reader.kind(name);
    if (path && path->empty() && kind == Contents::Kind::Folder)
        return; // "./": the destination itself, which is the user's
    if (!path || path->empty())
        m_report.leftOut(SomethingLeftOut, name, "Its name leads out of the folder");
    else if (!kind)
        m_report.leftOut(SomethingLeftOut, name, "Neither a file, a folder nor a link");
    else if (!item.isSound)
        m_report.leftOut(Damaged, name, "Its header is damaged");
    else if (!isNew(*path, *kind))
        m_report.leftOut(SomethingLeftOut, name, "Another entry has this name");
    else
        list(reader, item, {.path = *path, .kind = *kind});
}

void Collector::list(const EntryReader &reader, const CentralDirectory::Item &item,
                     Contents::Entry entry)
{
    const bool isEncrypted = reader.isEncrypted() || item.isEncrypted;
    const bool isKnown =
        !item.isUnknown && (item.method == ZIP_CM_STORE || item.method == ZIP_CM_DEFLATE);
    m_contents.isEncrypted = m_contents.isEncrypted || isEncrypted;
    m_contents.hasUnknownMethod = m_contents.hasUnknownMethod || !isKnown;
    entry.method = item.method;
    entry.mode = reader.mode(entry.kind);
    entry.crc = item.crc;
    entry.size = item.size;
    entry.packedSize = item.packedSize;
    entry.data = item.data;
    entry.time = reader.time();
    m_contents.entries.push_back(std::move(entry));
}

} // namespace

Contents Contents::read(const ArchiveFile &file, archive::Report &report)
{
    CentralDirectory directory = CentralDirectory::read(file);
    readLocalHeaders(directory, file);
    const Zip zip = openZip(file, directory.shift);
    Contents contents;
    const auto count = static_cast<std::uint64_t>(zip_get_num_entries(zip.get(), 0));
    if (count != directory.items.size())
        failAs(Damaged, file.path, "The archive's directory is damaged");
    contents.entries.reserve(count);
    Collector collector(contents, report);
    for (std::uint64_t i = 0; i < count; ++i) {
        EntryReader reader(zip.get(), i, directory.items[i]);
        if (!reader.isAgreed())
            failAs(Damaged, file.path, "The archive's directory is damaged");
        collector.add(reader, directory.items[i]);
    }
    return contents;
}
