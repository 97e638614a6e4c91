#include "SourceFolder.h"

#include "Failure.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <memory>

using standin::FileDescriptor;

namespace source
{
namespace
{

// Whether the last call failed because there is nothing of that name any more.
bool hasVanished(const std::string &path)
{
    if (errno != ENOENT)
        standin::failWithError(path, errno);
    return true;
}

} // namespace

void allowDeepFolders()
{
    rlimit limit;
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

FileDescriptor openRoot(const std::string &path)
{
    FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        standin::failWithError(path, errno);
    return folder;
}

std::vector<std::string> listNames(const FileDescriptor &folder, const std::string &path)
{
    const int copy = ::fcntl(folder.number(), F_DUPFD_CLOEXEC, 0); // the stream closes its own
    if (copy < 0)
        standin::failWithError(path, errno);
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(::fdopendir(copy), &::closedir);
    if (!stream)
        standin::failWithError(path, errno);
    std::vector<std::string> names;
    errno = 0;
    while (const dirent *item = ::readdir(stream.get())) {
        const std::string name = item->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
        errno = 0;
    }
    if (errno != 0)
        standin::failWithError(path, errno);
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<struct stat> statusOf(const FileDescriptor &folder, const std::string &name,
                                    const std::string &path)
{
    struct stat status;
    if (::fstatat(folder.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0
        && hasVanished(path))
        return std::nullopt;
    return status;
}

FileDescriptor openFolder(const FileDescriptor &parent, const std::string &name,
                          const std::string &path)
{
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    FileDescriptor folder(::openat(parent.number(), name.c_str(), flags));
    if (!folder.isOpen())
        hasVanished(path);
    return folder;
}

FileDescriptor openFile(const FileDescriptor &parent, const std::string &name,
                        const std::string &path)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC;
    FileDescriptor file(::openat(parent.number(), name.c_str(), flags | O_NONBLOCK));
    if (!file.isOpen() && errno == EWOULDBLOCK) // a file server holds it for a moment
        file = FileDescriptor(::openat(parent.number(), name.c_str(), flags));
    if (!file.isOpen() && hasVanished(path))
        return file;
    if (!S_ISREG(statusOf(file, path).st_mode))
        standin::fail(path, "Became something else while it was read");
    return file;
}

std::optional<std::string> linkTarget(const FileDescriptor &folder, const std::string &name,
                                      const std::string &path)
{
    std::array<char, PATH_MAX> target; // the kernel's limit for what a link holds
    const auto length = ::readlinkat(folder.number(), name.c_str(), target.data(), target.size());
    if (length < 0 && hasVanished(path))
        return std::nullopt;
    return std::string(target.data(), static_cast<std::size_t>(length));
}

struct stat statusOf(const FileDescriptor &file, const std::string &path)
{
    struct stat status;
    if (::fstat(file.number(), &status) != 0)
        standin::failWithError(path, errno);
    return status;
}

std::uint64_t contentSize(const FileDescriptor &folder, const std::string &path,
                          std::uint32_t blockSize, const std::stop_token &stop, int levels)
{
    std::uint64_t size = 0;
    for (const std::string &name : listNames(folder, path)) {
        if (stop.stop_requested() || levels == 0)
            standin::fail(path, "Was not counted");
        const auto status = statusOf(folder, name, path);
        if (status && S_ISREG(status->st_mode)) {
            const auto bytes = static_cast<std::uint64_t>(status->st_size);
            size += (bytes + blockSize - 1) / blockSize * blockSize;
        } else if (status && S_ISDIR(status->st_mode)) {
            const FileDescriptor inner = openFolder(folder, name, path);
            size += inner.isOpen() ? contentSize(inner, path, blockSize, stop, levels - 1) : 0;
        }
    }
    return size;
}

} // namespace source
