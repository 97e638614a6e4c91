#pragma once

#include "HfsCatalog.h"
#include "ImageFile.h"

#include <sys/stat.h>

#include <ctime>

namespace hfs
{

/// One HFS Plus volume, written from front to back (TN1150, "Volume Header"): place for the volume
/// header, the forks in the order they come, catalog, extents overflow tree, allocation file, and
/// in the last block the copy of the header. Sizes are only known once a file was read, so what
/// describes the files follows them. The volume has no free block and is marked as locked.
class Volume
{
public:
    /// Borrows the image, which is empty. The root folder's name is the volume's. All dates of the
    /// volume are those of the root folder, so that one tree always gives one image.
    Volume(ImageFile &image, std::u16string_view name, const struct stat &rootFolder);

    Catalog &catalog() { return m_catalog; }

    /// Whether the volume stays within the 2^32 blocks of the format with that many bytes more.
    bool hasRoomFor(std::uint64_t size) const;

    /// To be called before and after the content of one file is appended to the image. The size is
    /// in bytes.
    void beginFork();
    Fork endFork(std::uint64_t size);

    /// Completes the volume. Fails if its own files do not fit any more.
    void finish();

private:
    Fork writeCatalog();
    Fork writeExtents();
    Fork writeAllocation();
    Bytes header(NameOrder order, const Fork &catalog, const Fork &extents,
                 const Fork &allocation) const;
    std::uint32_t nextBlock() const;

    ImageFile &m_image;
    Catalog m_catalog;
    std::time_t m_modified;
    std::uint32_t m_firstBlock = 0; // of the fork being written
    std::uint32_t m_totalBlocks = 0;
};

} // namespace hfs
