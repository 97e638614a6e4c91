#include "HfsVolume.h"

#include "Failure.h"

#include <algorithm>
#include <limits>

namespace hfs
{

namespace
{

// "Volume Header".
constexpr std::uint16_t signaturePlus = 0x482B; // 'H+'
constexpr std::uint16_t signatureX = 0x4858; // 'HX'
constexpr std::uint16_t versionPlus = 4;
constexpr std::uint16_t versionX = 5;
constexpr std::uint32_t unmountedAndLocked = 0x8100;
constexpr std::uint32_t lastMountedVersion = 0x31302E30; // '10.0'
constexpr std::uint32_t clumpSize = 16 * blockSize;
constexpr std::uint64_t onlyRomanEncoding = 1;
constexpr std::size_t finderInfoSize = 32;

constexpr std::uint64_t bitsPerBlock = std::uint64_t{blockSize} * 8;
constexpr std::uint64_t maxBlocks = std::numeric_limits<std::uint32_t>::max();

std::uint64_t blocksFor(std::uint64_t size)
{
    return (size + blockSize - 1) / blockSize;
}

// With the clump size that the tree's own header has.
void appendTree(Bytes &header, const Fork &tree, std::uint16_t nodeSize, std::uint32_t maxClumpSize)
{
    const auto end = std::uint64_t{tree.firstBlock} * blockSize + tree.size;
    appendFork(header, tree, treeClumpSize(end, nodeSize, maxClumpSize));
}

// Two images of different content should not look like one volume to the system.
std::uint64_t identifier(ByteView bytes)
{
    std::uint64_t hash = 14695981039346656037U; // FNV-1a
    for (const auto byte : bytes)
        hash = (hash ^ byte) * 1099511628211U;
    return hash;
}

} // namespace

Volume::Volume(ImageFile &image, std::u16string_view name, const struct stat &rootFolder)
    : m_image(image), m_catalog(name, itemFrom(ItemKind::Folder, rootFolder)),
      m_modified(rootFolder.st_mtime)
{
    m_image.append(Bytes(blockSize)); // the volume header's place
}

std::uint32_t Volume::nextBlock() const
{
    return static_cast<std::uint32_t>(m_image.position() / blockSize);
}

bool Volume::hasRoomFor(std::uint64_t size) const
{
    const auto room = maxBlocks * blockSize - m_image.position();
    return size <= room;
}

void Volume::beginFork()
{
    m_image.align(blockSize);
    m_firstBlock = nextBlock();
}

Fork Volume::endFork(std::uint64_t size)
{
    m_image.align(blockSize);
    return {size, m_firstBlock, static_cast<std::uint32_t>(blocksFor(size))};
}

void Volume::finish()
{
    const auto order = m_catalog.settleOrder();
    const Fork catalog = writeCatalog();
    const Fork extents = writeExtents();
    const Fork allocation = writeAllocation();
    const auto volumeHeader = header(order, catalog, extents, allocation);
    Bytes lastBlock(blockSize - volumeHeaderCopyFromEnd);
    lastBlock.insert(lastBlock.end(), volumeHeader.begin(), volumeHeader.end());
    lastBlock.resize(blockSize);
    m_image.append(lastBlock);
    m_image.writeAt(volumeHeaderOffset, volumeHeader);
}

Fork Volume::writeCatalog()
{
    beginFork();
    return endFork(m_catalog.write(m_image));
}

// "Extents Overflow File": every fork has one extent, so none flows over.
Fork Volume::writeExtents()
{
    beginFork();
    BTreeWriter tree(m_image,
                     {extentsNodeSize, extentsMaxKeyLength, unspecifiedCompare, bigKeys,
                      extentsMaxClumpSize});
    return endFork(tree.finish());
}

// "Allocation File": a bit for each block, all of them used, its own and the last one included.
Fork Volume::writeAllocation()
{
    beginFork();
    const std::uint64_t before = m_image.position() / blockSize + 1; // with the last block
    std::uint64_t ownBlocks = 1;
    while (ownBlocks * bitsPerBlock < before + ownBlocks)
        ++ownBlocks;
    if (before + ownBlocks > maxBlocks)
        throw standin::Failure(standin::Failed, "The folder is too large for an HFS+ volume");
    m_totalBlocks = static_cast<std::uint32_t>(before + ownBlocks);
    for (std::uint64_t block = 0; block < ownBlocks; ++block) {
        const auto used =
            std::min<std::uint64_t>(m_totalBlocks - block * bitsPerBlock, bitsPerBlock);
        Bytes bits(used / 8, 0xFF);
        if (used % 8 != 0)
            bits.push_back(static_cast<std::uint8_t>(0xFF00U >> (used % 8)));
        bits.resize(blockSize);
        m_image.append(bits);
    }
    return endFork(ownBlocks * blockSize);
}

Bytes Volume::header(NameOrder order, const Fork &catalog, const Fork &extents,
                     const Fork &allocation) const
{
    const bool isBinary = order == NameOrder::Binary;
    const auto modified = dateFrom(m_modified);
    Bytes header;
    BigEndianWriter out(header);
    out.u16(isBinary ? signatureX : signaturePlus).u16(isBinary ? versionX : versionPlus);
    out.u32(unmountedAndLocked).u32(lastMountedVersion).u32(0); // no journal
    out.u32(localDateFrom(m_modified)).u32(modified).u32(0).u32(modified); // 0: no backup
    out.u32(m_catalog.fileCount()).u32(m_catalog.folderCount());
    out.u32(blockSize).u32(m_totalBlocks).u32(0).u32(0); // no free block, nowhere to go on
    out.u32(clumpSize).u32(clumpSize).u32(m_catalog.nextId()).u32(0); // never mounted for writing
    out.u64(onlyRomanEncoding);
    out.zeros(finderInfoSize - sizeof(std::uint64_t)).u64(identifier(header));
    appendFork(header, allocation, blockSize);
    appendTree(header, extents, extentsNodeSize, extentsMaxClumpSize);
    appendTree(header, catalog, catalogNodeSize, catalogMaxClumpSize);
    out.zeros(2 * forkSize); // no attributes file, no startup file
    return header;
}

} // namespace hfs
