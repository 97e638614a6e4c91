#include "FolderAccess.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

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

FileDescriptor FolderAccess::openWayDown(int parent, const char *way)
{
    return openResolving(parent, way, O_PATH | asFolder, RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH);
}

std::optional<FolderAccess::Entry> FolderAccess::entry(int parent, const char *name)
{
    struct statx status = {};
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
    if (::statx(parent, name, flags, STATX_SIZE | STATX_TYPE, &status) != 0)
        return std::nullopt;
    return Entry{.size = status.stx_size, .isFolder = S_ISDIR(status.stx_mode)};
}

bool FolderAccess::isOnDisk(int folder)
{
    struct statfs status = {};
    return ::fstatfs(folder, &status) != 0 || status.f_type != TMPFS_MAGIC;
}
