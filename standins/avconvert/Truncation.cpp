#include "Truncation.h"

#include "Failure.h"
#include "FileDescriptor.h"

#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace standin
{

namespace
{

[[noreturn]] void failAsCut(const std::string &path)
{
    fail(path, "The file ends in the middle");
}

// In seconds; 0 if the source does not say. A bare MPEG stream has only a guess from its bit rate.
double announcedSeconds(const Media &media)
{
    if (media.format == "mpegvideo")
        return 0;
    double seconds = 0;
    std::vector<const MediaStream *> taken = media.audio();
    if (media.firstVideo())
        taken.push_back(media.firstVideo());
    for (const MediaStream *stream : taken)
        seconds = std::max(seconds, stream->seconds);
    return seconds > 0 ? seconds : media.seconds;
}

struct Box {
    std::int64_t begin = 0;
    std::int64_t size = 0; // with its header
    int headerSize = 8;
    std::array<char, 16> bytes{};

    std::int64_t contents() const { return begin + headerSize; }
    std::string_view type() const { return {bytes.data() + 4, 4}; }
};

// A size of 1 says that 64 bits of it follow the type.
bool readBox(int descriptor, std::int64_t begin, std::int64_t end, Box &box)
{
    box.begin = begin;
    const auto count = ::pread(descriptor, box.bytes.data(), box.bytes.size(), begin);
    if (count < 8)
        return false;
    std::uint64_t size = qFromBigEndian<quint32>(box.bytes.data());
    box.headerSize = size == 1 ? 16 : 8;
    if (size == 1)
        size = count == 16 ? qFromBigEndian<quint64>(box.bytes.data() + 8) : 0;
    const auto room = static_cast<std::uint64_t>(end - begin);
    if (size < static_cast<std::uint64_t>(box.headerSize) || size > room)
        return false;
    box.size = static_cast<std::int64_t>(size);
    return true;
}

// The movie header begins the movie box: version, creation and modification time, time scale,
// length. The version says whether times and length have 32 or 64 bits.
std::optional<double> secondsInMovie(int descriptor, const Box &movie)
{
    Box header;
    if (!readBox(descriptor, movie.contents(), movie.begin + movie.size, header)
        || header.type() != "mvhd")
        return std::nullopt;
    std::array<char, 32> bytes{};
    if (::pread(descriptor, bytes.data(), bytes.size(), header.contents()) != ssize_t{bytes.size()})
        return std::nullopt;
    const bool isLong = bytes[0] == 1;
    const char *scale = bytes.data() + (isLong ? 20 : 12);
    const auto unitsPerSecond = qFromBigEndian<quint32>(scale);
    if (unitsPerSecond == 0)
        return std::nullopt;
    const auto length =
        isLong ? qFromBigEndian<quint64>(scale + 4) : qFromBigEndian<quint32>(scale + 4);
    return static_cast<double>(length) / unitsPerSecond;
}

} // namespace

// A RIFF file begins with "RIFF", the size of what follows (32 bits, little-endian) and its kind.
// Files beyond 1 GiB go on with a second such part, which is left to ffmpeg.
void requireAnnouncedSize(const std::string &path)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::array<char, 12> head{};
    struct stat status;
    if (::read(file.number(), head.data(), head.size()) != ssize_t{head.size()}
        || ::fstat(file.number(), &status) != 0)
        return;
    const std::string_view text(head.data(), head.size());
    if (!text.starts_with("RIFF") || !text.ends_with("AVI "))
        return;
    const std::int64_t announced = std::int64_t{8} + qFromLittleEndian<quint32>(head.data() + 4);
    if (status.st_size < announced - announced / 20)
        failAsCut(path);
}

void requireAnnouncedLength(const Media &source, double resultSeconds, const std::string &path)
{
    const double announced = announcedSeconds(source);
    if (resultSeconds < announced - std::max(1.0, announced * 0.05))
        failAsCut(path);
}

std::optional<double> movieSeconds(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
        return std::nullopt;
    std::optional<double> seconds;
    Box box;
    for (std::int64_t position = 0; position < status.st_size; position += box.size) {
        if (!readBox(descriptor, position, status.st_size, box))
            return std::nullopt;
        if (box.type() == "moov")
            seconds = secondsInMovie(descriptor, box);
    }
    return seconds;
}

} // namespace standin
