#include "FolderAccess.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

#include <algorithm>
#include <cstring>

namespace
{

constexpr int asFolder = O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

FileDescriptor openResolving(int parent, const char *name, int flags, std::uint64_t resolve)
{
    struct open_how how = {};
    how.flags = static_cast<std::uint64_t>(flags);
    how.resolve = resolve;
    return FileDescriptor(
        static_cast<int>(::syscall(SYS_openat2, parent, name, &how, sizeof(how))));
}

// The record that getdents64 writes: a name of up to 255 bytes follows, records are aligned to 8.
struct Record {
    std::uint64_t inode;
    std::int64_t nextPosition;
    std::uint16_t length;
    unsigned char type;
};
constexpr std::size_t recordNameAt = 19;
constexpr std::size_t maxRecordSize = 512;

bool isDotOrDotDot(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

std::optional<FolderAccess::Identity> FolderAccess::identity(int folder)
{
    struct statx status = {};
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_INO, &status) != 0)
        return std::nullopt;
    return Identity{.device = makedev(status.stx_dev_major, status.stx_dev_minor),
                    .inode = status.stx_ino};
}

FileDescriptor FolderAccess::openFolder(int parent, const char *name)
{
    return FileDescriptor(::openat(parent, name, O_RDONLY | asFolder));
}

FileDescriptor FolderAccess::openFolderOfSameMount(int parent, const char *name)
{
    return openResolving(parent, name, O_RDONLY | asFolder,
                         RESOLVE_NO_XDEV | RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH);
}

FileDescriptor FolderAccess::openFolderBelow(int parent, const char *way)
{
    return openResolving(parent, way, O_PATH | asFolder, RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH);
}

std::optional<FolderAccess::Entry> FolderAccess::entry(int parent, const char *name)
{
    struct statx status = {};
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
    constexpr unsigned wanted = STATX_SIZE | STATX_TYPE | STATX_NLINK | STATX_BLOCKS;
    constexpr std::uint64_t block = 512; // the unit of stx_blocks on every file system
    if (::statx(parent, name, flags, wanted, &status) != 0)
        return std::nullopt;
    const bool isFolder = S_ISDIR(status.stx_mode);
    const bool isLastName = isFolder || status.stx_nlink <= 1;
    return Entry{.size = status.stx_size,
                 .freed = isLastName
                     ? std::min<std::uint64_t>(status.stx_size, status.stx_blocks * block)
                     : 0,
                 .isFolder = isFolder};
}

bool FolderAccess::isOnDisk(int folder)
{
    struct statfs status = {};
    return ::fstatfs(folder, &status) != 0 || status.f_type != TMPFS_MAGIC;
}

FolderEntries::FolderEntries(std::size_t capacity)
    : m_capacity(capacity), m_block(std::make_unique_for_overwrite<char[]>(capacity))
{
}

bool FolderEntries::read(int folder)
{
    constexpr std::size_t maxReadSize = 128 * 1024; // More gains nothing and leaves the cache.
    m_used = 0;
    m_atEnd = false;
    while (m_capacity - m_used >= maxRecordSize) {
        const long count = ::syscall(SYS_getdents64, folder, m_block.get() + m_used,
                                     std::min(m_capacity - m_used, maxReadSize));
        if (count < 0)
            return false;
        if (count == 0) {
            m_atEnd = true;
            break;
        }
        m_used += static_cast<std::size_t>(count);
    }
    return true;
}

std::pair<FolderEntries::Entry, std::size_t> FolderEntries::at(std::size_t position) const
{
    const char *const start = m_block.get() + position;
    Record record;
    std::memcpy(&record, start, recordNameAt);
    const char *const name = start + recordNameAt;
    return {Entry{.inode = record.inode,
                  .name = isDotOrDotDot(name) ? nullptr : name,
                  .isFolder = record.type == DT_DIR},
            position + record.length};
}
