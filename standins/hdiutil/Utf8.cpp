#include "Utf8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

Utf8Character firstCharacter(std::string_view text)
{
    const auto length =
        static_cast<std::int32_t>(std::min<std::size_t>(text.size(), U8_MAX_LENGTH));
    std::int32_t next = 0;
    UChar32 code = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // inside the macro
    U8_NEXT(text, next, length, code);
#pragma GCC diagnostic pop
    Utf8Character character{text.substr(0, static_cast<std::size_t>(next)), std::nullopt};
    if (code >= 0)
        character.code = static_cast<char32_t>(code);
    return character;
}
