#pragma once

#include <cstdint>

// Constants of the HFS Plus volume format. Source: Apple Technical Note TN1150, "HFS Plus Volume
// Format"; the section is named at each group.
namespace hfs
{

// What this writer chose: blocks of 4096 bytes are what the format recommends, catalog nodes of
// 8192 what its volumes on disks use.
constexpr std::uint32_t blockSize = 4096;
constexpr std::uint16_t catalogNodeSize = 8192;
constexpr std::uint16_t extentsNodeSize = 4096;

// "Volume Header": where it and its copy stand.
constexpr std::uint64_t volumeHeaderOffset = 1024;
constexpr std::uint64_t volumeHeaderCopyFromEnd = 1024;

// "Catalog File": numbers that are taken.
constexpr std::uint32_t rootParentId = 1;
constexpr std::uint32_t rootFolderId = 2;
constexpr std::uint32_t firstUserId = 16;

// "HFS Plus Names".
constexpr std::size_t longestName = 255;

// "Catalog File Keys" and "Extents Overflow File Keys": longest key without its length field.
constexpr std::uint16_t catalogMaxKeyLength = 516;
constexpr std::uint16_t extentsMaxKeyLength = 10;

// "Header Record": attributes of a B-tree.
constexpr std::uint32_t bigKeys = 2;
constexpr std::uint32_t variableIndexKeys = 4;

// "HFSX": case-insensitive volumes of plain HFS Plus leave the field 0.
constexpr std::uint8_t unspecifiedCompare = 0;
constexpr std::uint8_t binaryCompare = 0xBC;

// How names are ordered in the catalog, and with it the kind of volume.
enum class NameOrder {
    Folded, // HFS Plus: letters that differ by case are one
    Binary, // HFSX with binary comparison: every difference counts
};

// "Fork Data Structure", with the single extent that this writer gives every fork.
struct Fork {
    std::uint64_t size = 0;
    std::uint32_t firstBlock = 0;
    std::uint32_t blocks = 0;
};

} // namespace hfs
