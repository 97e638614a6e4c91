#pragma once

#include <optional>
#include <string_view>

// One step through bytes that should be UTF-8.
struct Utf8Character {
    std::string_view bytes; // never empty
    std::optional<char32_t> code; // none: the bytes are not UTF-8
};

// The first character of a text that is not empty, or the bytes that cannot begin or continue one.
Utf8Character firstCharacter(std::string_view text);
