#include "HfsNames.h"

#include "HfsFormat.h"

#include <QList>
#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <cstdint>
#include <unordered_set>

namespace hfs
{

namespace
{

constexpr std::size_t maxExtensionLength = 16;

QString percentEncoded(char byte)
{
    return u'%' + QString::fromLatin1(QByteArray(1, byte).toHex().toUpper());
}

// Without the state that a decoder keeps from one call to the next; U+FEFF stays in the text.
QString fromUtf8(QByteArrayView bytes)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decode(bytes);
}

// Bytes of the first character, 0 if the bytes do not begin with one.
qsizetype characterLength(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(bytes.size(), 4); ++length) {
        if (bytes.first(length).isValidUtf8())
            return length;
    }
    return 0;
}

QString decoded(QByteArrayView bytes)
{
    if (bytes.isValidUtf8())
        return fromUtf8(bytes);
    QString text;
    while (!bytes.isEmpty()) {
        const auto length = characterLength(bytes);
        text += length > 0 ? fromUtf8(bytes.first(length)) : percentEncoded(bytes.front());
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

// Decomposition was fixed with Unicode 3.2, for the basic plane and less two ranges whose
// characters would not survive the way back.
bool isNeverDecomposed(QChar unit)
{
    return unit.isSurrogate() || (unit >= u'\u2000' && unit <= u'\u2FFF')
        || (unit >= u'\uF900' && unit <= u'\uFAFF');
}

QString decomposed(const QString &text)
{
    QString result;
    for (auto at = text.begin(); at != text.end();) {
        const auto kept = std::find_if(at, text.end(), isNeverDecomposed);
        result +=
            QString(at, kept - at).normalized(QString::NormalizationForm_D, QChar::Unicode_3_2);
        at = std::find_if_not(kept, text.end(), isNeverDecomposed);
        result.append(kept, at - kept);
    }
    return result;
}

struct Converted {
    std::u16string name;
    bool isExact; // the same text as the bytes, character for character
};

Converted converted(const std::string &bytes)
{
    const QString text = decoded(bytes).replace(u':', u'/');
    const QString name = decomposed(text);
    return {name.toStdU16String(), QByteArrayView(bytes).isValidUtf8() && name == text};
}

std::u16string withoutNonAscii(const std::string &bytes)
{
    QString name;
    for (const char byte : bytes)
        name +=
            static_cast<signed char>(byte) < 0 ? percentEncoded(byte) : QString(QLatin1Char(byte));
    return name.replace(u':', u'/').toStdU16String();
}

std::u16string_view cut(std::u16string_view text, std::size_t units)
{
    if (text.size() <= units)
        return text;
    if (units > 0 && QChar::isHighSurrogate(text[units - 1]))
        --units;
    return text.substr(0, units);
}

std::u16string hashOf(const std::string &bytes)
{
    std::uint32_t hash = 2166136261U; // FNV-1a
    for (const char c : bytes)
        hash = (hash ^ static_cast<std::uint8_t>(c)) * 16777619U;
    return QStringLiteral("~%1").arg(hash, 8, 16, QChar(u'0')).toStdU16String();
}

// Cut before its extension to what the format can store.
std::u16string withHash(const std::string &salted, std::u16string_view name)
{
    const auto dot = name.rfind(u'.');
    const bool hasExtension =
        dot != std::u16string_view::npos && dot > 0 && name.size() - dot <= maxExtensionLength;
    const auto extension = hasExtension ? name.substr(dot) : std::u16string_view();
    const auto hash = hashOf(salted);
    const auto stem = cut(name.substr(0, name.size() - extension.size()),
                          maxNameLength - hash.size() - extension.size());
    return std::u16string(stem).append(hash).append(extension);
}

using TakenNames = std::unordered_set<std::u16string>;

std::u16string freeName(const std::string &bytes, const TakenNames &taken)
{
    const auto isFree = [&taken](const std::u16string &name) {
        return name.size() <= maxNameLength && !taken.contains(name);
    };
    const auto name = converted(bytes).name;
    if (isFree(name))
        return name;
    const bool clashes = name.size() <= maxNameLength;
    if (auto escaped = withoutNonAscii(bytes); clashes && isFree(escaped))
        return escaped;
    std::string salted = bytes;
    auto hashed = withHash(salted, name);
    while (taken.contains(hashed)) {
        salted = '+' + salted;
        hashed = withHash(salted, name);
    }
    return hashed;
}

} // namespace

std::u16string volumeName(const std::string &bytes)
{
    return bytes.empty() ? u"Untitled" : std::u16string(cut(converted(bytes).name, maxNameLength));
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
        if (auto [name, isExact] = converted(rawNames[i]); isExact && name.size() <= maxNameLength)
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
    const auto isIgnored = [](char32_t c) {
        return (c >= 0x200C && c <= 0x200F) || (c >= 0x202A && c <= 0x202E)
            || (c >= 0x206A && c <= 0x206F) || c == 0xFEFF;
    };
    return std::ranges::any_of(QStringView(name).toUcs4(), [&](char32_t c) {
        return c >= 0x80 && (QChar::toLower(c) != c || isIgnored(c));
    });
}

std::strong_ordering compareFolded(std::u16string_view left, std::u16string_view right)
{
    const auto folded = [](char16_t c) {
        return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
    };
    return std::lexicographical_compare_three_way(
        left.begin(), left.end(), right.begin(), right.end(),
        [&folded](char16_t a, char16_t b) { return folded(a) <=> folded(b); });
}

} // namespace hfs
