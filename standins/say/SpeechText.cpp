#include "SpeechText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace standin
{

namespace
{

// Length of the well-formed UTF-8 sequence at the beginning of `text` (RFC 3629), 0 when there is
// none.
std::size_t sequenceLength(std::string_view text)
{
    const auto byte = [&text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    const auto continues = [&byte](std::size_t index, unsigned from = 0x80, unsigned to = 0xbf) {
        return byte(index) >= from && byte(index) <= to;
    };
    const unsigned first = byte(0);
    if (first < 0x80)
        return 1;
    if (first >= 0xc2 && first <= 0xdf)
        return continues(1) ? 2 : 0;
    if (first >= 0xe0 && first <= 0xef) {
        const bool second = continues(1, first == 0xe0 ? 0xa0 : 0x80, first == 0xed ? 0x9f : 0xbf);
        return second && continues(2) ? 3 : 0;
    }
    if (first >= 0xf0 && first <= 0xf4) {
        const bool second = continues(1, first == 0xf0 ? 0x90 : 0x80, first == 0xf4 ? 0x8f : 0xbf);
        return second && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

// ASCII and Latin-1 controls alike; newline and tab separate words.
bool isControl(std::string_view character)
{
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 2)
        return first == 0xc2 && static_cast<unsigned char>(character[1]) < 0xa0;
    return character.size() == 1
        && ((first < 0x20 && first != '\n' && first != '\t') || first == 0x7f);
}

} // namespace

std::string speakableText(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = sequenceLength(text);
        const std::string_view character = text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
        if (length == 0 || isControl(character))
            continue;
        if (character == "[" && result.ends_with('['))
            result += ' ';
        result += character;
    }
    return result;
}

std::optional<int> speakingRate(std::string_view text)
{
    std::string number(text);
    std::ranges::replace(number, ',', '.');
    double value = 0;
    const char *end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, value, std::chars_format::fixed);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return static_cast<int>(std::lround(std::clamp(value, 80.0, 900.0)));
}

} // namespace standin
