#include "WavHeader.h"

namespace standin
{

namespace
{

unsigned numberAt(std::string_view bytes, std::size_t offset, std::size_t size)
{
    unsigned value = 0;
    for (std::size_t index = size; index-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[offset + index]);
    return value;
}

} // namespace

std::optional<int> wavSampleRate(std::string_view header)
{
    if (header.size() < wavHeaderSize || !header.starts_with("RIFF")
        || header.substr(8, 8) != "WAVEfmt " || header.substr(36, 4) != "data")
        return std::nullopt;
    const bool monoPcm16 = numberAt(header, 20, 2) == 1 && numberAt(header, 22, 2) == 1
        && numberAt(header, 34, 2) == 16;
    const unsigned rate = numberAt(header, 24, 4);
    if (!monoPcm16 || rate < 4000 || rate > 192000)
        return std::nullopt;
    return static_cast<int>(rate);
}

} // namespace standin
