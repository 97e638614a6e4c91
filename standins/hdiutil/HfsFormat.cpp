#include "HfsFormat.h"

#include <algorithm>
#include <limits>

namespace hfs
{

namespace
{

constexpr std::int64_t secondsFrom1904To1970 = 2082844800;

// "Catalog File Data".
enum RecordType : std::uint16_t { FolderRecord = 1, FileRecord, FolderThread, FileThread };
constexpr std::uint16_t threadExists = 0x0002;
constexpr std::uint16_t hasFolderCount = 0x0010;

// "HFS Plus Permissions": the number for an owner or group that is not known.
constexpr std::uint32_t unknownOwner = 99;
constexpr std::uint16_t folderMode = 0040000;
constexpr std::uint16_t fileMode = 0100000;
constexpr std::uint16_t linkMode = 0120000;

// "Symbolic Links".
constexpr std::uint32_t linkType = 0x736C6E6B; // 'slnk'
constexpr std::uint32_t linkCreator = 0x72686170; // 'rhap'

std::uint32_t clampedDate(std::int64_t seconds)
{
    constexpr std::int64_t latest = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(seconds, 0, latest));
}

// Whoever opens the image is not the one who made it: all may read what that person could.
std::uint16_t modeOf(const Item &item)
{
    switch (item.kind) {
    case ItemKind::Folder:
        return folderMode | item.permissions | 0555;
    case ItemKind::File:
        return fileMode | item.permissions | 0444;
    case ItemKind::Link:
        break;
    }
    return linkMode | 0777;
}

void appendName(BigEndianWriter &out, std::u16string_view name)
{
    out.u16(static_cast<std::uint16_t>(name.size()));
    for (const char16_t unit : name)
        out.u16(unit);
}

} // namespace

std::uint32_t dateFrom(std::time_t time)
{
    constexpr auto latest = std::numeric_limits<std::time_t>::max() - secondsFrom1904To1970;
    return clampedDate(std::min(time, latest) + secondsFrom1904To1970);
}

std::uint32_t localDateFrom(std::time_t time)
{
    std::tm local{};
    if (::localtime_r(&time, &local) == nullptr)
        return dateFrom(time);
    return clampedDate(std::int64_t{dateFrom(time)} + local.tm_gmtoff);
}

Item itemFrom(ItemKind kind, const struct stat &status)
{
    return {.kind = kind,
            .permissions = static_cast<std::uint16_t>(status.st_mode & 0777),
            .modified = dateFrom(status.st_mtime)};
}

void appendFork(Bytes &out, const Fork &fork, std::uint32_t clumpSize)
{
    BigEndianWriter writer(out);
    writer.u64(fork.size).u32(clumpSize).u32(fork.blocks);
    writer.u32(fork.blocks > 0 ? fork.firstBlock : 0).u32(fork.blocks);
    writer.zeros(7 * 8); // the other seven extents
}

std::uint32_t treeClumpSize(std::uint64_t volumeSize, std::uint16_t nodeSize,
                            std::uint32_t maxClumpSize)
{
    const auto nodes = std::min<std::uint64_t>(volumeSize / 128, maxClumpSize) / nodeSize;
    return static_cast<std::uint32_t>(std::max<std::uint64_t>(nodes, 1) * nodeSize);
}

Bytes catalogKey(std::uint32_t parentId, std::u16string_view name)
{
    Bytes key;
    BigEndianWriter out(key);
    out.u16(static_cast<std::uint16_t>(4 + 2 + 2 * name.size())).u32(parentId);
    appendName(out, name);
    return key;
}

Bytes itemRecord(const Item &item, std::uint32_t id, NameOrder order)
{
    const bool isFolder = item.kind == ItemKind::Folder;
    const bool countsFolders = isFolder && order == NameOrder::Binary;
    Bytes record;
    BigEndianWriter out(record);
    out.u16(isFolder ? FolderRecord : FileRecord);
    out.u16(isFolder ? (countsFolders ? hasFolderCount : 0) : threadExists);
    out.u32(item.items).u32(id);
    // Created, content modified, attributes modified, accessed: the one time that copies keep.
    out.u32(item.modified).u32(item.modified).u32(item.modified).u32(item.modified).u32(0);
    out.u32(unknownOwner).u32(unknownOwner).u8(0).u8(0).u16(modeOf(item)).u32(0);
    const bool isLink = item.kind == ItemKind::Link;
    out.u32(isLink ? linkType : 0).u32(isLink ? linkCreator : 0).zeros(24); // Finder's information
    out.u32(0).u32(countsFolders ? item.folders : 0); // text encoding
    if (!isFolder) {
        appendFork(record, item.data);
        out.zeros(forkSize); // no resource fork
    }
    return record;
}

Bytes threadRecord(ItemKind kind, std::uint32_t parentId, std::u16string_view name)
{
    Bytes record;
    BigEndianWriter out(record);
    out.u16(kind == ItemKind::Folder ? FolderThread : FileThread).u16(0).u32(parentId);
    appendName(out, name);
    return record;
}

} // namespace hfs
