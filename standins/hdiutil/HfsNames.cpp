#include "HfsNames.h"

#include "HfsFormat.h"
#include "Utf8.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/uniset.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>
#include <unordered_set>

namespace hfs
{
namespace
{

constexpr std::size_t longestExtension = 16;

const icu::Normalizer2 &decomposer()
{
    static const icu::FilteredNormalizer2 normalizer = [] {
        UErrorCode error = U_ZERO_ERROR;
        const auto *nfd = icu::Normalizer2::getNFDInstance(error);
        // Decomposition was fixed with Unicode 3.2, for the basic plane and less two ranges whose
        // characters would not survive the way back.
        static icu::UnicodeSet decomposed(
            u"[[:age=3.2:] & [\\u0000-\\uFFFF] - [\\u2000-\\u2FFF] - [\\uF900-\\uFAFF]]", error);
        if (U_FAILURE(error))
            throw std::runtime_error(u_errorName(error));
        decomposed.freeze();
        return icu::FilteredNormalizer2(*nfd, decomposed);
    }();
    return normalizer;
}

void appendEscaped(std::string_view bytes, std::u16string &out)
{
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        out += u'%';
        out += digits[byte >> 4];
        out += digits[byte & 15];
    }
}

void appendCode(char32_t code, std::u16string &out)
{
    if (code < 0x10000) {
        out += static_cast<char16_t>(code);
    } else {
        out += static_cast<char16_t>(U16_LEAD(code));
        out += static_cast<char16_t>(U16_TRAIL(code));
    }
}

struct Decoded {
    std::u16string text;
    bool isUtf8 = true;
};

Decoded decoded(std::string_view bytes)
{
    Decoded result;
    while (!bytes.empty()) {
        const auto character = firstCharacter(bytes);
        bytes.remove_prefix(character.bytes.size());
        if (character.code) {
            appendCode(*character.code, result.text);
        } else {
            result.isUtf8 = false;
            appendEscaped(character.bytes, result.text);
        }
    }
    return result;
}

std::u16string decomposed(std::u16string_view text)
{
    UErrorCode error = U_ZERO_ERROR;
    const icu::UnicodeString source(UBool{0}, text.data(),
                                    static_cast<std::int32_t>(text.size())); // borrows the text
    icu::UnicodeString result;
    decomposer().normalize(source, result, error);
    if (U_FAILURE(error))
        throw std::runtime_error(u_errorName(error));
    return {result.getBuffer(), static_cast<std::size_t>(result.length())};
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::u16string converted(std::string_view bytes)
{
    auto name = isAscii(bytes) ? std::u16string(bytes.begin(), bytes.end())
                               : decomposed(decoded(bytes).text);
    std::replace(name.begin(), name.end(), u':', u'/');
    return name;
}

std::u16string withoutNonAscii(std::string_view bytes)
{
    std::u16string name;
    for (const char &c : bytes) {
        if (static_cast<signed char>(c) < 0)
            appendEscaped({&c, 1}, name);
        else
            name += c == ':' ? u'/' : static_cast<char16_t>(c);
    }
    return name;
}

std::u16string_view cut(std::u16string_view text, std::size_t units)
{
    if (text.size() <= units)
        return text;
    if (units > 0 && U16_IS_LEAD(text[units - 1]))
        --units;
    return text.substr(0, units);
}

std::u16string hashOf(std::string_view bytes)
{
    std::uint32_t hash = 2166136261U; // FNV-1a
    for (const char c : bytes)
        hash = (hash ^ static_cast<std::uint8_t>(c)) * 16777619U;
    std::u16string text = u"~";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += u"0123456789abcdef"[(hash >> shift) & 15U];
    return text;
}

std::u16string withHash(std::string_view bytes, std::u16string_view name, std::string salt)
{
    const auto dot = name.rfind(u'.');
    const bool hasExtension =
        dot != std::u16string_view::npos && dot > 0 && name.size() - dot <= longestExtension;
    const auto extension = hasExtension ? name.substr(dot) : std::u16string_view();
    const auto hash = hashOf(salt.append(bytes));
    const auto stem = cut(name.substr(0, name.size() - extension.size()),
                          longestName - hash.size() - extension.size());
    return std::u16string(stem).append(hash).append(extension);
}

// Whether the stored form says the same as the bytes do, character for character.
bool isExact(std::string_view bytes, std::u16string_view name)
{
    if (isAscii(bytes))
        return true;
    auto plain = decoded(bytes);
    std::replace(plain.text.begin(), plain.text.end(), u':', u'/');
    return plain.isUtf8 && plain.text == name;
}

using TakenNames = std::unordered_set<std::u16string>;

std::u16string freeName(std::string_view bytes, const TakenNames &taken)
{
    const auto isFree = [&taken](const std::u16string &name) {
        return name.size() <= longestName && !taken.contains(name);
    };
    auto name = converted(bytes);
    if (isFree(name))
        return name;
    const bool clashes = name.size() <= longestName;
    if (auto escaped = withoutNonAscii(bytes); clashes && isFree(escaped))
        return escaped;
    std::string salt;
    auto hashed = withHash(bytes, name, salt);
    while (taken.contains(hashed))
        hashed = withHash(bytes, name, salt += '+');
    return hashed;
}

} // namespace

std::u16string volumeName(std::string_view utf8)
{
    if (utf8.empty())
        return u"Untitled";
    const auto name = converted(utf8);
    return std::u16string(cut(name, longestName));
}

std::vector<std::u16string> itemNames(const std::vector<std::string> &rawNames)
{
    std::vector<std::u16string> names(rawNames.size());
    TakenNames taken;
    const auto settle = [&](std::size_t index, std::u16string name) {
        taken.insert(name);
        names[index] = std::move(name);
    };
    for (std::size_t i = 0; i < rawNames.size(); ++i) {
        if (auto name = converted(rawNames[i]);
            name.size() <= longestName && isExact(rawNames[i], name))
            settle(i, std::move(name));
    }
    for (std::size_t i = 0; i < rawNames.size(); ++i) {
        if (names[i].empty())
            settle(i, freeName(rawNames[i], taken));
    }
    return names;
}

bool needsFoldTable(std::u16string_view name)
{
    const auto isIgnored = [](UChar32 c) {
        return (c >= 0x200C && c <= 0x200F) || (c >= 0x202A && c <= 0x202E)
            || (c >= 0x206A && c <= 0x206F) || c == 0xFEFF;
    };
    for (std::size_t at = 0; at < name.size();) {
        UChar32 character = 0;
        U16_NEXT(name, at, name.size(), character);
        if (character < 0x80)
            continue;
        if (u_tolower(character) != character || isIgnored(character))
            return true;
    }
    return false;
}

int compareFolded(std::u16string_view left, std::u16string_view right)
{
    const auto folded = [](char16_t c) {
        return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
    };
    const auto length = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < length; ++i) {
        if (const int difference = folded(left[i]) - folded(right[i]); difference != 0)
            return difference;
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

} // namespace hfs
