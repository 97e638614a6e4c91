#include "Pipe.h"

#include "Failure.h"

#include <fcntl.h>

#include <array>
#include <cerrno>

namespace standin
{

Pipe::Pipe()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        failWithError("pipe", errno);
    readEnd = FileDescriptor(ends[0]);
    writeEnd = FileDescriptor(ends[1]);
}

} // namespace standin
