#include "LeadingNumber.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace
{

bool startsWithDigit(std::string_view text)
{
    return !text.empty() && text[0] >= '0' && text[0] <= '9';
}

/// Skips blanks and takes one sign; true for a minus.
bool takeSign(std::string_view &text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const char sign = text.empty() ? '\0' : text[0];
    if (sign == '-' || sign == '+')
        text.remove_prefix(1);
    return sign == '-';
}

/// The double nearest to a number that from_chars finds too large or too small for one. Which of
/// the two it is shows in its exponent, or in its first digit if it has none.
double nearestTo(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eE");
    const bool isTiny = exponent == number.npos ? number[0] == '0' || number[0] == '.'
                                                : number[exponent + 1] == '-';
    return isTiny ? 0 : std::numeric_limits<double>::max();
}

} // namespace

int leadingInteger(QByteArrayView text)
{
    constexpr qint64 past = qint64(std::numeric_limits<int>::max()) + 1;
    std::string_view digits(text.data(), std::size_t(text.size()));
    const bool isNegative = takeSign(digits);
    qint64 value = 0;
    for (; startsWithDigit(digits); digits.remove_prefix(1))
        value = std::min(value * 10 + (digits[0] - '0'), past);
    return int(isNegative ? -value : std::min(value, past - 1));
}

double leadingDouble(QByteArrayView text)
{
    std::string_view digits(text.data(), std::size_t(text.size()));
    const bool isNegative = takeSign(digits);
    // Excludes a second sign, "inf" and "nan", which from_chars would read.
    if (!startsWithDigit(digits) && !(digits.starts_with('.') && startsWithDigit(digits.substr(1))))
        return 0;
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = nearestTo({digits.data(), result.ptr});
    return isNegative ? -value : value;
}
