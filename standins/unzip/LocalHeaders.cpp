#include "LocalHeaders.h"

#include "LittleEndian.h"
#include "UnzipStatus.h"

#include <algorithm>

using archive::numberAt;

namespace
{

constexpr std::size_t headerSize = 30;

struct Range {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

// One that is broken takes the place that the directory gives it.
Range readHeader(CentralDirectory::Item &item, const ArchiveFile &file, std::uint64_t limit)
{
    const std::uint64_t room = limit - item.header;
    std::uint64_t size = headerSize + item.name.size();
    if (size <= room) {
        std::string header(size, '\0');
        file.read(item.header, header.data(), header.size());
        item.isSound = header.starts_with("PK\3\4")
            && numberAt<std::uint16_t>(header, 26) == item.name.size()
            && header.substr(headerSize) == item.name;
        if (item.isSound)
            size += numberAt<std::uint16_t>(header, 28);
    }
    item.data = item.header + size;
    if (size > room || item.packedSize > room - size)
        failAs(PartsOverlap, file.path, "An entry reaches into the archive's directory");
    return {item.header, item.data + item.packedSize};
}

} // namespace

void readLocalHeaders(CentralDirectory &directory, const ArchiveFile &file)
{
    std::vector<Range> ranges;
    ranges.reserve(directory.items.size());
    for (CentralDirectory::Item &item : directory.items)
        ranges.push_back(readHeader(item, file, directory.start));
    std::ranges::sort(ranges, {}, &Range::begin);
    const auto overlap = [](const Range &one, const Range &next) { return next.begin < one.end; };
    if (std::ranges::adjacent_find(ranges, overlap) != ranges.end())
        failAs(PartsOverlap, file.path, "Entries of the archive overlap: it may be a bomb");
}
