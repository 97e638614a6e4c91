#include "Pipe.h"

#include "Failure.h"

#include <fcntl.h>

#include <array>
#include <cerrno>

namespace standin
{

constexpr int roomWanted = 1 << 20;

Pipe::Pipe()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        failWithError("pipe", errno);
    readEnd = FileDescriptor(ends[0]);
    writeEnd = FileDescriptor(ends[1]);
    // Room for what comes while we work on what came before; less will do where that is refused.
    ::fcntl(writeEnd.number(), F_SETPIPE_SZ, roomWanted);
}

} // namespace standin
