#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>

/// The records of a zip archive, as PKWARE's APPNOTE.TXT describes them and Info-ZIP writes them.
namespace format
{

/// How an entry is packed, by the format's numbers.
enum Method : std::uint16_t { Stored = 0, Deflated = 8 };

/// What the headers say of a file or folder. Sizes and offsets are bytes.
struct Entry {
    std::string name;
    struct stat status = {};
    Method method = Stored;
    std::uint32_t crc = 0;
    std::uint64_t size = 0;
    std::uint64_t packedSize = 0;
    std::uint64_t offset = 0; ///< of the local header
    bool hasLongSizes = false; ///< ZIP64 in the local header, so that sizes can be filled in later
};

/// From this size on an entry needs ZIP64.
constexpr std::uint64_t longSize = 0xFFFF'FFFF;

/// The header that comes before an entry's data.
std::string localHeader(const Entry &entry);
/// The entry's header in the directory at the end.
std::string centralHeader(const Entry &entry);

/// What ends the archive: the directory starts at `offset` and has `size` bytes.
std::string endRecords(std::uint64_t count, std::uint64_t offset, std::uint64_t size);

} // namespace format
