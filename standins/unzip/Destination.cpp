#include "Destination.h"

#include "EntryName.h"
#include "Failure.h"
#include "System.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

using standin::FileDescriptor;

namespace
{

constexpr std::size_t maxPathLength = 4000; // of one call

FileDescriptor openBelow(int folder, const std::string &path, int flags, mode_t mode)
{
    open_how how = {};
    how.flags = static_cast<std::uint64_t>(flags | O_CLOEXEC);
    how.mode = mode;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS | RESOLVE_NO_XDEV;
    const char *name = path.empty() ? "." : path.c_str();
    return FileDescriptor(static_cast<int>(::syscall(SYS_openat2, folder, name, &how, sizeof how)));
}

} // namespace

Destination::Destination(const std::string &path) : m_mask(archive::currentMask())
{
    archive::allowDeepFolders();
    if (::mkdir(path.c_str(), 0777) != 0 && errno != EEXIST)
        standin::failWithError(path, errno);
    m_root = FileDescriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!m_root.isOpen() || ::faccessat(m_root.number(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        standin::failWithError(path, errno);
}

std::uint64_t Destination::room() const
{
    struct statvfs status = {};
    if (::fstatvfs(m_root.number(), &status) != 0)
        return 0;
    return status.f_bavail * status.f_frsize;
}

// The kernel takes paths of 4,095 bytes; longer ones go in steps.
FileDescriptor Destination::open(const std::string &path, int flags, mode_t mode) const
{
    FileDescriptor folder;
    std::size_t begin = 0;
    while (path.size() - begin > maxPathLength) {
        const auto slash = path.rfind('/', begin + maxPathLength);
        if (slash == std::string::npos || slash <= begin) {
            errno = ENAMETOOLONG;
            return {};
        }
        folder = openBelow(folder.isOpen() ? folder.number() : m_root.number(),
                           path.substr(begin, slash - begin), O_PATH | O_DIRECTORY, 0);
        if (!folder.isOpen())
            return {};
        begin = slash + 1;
    }
    return openBelow(folder.isOpen() ? folder.number() : m_root.number(), path.substr(begin), flags,
                     mode);
}

Destination::Place Destination::placeOf(const std::string &path) const
{
    return {open(std::string(entryname::folderOf(path)), O_PATH | O_DIRECTORY),
            std::string(entryname::leafOf(path))};
}

int Destination::enter(const std::string &component)
{
    const int parent = m_levels.empty() ? m_root.number() : m_levels.back().folder.number();
    if (::mkdirat(parent, component.c_str(), 0777) != 0 && errno != EEXIST)
        return errno;
    FileDescriptor folder = openBelow(parent, component, O_PATH | O_DIRECTORY, 0);
    if (!folder.isOpen())
        return errno;
    if (!m_path.empty())
        m_path += '/';
    m_path += component;
    m_levels.push_back({std::move(folder), m_path.size()});
    return 0;
}

int Destination::makeFolder(const std::string &path)
{
    const auto leadsTo = [&](const Level &level) {
        return path.starts_with(std::string_view(m_path).substr(0, level.pathLength))
            && (path.size() == level.pathLength || path[level.pathLength] == '/');
    };
    while (!m_levels.empty() && !leadsTo(m_levels.back()))
        m_levels.pop_back();
    m_path.resize(m_levels.empty() ? 0 : m_levels.back().pathLength);
    while (m_path.size() < path.size()) {
        const std::size_t begin = m_path.empty() ? 0 : m_path.size() + 1;
        const std::size_t end = std::min(path.find('/', begin), path.size());
        if (const int error = enter(path.substr(begin, end - begin)))
            return error;
    }
    return 0;
}

FileDescriptor Destination::createFile(const std::string &path, mode_t mode) const
{
    return open(path, O_WRONLY | O_CREAT | O_EXCL, mode);
}

void Destination::removeFile(const std::string &path) const
{
    const Place place = placeOf(path);
    if (place.folder.isOpen())
        ::unlinkat(place.folder.number(), place.leaf.c_str(), 0);
}

int Destination::createLink(const std::string &path, const std::string &target) const
{
    const Place place = placeOf(path);
    if (!place.folder.isOpen()
        || ::symlinkat(target.c_str(), place.folder.number(), place.leaf.c_str()) != 0)
        return errno;
    return 0;
}

bool Destination::isLink(const std::string &path) const
{
    return !open(path, O_PATH).isOpen() && (errno == ELOOP || errno == EXDEV);
}

int Destination::finishFolder(const std::string &path, mode_t mode, std::time_t time) const
{
    const FileDescriptor folder = open(path, O_RDONLY | O_DIRECTORY);
    const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, timespec{time, 0}};
    if (!folder.isOpen() || ::futimens(folder.number(), times.data()) != 0
        || ::fchmod(folder.number(), mode & ~m_mask) != 0)
        return errno;
    return 0;
}
