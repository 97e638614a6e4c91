#pragma once

#include <QtEndian>

#include <sys/stat.h>

#include <cstdint>
#include <ctime>
#include <span>
#include <string_view>
#include <vector>

// The HFS Plus volume format: its constants, integers and catalog records. Source: Apple Technical
// Note TN1150, "HFS Plus Volume Format"; the section is named at each group.
namespace hfs
{

/// What is written is put together in these.
using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

/// Appends integers in the byte order of every structure of HFS Plus ("HFS Plus Basics").
class BigEndianWriter
{
public:
    /// Borrows the bytes.
    explicit BigEndianWriter(Bytes &out) : m_out(out) { }

    /// Each gives this writer, so that the fields of a structure can be one line.
    BigEndianWriter &u8(std::uint8_t value) { return number(value); }
    BigEndianWriter &u16(std::uint16_t value) { return number(value); }
    BigEndianWriter &u32(std::uint32_t value) { return number(value); }
    BigEndianWriter &u64(std::uint64_t value) { return number(value); }
    BigEndianWriter &zeros(std::size_t count)
    {
        m_out.resize(m_out.size() + count);
        return *this;
    }

private:
    template <typename Number>
    BigEndianWriter &number(Number value)
    {
        m_out.resize(m_out.size() + sizeof value);
        qToBigEndian(value, m_out.data() + m_out.size() - sizeof value);
        return *this;
    }

    Bytes &m_out;
};

// What this writer chose: blocks of 4096 bytes are what the format recommends, catalog nodes of
// 8192 what its volumes on disks use.
constexpr std::uint32_t blockSize = 4096;
constexpr std::uint16_t catalogNodeSize = 8192;
constexpr std::uint16_t extentsNodeSize = 4096;
constexpr std::uint32_t catalogMaxClumpSize = 6 << 20;
constexpr std::uint32_t extentsMaxClumpSize = 4 << 20;

// "Volume Header": where it and its copy begin, in bytes.
constexpr std::uint64_t volumeHeaderOffset = 1024;
constexpr std::uint64_t volumeHeaderCopyFromEnd = 1024;

// "Catalog File": reserved numbers of items.
constexpr std::uint32_t rootParentId = 1;
constexpr std::uint32_t rootFolderId = 2;
constexpr std::uint32_t firstUserId = 16;

// "HFS Plus Names": in UTF-16 units.
constexpr std::size_t maxNameLength = 255;

// "Catalog File Keys" and "Extents Overflow File Keys": maximum length of a key without its length
// field.
constexpr std::uint16_t catalogMaxKeyLength = 516;
constexpr std::uint16_t extentsMaxKeyLength = 10;

// "Header Record": attributes of a B-tree.
constexpr std::uint32_t bigKeys = 2;
constexpr std::uint32_t variableIndexKeys = 4;

// "Fork Data Structure": its size in bytes.
constexpr std::size_t forkSize = 80;

// "HFSX": case-insensitive volumes of plain HFS Plus leave the field 0.
constexpr std::uint8_t unspecifiedCompare = 0;
constexpr std::uint8_t binaryCompare = 0xBC;

/// How names are ordered in the catalog, and with it the kind of volume.
enum class NameOrder {
    Folded, ///< HFS Plus: letters that differ by case are one
    Binary, ///< HFSX with binary comparison: every difference counts
};

/// "Fork Data Structure", with the single extent that this writer gives every fork.
struct Fork {
    std::uint64_t size = 0; ///< bytes
    std::uint32_t firstBlock = 0; ///< counted from the start of the volume; meaningless if empty
    std::uint32_t blocks = 0;
};

/// Seconds since 1904-01-01 ("HFS Plus Dates"); times that 32 bits cannot hold become the nearest
/// that they can.
std::uint32_t dateFrom(std::time_t time);

/// The same in the wall-clock time of here and then, as the volume's creation date is kept.
std::uint32_t localDateFrom(std::time_t time);

/// Whatever else a folder holds is left out.
enum class ItemKind : std::uint8_t { Folder, File, Link };

/// What the catalog says about a folder, file or symbolic link, besides its name and parent.
struct Item {
    ItemKind kind = ItemKind::Folder;
    std::uint16_t permissions = 0; ///< the nine lowest bits of the mode
    std::uint32_t modified = 0; ///< as dateFrom() gives it
    std::uint32_t items = 0; ///< of a folder: all that it holds
    std::uint32_t folders = 0; ///< of a folder: the folders among them
    Fork data = {}; ///< of a file its content, of a link the path that it leads to
};

/// The item that a file system's status describes, without data and numbers of items.
Item itemFrom(ItemKind kind, const struct stat &status);

/// "Fork Data Structure"; an empty fork has no extent. The clump size is in bytes.
void appendFork(Bytes &out, const Fork &fork, std::uint32_t clumpSize = 0);

/// By how many bytes a B-tree would grow. Nothing ever grows here, but file-system checks refuse a
/// catalog that would grow in small steps on a volume of more than 500 MiB, or by more than a quarter
/// of a small one; hence what formatters choose: a 128th of the volume, in whole nodes. Both sizes
/// are in bytes; the volume's may leave out what follows the tree.
std::uint32_t treeClumpSize(std::uint64_t volumeSize, std::uint16_t nodeSize,
                            std::uint32_t maxClumpSize);

/// "Catalog File Keys", the length field included. A name has at most 255 units, that of a thread
/// none.
Bytes catalogKey(std::uint32_t parentId, std::u16string_view name);

/// "Catalog File Data": the record of a folder or file, and the thread that leads from its number
/// to its name.
Bytes itemRecord(const Item &item, std::uint32_t id, NameOrder order);
Bytes threadRecord(ItemKind kind, std::uint32_t parentId, std::u16string_view name);

} // namespace hfs
