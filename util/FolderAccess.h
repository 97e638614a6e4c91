#pragma once

#include "FileDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

/// The system calls behind the walks over folders, which differ from system to system. Names are
/// bytes, relative to a folder's descriptor; a link is never followed. If a call fails, errno says
/// why. Any thread.
namespace FolderAccess
{

/// Which folder a descriptor belongs to, whatever its name is by now.
struct Identity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    bool operator==(const Identity &) const = default;
};

/// None if the descriptor's status cannot be read.
std::optional<Identity> identity(int folder);

/// Opens a sub-folder; fails with ENOTDIR or ELOOP if the name belongs to anything else.
FileDescriptor openFolder(int parent, const char *name);

/// The same, but fails with EXDEV if something is mounted on the sub-folder, even another part of
/// the same file system. The kernel checks this in the same step, so nothing can be exchanged in
/// between. Needs Linux 5.6.
FileDescriptor openFolderOfSameMount(int parent, const char *name);

/// Opens a folder several names down, separated by "/", for use as a parent only; fails with
/// ENOTDIR or ELOOP if one of them is a link and with EXDEV if the path leads out of the folder.
FileDescriptor openFolderBelow(int parent, const char *way);

struct Entry {
    std::uint64_t size = 0; ///< In bytes; of a folder, its own entry.
    /// Bytes that removing this name gives back: 0 if the item has other names, not more than the
    /// size, and of a file with holes only what is on the disk.
    std::uint64_t freed = 0;
    bool isFolder = false;
};

/// Size and kind of the item itself, as last known: a file server is not queried again.
std::optional<Entry> entry(int parent, const char *name);

/// Whether the folder's file system keeps its items on a disk, so that their order matters.
bool isOnDisk(int folder);

} // namespace FolderAccess

/// The entries of a folder as the kernel hands them out: names are bytes, "." and ".." are left
/// out, nothing is sorted. One object serves many folders one after the other. It holds one block
/// of memory of fixed size; the system provides only the part that was ever filled. One thread at a
/// time.
class FolderEntries
{
public:
    struct Entry {
        std::uint64_t inode = 0;
        const char *name = nullptr; ///< Valid until the next read().
        bool isFolder = false; ///< Not all file systems say so: false may still be a folder.
    };

    explicit FolderEntries(std::size_t capacity); ///< In bytes.

    /// Fills the block with the next entries; false, with errno set, if the folder cannot be read.
    bool read(int folder);
    /// Whether the last read() reached the end of the folder.
    bool atEnd() const { return m_atEnd; }

    /// Calls visit(Entry, position) for every entry that the last read() brought.
    template <class Visit>
    void forEach(Visit visit) const
    {
        for (std::size_t position = 0; position < m_used;) {
            const auto [entry, next] = at(position);
            if (entry.name)
                visit(entry, position);
            position = next;
        }
    }
    /// The entry at a position that forEach() gave.
    Entry entryAt(std::size_t position) const { return at(position).first; }

private:
    std::pair<Entry, std::size_t> at(std::size_t position) const;

    std::size_t m_capacity;
    std::unique_ptr<char[]> m_block;
    std::size_t m_used = 0;
    bool m_atEnd = false;
};
