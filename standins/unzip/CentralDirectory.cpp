#include "CentralDirectory.h"

#include "LittleEndian.h"
#include "System.h"
#include "UnzipStatus.h"

#include <algorithm>
#include <optional>

using archive::numberAt;

namespace
{

constexpr std::size_t endSize = 22;
constexpr std::size_t maxCommentSize = 0xFFFF;
constexpr std::size_t locatorSize = 20;
constexpr std::size_t longEndSize = 56;
constexpr std::size_t headerSize = 46;

constexpr std::uint16_t isEncrypted = 1 << 0;
constexpr std::uint16_t isPatch = 1 << 5;
constexpr std::uint16_t isMasked = 1 << 13;

// The records at the very end.
struct End {
    std::uint64_t position = 0; // in the file; the directory lies before it
    std::uint64_t count = 0;
    std::uint64_t size = 0; // of the directory
    std::uint64_t offset = 0; // of the directory, in the archive
};

[[noreturn]] void failAsDamaged(const ArchiveFile &file)
{
    failAs(Damaged, file.path, "The archive's directory is damaged");
}

std::string readText(const ArchiveFile &file, std::uint64_t offset, std::size_t size)
{
    std::string text(size, '\0');
    file.read(offset, text.data(), size);
    return text;
}

// Where its last record starts: the one whose comment fills the rest of the file, as a comment may
// hold what looks like one; if there is none, the last.
std::uint64_t findEnd(const ArchiveFile &file)
{
    const std::size_t size = std::min<std::uint64_t>(file.size, endSize + maxCommentSize);
    const std::string tail = readText(file, file.size - size, size);
    constexpr auto none = std::string::npos;
    const auto last = size < endSize ? none : tail.rfind("PK\5\6", size - endSize);
    if (last == none)
        failAs(NoArchive, file.path, "Not a zip archive, or not the whole of one");
    auto position = last;
    while (position != none
           && position + endSize + numberAt<std::uint16_t>(tail, position + 20) != size)
        position = position == 0 ? none : tail.rfind("PK\5\6", position - 1);
    return file.size - size + (position == none ? last : position);
}

// The record that replaces the short one, if there is one.
std::optional<End> longEnd(const ArchiveFile &file, std::uint64_t shortEnd)
{
    if (shortEnd < locatorSize + longEndSize)
        return std::nullopt;
    const std::string locator = readText(file, shortEnd - locatorSize, locatorSize);
    if (!locator.starts_with("PK\6\7"))
        return std::nullopt;
    std::uint64_t position = numberAt<std::uint64_t>(locator, 8);
    std::string record;
    // Bytes before the archive shift it; then it is looked for where it mostly is.
    for (std::uint64_t place : {position, shortEnd - locatorSize - longEndSize}) {
        if (place > shortEnd - locatorSize - longEndSize)
            continue;
        position = place;
        record = readText(file, place, longEndSize);
        if (record.starts_with("PK\6\6"))
            break;
    }
    if (!record.starts_with("PK\6\6"))
        failAsDamaged(file);
    if (numberAt<std::uint32_t>(locator, 16) > 1 || numberAt<std::uint64_t>(record, 16) != 0)
        failAs(MethodUnknown, file.path, "One of several volumes");
    return End{.position = position,
               .count = numberAt<std::uint64_t>(record, 32),
               .size = numberAt<std::uint64_t>(record, 40),
               .offset = numberAt<std::uint64_t>(record, 48)};
}

End readEnd(const ArchiveFile &file)
{
    const std::uint64_t position = findEnd(file);
    const std::string record = readText(file, position, endSize);
    const End end{.position = position,
                  .count = numberAt<std::uint16_t>(record, 10),
                  .size = numberAt<std::uint32_t>(record, 12),
                  .offset = numberAt<std::uint32_t>(record, 16)};
    const bool isLong = end.count == 0xFFFF || end.size == 0xFFFF'FFFF || end.offset == 0xFFFF'FFFF;
    if (isLong) {
        if (const auto found = longEnd(file, position))
            return *found;
    }
    if (numberAt<std::uint32_t>(record, 4) != 0
        || numberAt<std::uint16_t>(record, 8) != numberAt<std::uint16_t>(record, 10))
        failAs(MethodUnknown, file.path, "One of several volumes");
    return end;
}

// ZIP64: the extra field holds, in this order, what does not fit into the header.
bool takeLongValues(CentralDirectory::Item &item, std::string_view extra)
{
    while (extra.size() >= 4) {
        const std::size_t size = numberAt<std::uint16_t>(extra, 2);
        std::string_view field = extra.substr(4, size);
        if (field.size() < size)
            return false;
        if (numberAt<std::uint16_t>(extra, 0) == 1) {
            for (std::uint64_t *value : {&item.size, &item.packedSize, &item.header}) {
                if (*value != 0xFFFF'FFFF)
                    continue;
                if (field.size() < 8)
                    return false;
                *value = numberAt<std::uint64_t>(field, 0);
                field.remove_prefix(8);
            }
            return true;
        }
        extra.remove_prefix(4 + size);
    }
    return true;
}

// Takes one header from the front.
std::optional<CentralDirectory::Item> takeItem(std::string_view &rest)
{
    if (rest.size() < headerSize || !rest.starts_with("PK\1\2"))
        return std::nullopt;
    const std::size_t nameSize = numberAt<std::uint16_t>(rest, 28);
    const std::size_t extraSize = numberAt<std::uint16_t>(rest, 30);
    const std::size_t size = headerSize + nameSize + extraSize + numberAt<std::uint16_t>(rest, 32);
    if (rest.size() < size)
        return std::nullopt;
    const auto flags = numberAt<std::uint16_t>(rest, 8);
    CentralDirectory::Item item{.name = rest.substr(headerSize, nameSize),
                                .packedSize = numberAt<std::uint32_t>(rest, 20),
                                .size = numberAt<std::uint32_t>(rest, 24),
                                .header = numberAt<std::uint32_t>(rest, 42),
                                .crc = numberAt<std::uint32_t>(rest, 16),
                                .method = numberAt<std::uint16_t>(rest, 10)};
    item.isEncrypted = (flags & (isEncrypted | isMasked)) != 0;
    item.isUnknown = (flags & isPatch) != 0 || numberAt<std::uint16_t>(rest, 34) != 0;
    if (!takeLongValues(item, rest.substr(headerSize + nameSize, extraSize)))
        return std::nullopt;
    rest.remove_prefix(size);
    return item;
}

} // namespace

void ArchiveFile::read(std::uint64_t offset, char *bytes, std::size_t count) const
{
    const ssize_t got = archive::readFully(descriptor, {bytes, count}, offset);
    if (got < 0 || static_cast<std::size_t>(got) < count)
        failAs(Damaged, path, "The archive cannot be read to its end");
}

CentralDirectory CentralDirectory::read(const ArchiveFile &file)
{
    const End end = readEnd(file);
    if (end.size > end.position || end.offset > end.position - end.size
        || end.count > end.size / headerSize)
        failAsDamaged(file);
    CentralDirectory directory;
    directory.start = end.position - end.size;
    directory.shift = directory.start - end.offset;
    directory.bytes = Buffer(end.size);
    file.read(directory.start, directory.bytes.data(), directory.bytes.size());
    directory.items.reserve(end.count);
    std::string_view rest(directory.bytes.data(), directory.bytes.size());
    for (std::uint64_t i = 0; i < end.count; ++i) {
        auto item = takeItem(rest);
        if (!item || item->header > directory.start - directory.shift)
            failAsDamaged(file);
        item->header += directory.shift;
        directory.items.push_back(*item);
    }
    return directory;
}
