#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>

/// The number as C's "%.<precision>f" writes it in the "C" locale: fixed notation, exact decimal
/// expansion rounded half to even, so 1.25 with one digit is "1.2". QString::number would give
/// "1.3", and snprintf depends on the locale. Precision is 0 to 100 (clamped). Infinities and NaN
/// read "inf", "-inf", "nan". Any thread.
inline QString fixedText(double value, int precision)
{
    constexpr int maxPrecision = 100;
    // Sign, the 309 digits before the point of the largest double, point, digits behind it.
    std::array<char, 1 + 309 + 1 + maxPrecision> text;
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed,
                      std::clamp(precision, 0, maxPrecision));
    return QString::fromLatin1(text.data(), result.ptr - text.data());
}
