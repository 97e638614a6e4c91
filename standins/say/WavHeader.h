#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace standin
{

// The header that the synthesiser writes before its samples: RIFF, 44 bytes, lengths that mean
// nothing as it writes them before it knows.
inline constexpr std::size_t wavHeaderSize = 44;
inline constexpr int usualSampleRate = 22050; // of nearly all voices

// Samples a second, when these are 44 bytes of a header of 16-bit mono PCM.
std::optional<int> wavSampleRate(std::string_view header);

} // namespace standin
