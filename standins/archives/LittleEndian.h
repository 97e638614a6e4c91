#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace archive
{

/// Appends the number as archives hold it: the lowest byte first.
template <class Number>
void append(std::string &bytes, Number number)
{
    for (std::size_t i = 0; i < sizeof number; ++i)
        bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i));
}

/// The caller has checked that the bytes are there.
template <class Number>
Number numberAt(std::string_view bytes, std::size_t offset)
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        number |= std::uint64_t{static_cast<unsigned char>(bytes[offset + i])} << (8 * i);
    return static_cast<Number>(number);
}

} // namespace archive
