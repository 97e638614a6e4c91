#include "Truncation.h"

#include "Failure.h"
#include "FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace standin
{

namespace
{

[[noreturn]] void failAsCut(const std::string &path)
{
    fail(path, "The file ends in the middle");
}

// In seconds; 0 when the source does not say. A bare MPEG stream has only a guess from its bit
// rate.
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

} // namespace

// A RIFF file begins with "RIFF", the size of what follows (32 bits, little-endian) and its kind.
// Files beyond 1 GiB go on with a second such part, which is left to ffmpeg.
void requireAnnouncedSize(const std::string &path)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::array<unsigned char, 12> head{};
    struct stat status;
    if (::read(file.number(), head.data(), head.size()) != ssize_t{head.size()}
        || ::fstat(file.number(), &status) != 0)
        return;
    std::string_view text(reinterpret_cast<const char *>(head.data()), head.size());
    if (!text.starts_with("RIFF") || !text.ends_with("AVI "))
        return;
    std::int64_t announced = 8;
    for (int byte = 0; byte < 4; ++byte)
        announced += std::int64_t{head[4U + static_cast<unsigned>(byte)]} << (8 * byte);
    if (status.st_size < announced - announced / 20)
        failAsCut(path);
}

void requireAnnouncedLength(const Media &source, double resultSeconds, const std::string &path)
{
    const double announced = announcedSeconds(source);
    if (resultSeconds < announced - std::max(1.0, announced * 0.05))
        failAsCut(path);
}

} // namespace standin
