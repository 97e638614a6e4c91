#include "JsonRows.h"

#include <array>
#include <charconv>

namespace
{

bool isEscaped(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

} // namespace

void JsonRows::add(std::int64_t number)
{
    beginValue();
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    m_text.append(digits.data(), end);
    endValue();
}

void JsonRows::add(std::string_view text)
{
    beginValue();
    m_text += '"';
    appendEscaped(text);
    m_text += '"';
    endValue();
}

void JsonRows::addNull()
{
    beginValue();
    m_text += "null";
    endValue();
}

std::string JsonRows::take()
{
    return std::move(m_text) + "]}";
}

void JsonRows::beginValue()
{
    if (m_column == m_table.columns.size()) {
        m_text += ',';
        m_column = 0;
    }
    m_text += m_column == 0 ? "{\"" : ",\"";
    m_text.append(m_table.columns[m_column].name).append("\":");
}

void JsonRows::endValue()
{
    if (++m_column == m_table.columns.size())
        m_text += '}';
}

void JsonRows::appendEscaped(std::string_view text)
{
    constexpr std::string_view hexDigits = "0123456789abcdef";
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (!isEscaped(text[i]))
            continue;
        m_text.append(text, begin, i - begin);
        begin = i + 1;
        if (byte >= 0x20) {
            m_text += '\\';
            m_text += text[i];
        } else {
            m_text += "\\u00";
            m_text += hexDigits[byte / 16];
            m_text += hexDigits[byte % 16];
        }
    }
    m_text.append(text, begin);
}
