#include "MovieFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <string_view>

namespace standin
{

namespace
{

struct Box {
    std::int64_t begin = 0;
    std::int64_t size = 0; // with its header
    int headerSize = 8;
    std::array<unsigned char, 16> bytes{};

    std::int64_t contents() const { return begin + headerSize; }
    std::string_view type() const { return {reinterpret_cast<const char *>(bytes.data()) + 4, 4}; }
};

std::uint64_t numberIn(const unsigned char *bytes, int count)
{
    std::uint64_t value = 0;
    for (int index = 0; index < count; ++index)
        value = value << 8 | bytes[index];
    return value;
}

// A size of 1 says that 64 bits of it follow the type.
bool readBox(int descriptor, std::int64_t begin, std::int64_t end, Box &box)
{
    box.begin = begin;
    const auto count = ::pread(descriptor, box.bytes.data(), box.bytes.size(), begin);
    if (count < 8)
        return false;
    std::uint64_t size = numberIn(box.bytes.data(), 4);
    box.headerSize = size == 1 ? 16 : 8;
    if (size == 1)
        size = count == 16 ? numberIn(box.bytes.data() + 8, 8) : 0;
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
    std::array<unsigned char, 32> bytes{};
    if (::pread(descriptor, bytes.data(), bytes.size(), header.contents()) != ssize_t{bytes.size()})
        return std::nullopt;
    const int width = bytes[0] == 1 ? 8 : 4;
    const unsigned char *scale = bytes.data() + 4 + 2 * width;
    const auto unitsASecond = numberIn(scale, 4);
    if (unitsASecond == 0)
        return std::nullopt;
    return static_cast<double>(numberIn(scale + 4, width)) / static_cast<double>(unitsASecond);
}

} // namespace

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
