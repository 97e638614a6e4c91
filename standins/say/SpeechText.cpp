#include "SpeechText.h"

#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace standin
{

namespace
{

bool isSpeakable(QChar unit)
{
    if (unit == QChar::ReplacementCharacter) // what was not UTF-8
        return false;
    return unit.category() != QChar::Other_Control || unit == u'\n' || unit == u'\t';
}

} // namespace

std::string speakableText(const std::string &bytes)
{
    QString result;
    for (const QChar unit : QString::fromStdString(bytes)) {
        if (!isSpeakable(unit))
            continue;
        if (unit == u'[' && result.endsWith(u'['))
            result += u' ';
        result += unit;
    }
    return result.toStdString();
}

std::optional<int> speakingRate(std::string text)
{
    std::ranges::replace(text, ',', '.');
    double value = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return static_cast<int>(std::lround(std::clamp(value, 80.0, 900.0)));
}

} // namespace standin
