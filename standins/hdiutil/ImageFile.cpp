#include "ImageFile.h"

#include "Failure.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace hfs
{
namespace
{

// Reading into and writing from a buffer of this size, at multiples of it, was faster than copying
// inside the kernel, and the only way to gather small files.
constexpr std::size_t bufferSize = 64 << 10;

struct Range {
    std::uint64_t from;
    std::uint64_t to;
};

// The next range of data at or after `from`, empty at `end` when only a hole follows. A file system
// without holes has data everywhere.
Range nextData(int source, std::uint64_t from, std::uint64_t end)
{
    const off_t data = ::lseek(source, static_cast<off_t>(from), SEEK_DATA);
    if (data < 0)
        return errno == ENXIO ? Range{end, end} : Range{from, end};
    const off_t hole = ::lseek(source, data, SEEK_HOLE);
    const auto to = hole < 0 ? end : static_cast<std::uint64_t>(hole);
    return {std::min(static_cast<std::uint64_t>(data), end), std::min(to, end)};
}

bool mayHaveHoles(const struct stat &status)
{
    return status.st_blocks < status.st_size / 512;
}

} // namespace

ImageFile::ImageFile(int descriptor, std::string path, standin::Progress *progress)
    : m_descriptor(descriptor), m_path(std::move(path)), m_progress(progress),
      m_buffer(new std::uint8_t[bufferSize])
{
}

// Up to the next multiple of the buffer's size, also after a hole.
std::size_t ImageFile::room() const
{
    return bufferSize - m_bufferStart % bufferSize - m_used;
}

void ImageFile::append(ByteView bytes)
{
    while (!bytes.empty()) {
        const auto piece = std::min(bytes.size(), room());
        std::memcpy(m_buffer.get() + m_used, bytes.data(), piece);
        m_used += piece;
        bytes = bytes.subspan(piece);
        if (room() == 0)
            flush();
    }
}

void ImageFile::align(std::uint32_t alignment)
{
    const auto past = position() % alignment;
    if (past == 0)
        return;
    const auto missing = alignment - past;
    if (m_used > 0)
        append(Bytes(missing));
    else
        skip(missing);
}

void ImageFile::skip(std::uint64_t count)
{
    flush();
    m_bufferStart += count;
}

std::uint64_t ImageFile::appendFile(int source, const struct stat &status,
                                    const std::string &sourcePath)
{
    auto end = static_cast<std::uint64_t>(status.st_size);
    if (!mayHaveHoles(status))
        return appendRange(source, 0, end, sourcePath);
    std::uint64_t at = 0;
    while (at < end) {
        const Range data = nextData(source, at, end);
        if (data.from == data.to)
            return at + appendLastHole(source, at, end, sourcePath);
        skip(data.from - at);
        const auto copied = appendRange(source, data.from, data.to, sourcePath);
        at = data.from + copied;
        if (at < data.to)
            break;
    }
    return at;
}

// A file that was shortened looks like one that ends with a hole.
std::uint64_t ImageFile::appendLastHole(int source, std::uint64_t from, std::uint64_t to,
                                        const std::string &sourcePath)
{
    struct stat now;
    if (::fstat(source, &now) != 0)
        standin::failWithError(sourcePath, errno);
    const auto end = std::clamp(static_cast<std::uint64_t>(now.st_size), from, to);
    skip(end - from);
    return end - from;
}

std::uint64_t ImageFile::appendRange(int source, std::uint64_t from, std::uint64_t to,
                                     const std::string &sourcePath)
{
    std::uint64_t at = from;
    while (at < to) {
        const auto piece = std::min<std::uint64_t>(to - at, room());
        const auto count = ::pread(source, m_buffer.get() + m_used, piece, static_cast<off_t>(at));
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            standin::failWithError(sourcePath, errno);
        const auto read = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        at += read;
        m_used += read;
        if (room() == 0)
            flush();
    }
    return at - from;
}

void ImageFile::writeAt(std::uint64_t offset, ByteView bytes)
{
    flush();
    put(offset, bytes);
}

void ImageFile::put(std::uint64_t offset, ByteView bytes)
{
    while (!bytes.empty()) {
        const auto count =
            ::pwrite(m_descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (count < 0 && errno != EINTR)
            standin::failWithError(m_path, errno);
        const auto written = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        offset += written;
        bytes = bytes.subspan(written);
    }
}

void ImageFile::flush()
{
    put(m_bufferStart, {m_buffer.get(), m_used});
    m_bufferStart += m_used;
    m_used = 0;
    if (m_progress != nullptr)
        m_progress->setDone(m_bufferStart);
}

} // namespace hfs
