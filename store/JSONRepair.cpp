#include "JSONRepair.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string_view>

namespace
{

/// Reads the whole piece, as far as its characters allow.
template <class Number, class... Format>
std::from_chars_result read(std::string_view piece, Number &number, Format... format)
{
    return std::from_chars(piece.data(), piece.data() + piece.size(), number, format...);
}

/// The unit of an escape "\uXXXX" at the beginning; -1 if there is none.
int escapedUnit(std::string_view text)
{
    unsigned unit = 0;
    if (text.size() < 6 || !text.starts_with("\\u"))
        return -1;
    const std::string_view digits = text.substr(2, 4);
    return read(digits, unit, 16).ptr == digits.data() + digits.size() ? int(unit) : -1;
}

/// Moves one character of a string, an escape counting as one, or a whole surrogate pair.
void moveCharacter(std::string_view &text, QByteArray &repaired)
{
    const int unit = escapedUnit(text);
    const int next = unit < 0 ? -1 : escapedUnit(text.substr(6));
    const bool isPair = unit >= 0xd800 && unit < 0xdc00 && next >= 0xdc00 && next < 0xe000;
    const bool isTorn = unit >= 0xd800 && unit < 0xe000 && !isPair;
    const std::size_t length = isPair ? 12 : unit >= 0 ? 6 : text.starts_with('\\') ? 2 : 1;
    const std::string_view character = text.substr(0, length);
    repaired.append(isTorn ? QByteArrayView("\\ufffd") : QByteArrayView(character));
    text.remove_prefix(character.size());
}

void moveNumber(std::string_view &text, QByteArray &repaired)
{
    const std::size_t length = std::min(text.find_first_not_of("0123456789+-.eE"), text.size());
    const std::string_view number = text.substr(0, length);
    double value = 0;
    std::int64_t integer = 0;
    const bool isTooLarge = read(number, value).ec == std::errc::result_out_of_range;
    const std::from_chars_result result = read(number, integer);
    const bool isLongInteger =
        result.ec == std::errc::result_out_of_range && result.ptr == number.data() + number.size();
    repaired.append(isTooLarge ? QByteArrayView("null") : QByteArrayView(number));
    if (isLongInteger && !isTooLarge)
        repaired.append(".0");
    text.remove_prefix(length);
}

} // namespace

QByteArray repairedJSON(QByteArrayView json)
{
    QByteArray repaired;
    repaired.reserve(json.size());
    std::string_view text(json.data(), std::size_t(json.size()));
    bool isInString = false;
    while (!text.empty()) {
        const bool startsNumber = text[0] == '-' || (text[0] >= '0' && text[0] <= '9');
        if (!isInString && startsNumber) {
            moveNumber(text, repaired);
            continue;
        }
        isInString = isInString != text.starts_with('"'); // an escaped one is moved with its "\"
        moveCharacter(text, repaired);
    }
    return repaired;
}
