#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace hfs
{

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

// Appends numbers most significant byte first, as every structure of HFS Plus stores them
// (TN1150, "HFS Plus Basics", integers are big-endian).
class BigEndianWriter
{
public:
    explicit BigEndianWriter(Bytes &out) : m_out(out) { }

    BigEndianWriter &u8(std::uint8_t value);
    BigEndianWriter &u16(std::uint16_t value);
    BigEndianWriter &u32(std::uint32_t value);
    BigEndianWriter &u64(std::uint64_t value);
    BigEndianWriter &zeros(std::size_t count);

private:
    Bytes &m_out;
};

inline BigEndianWriter &BigEndianWriter::u8(std::uint8_t value)
{
    m_out.push_back(value);
    return *this;
}

inline BigEndianWriter &BigEndianWriter::u16(std::uint16_t value)
{
    return u8(static_cast<std::uint8_t>(value >> 8)).u8(static_cast<std::uint8_t>(value));
}

inline BigEndianWriter &BigEndianWriter::u32(std::uint32_t value)
{
    return u16(static_cast<std::uint16_t>(value >> 16)).u16(static_cast<std::uint16_t>(value));
}

inline BigEndianWriter &BigEndianWriter::u64(std::uint64_t value)
{
    return u32(static_cast<std::uint32_t>(value >> 32)).u32(static_cast<std::uint32_t>(value));
}

inline BigEndianWriter &BigEndianWriter::zeros(std::size_t count)
{
    m_out.insert(m_out.end(), count, 0);
    return *this;
}

} // namespace hfs
