#include "System.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace archive
{

void allowDeepFolders()
{
    rlimit limit;
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
}

mode_t currentMask()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}

bool isLackOfRoom(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

ssize_t readFully(int file, std::span<char> bytes, std::uint64_t offset)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::pread(file, bytes.data() + done, bytes.size() - done,
                                      static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

} // namespace archive
