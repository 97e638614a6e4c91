#include "FixedText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace
{
constexpr int mostPrecise = 100;
// Sign, the 309 digits before the point of the largest double, point, digits behind it.
constexpr std::size_t longestText = 1 + 309 + 1 + mostPrecise;
} // namespace

QString fixedText(double value, int precision)
{
    std::array<char, longestText> text;
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed,
                      std::clamp(precision, 0, mostPrecise));
    return QString::fromLatin1(text.data(), result.ptr - text.data());
}
