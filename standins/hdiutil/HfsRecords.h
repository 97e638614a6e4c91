#pragma once

#include "HfsFormat.h"

#include <ctime>
#include <string_view>

namespace hfs
{

// Seconds since 1904-01-01 ("HFS Plus Dates"); times that 32 bits cannot hold become the nearest
// that they can.
std::uint32_t dateFrom(std::time_t time);

// The same in the wall-clock time of here and then, as the volume's creation date is kept.
std::uint32_t localDateFrom(std::time_t time);

enum class ItemKind : std::uint8_t { Folder, File, Link };

// What the catalog says about a folder, file or symbolic link, besides its name and place.
struct Item {
    ItemKind kind = ItemKind::Folder;
    std::uint16_t permissions = 0; // the nine lowest bits of the mode
    std::uint32_t modified = 0;
    std::uint32_t items = 0; // of a folder: all that it holds
    std::uint32_t folders = 0; // of a folder: the folders among them
    Fork data; // of a file its content, of a link the path that it leads to
};

void appendFork(Bytes &out, const Fork &fork, std::uint32_t clumpSize = 0);

// "Catalog File Keys", the length field included.
Bytes catalogKey(std::uint32_t parentId, std::u16string_view name);

// "Catalog File Data": folder, file and thread records.
Bytes itemRecord(const Item &item, std::uint32_t id, NameOrder order);
Bytes threadRecord(ItemKind kind, std::uint32_t parentId, std::u16string_view name);

} // namespace hfs
