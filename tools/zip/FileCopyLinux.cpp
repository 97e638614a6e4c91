#include "FileCopy.h"

#include <sys/sendfile.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <vector>

namespace
{

constexpr std::size_t kernelChunk = 8U << 20U; // between two looks at the order to stop
constexpr std::size_t bufferSize = 1U << 20U;

// Each copies some bytes and returns their number, 0 at the end, -1 with errno.

ssize_t copyRange(int from, int to)
{
    return copy_file_range(from, nullptr, to, nullptr, kernelChunk, 0);
}

ssize_t sendRange(int from, int to)
{
    return sendfile(to, from, nullptr, kernelChunk);
}

ssize_t readAndWrite(int from, int to)
{
    std::vector<char> buffer(bufferSize);
    const ssize_t got = read(from, buffer.data(), buffer.size());
    for (ssize_t done = 0; done < got;) {
        const ssize_t written =
            write(to, buffer.data() + done, static_cast<std::size_t>(got - done));
        if (written < 0 && errno != EINTR)
            return -1;
        done += written > 0 ? written : 0;
    }
    return got;
}

bool isRefusal(int error)
{
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP
        || error == EPERM || error == EBADF || error == ETXTBSY;
}

} // namespace

int copyBytes(int from, int to, const std::stop_token &stop)
{
    // Every way continues where the one before it stopped. Some file systems end a kernel copy
    // early without an error, so an end counts only when plain reading sees it too.
    using Way = ssize_t (*)(int, int);
    for (const Way way : std::array<Way, 3>{copyRange, sendRange, readAndWrite}) {
        ssize_t count = 0;
        do {
            if (stop.stop_requested())
                return ECANCELED;
            count = way(from, to);
        } while (count > 0 || (count < 0 && errno == EINTR));
        if (count < 0 && (way == readAndWrite || !isRefusal(errno)))
            return errno;
    }
    return 0;
}
