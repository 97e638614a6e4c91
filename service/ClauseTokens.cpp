#include "ClauseTokens.h"

#include "TableSchema.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace
{

constexpr std::string_view digits = "0123456789";
constexpr std::string_view blanks = " \t\n\f\r";
constexpr std::string_view wordCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_0123456789";

std::size_t lengthOf(std::string_view text, std::string_view characters)
{
    return std::min(text.find_first_not_of(characters), text.size());
}

bool isOneOf(std::string_view characters, char character)
{
    return characters.find(character) != characters.npos;
}

} // namespace

std::optional<std::int64_t> Token::number() const
{
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() ? std::optional(value) : std::nullopt;
}

std::string Token::unquoted() const
{
    std::string plain;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        plain += text[i];
        if (text[i] == '\'')
            ++i; // the second of a pair
    }
    return plain;
}

Token ClauseTokens::take()
{
    return std::exchange(m_current, next());
}

bool ClauseTokens::isWord(std::string_view word) const
{
    return m_current.kind == Token::Word && isSameName(m_current.text, word);
}

bool ClauseTokens::takeWord(std::string_view word)
{
    const bool isIt = isWord(word);
    if (isIt)
        take();
    return isIt;
}

bool ClauseTokens::isSign(std::string_view sign) const
{
    return m_current.kind == Token::Sign && m_current.text == sign;
}

bool ClauseTokens::takeSign(std::string_view sign)
{
    const bool isIt = isSign(sign);
    if (isIt)
        take();
    return isIt;
}

void ClauseTokens::stop()
{
    m_rest = {};
    m_current = {};
}

Token ClauseTokens::next()
{
    m_rest.remove_prefix(lengthOf(m_rest, blanks));
    if (m_rest.empty())
        return {};
    if (m_rest[0] == '\'')
        return textToken();
    if (isOneOf(digits, m_rest[0]) || m_rest[0] == '-')
        return numberToken();
    if (isOneOf(wordCharacters, m_rest[0]))
        return cut(Token::Word, lengthOf(m_rest, wordCharacters));
    return signToken();
}

Token ClauseTokens::cut(Token::Kind kind, std::size_t length)
{
    const Token token{kind, m_rest.substr(0, length)};
    m_rest.remove_prefix(token.text.size());
    return token;
}

Token ClauseTokens::textToken()
{
    std::size_t end = 1;
    while (end < m_rest.size() && (m_rest[end] != '\'' || m_rest.substr(end + 1).starts_with('\'')))
        end += m_rest[end] == '\'' ? 2 : 1;
    return end < m_rest.size() ? cut(Token::Text, end + 1) : cut(Token::Unknown, m_rest.size());
}

Token ClauseTokens::numberToken()
{
    const std::size_t sign = m_rest[0] == '-' ? 1 : 0;
    const std::size_t end = sign + lengthOf(m_rest.substr(sign), digits);
    const std::string_view after = m_rest.substr(end);
    const bool goesOn = !after.empty()
        && (isOneOf(wordCharacters, after[0]) || after[0] == '.' || after[0] == '$'
            || after[0] < 0);
    return cut(end == sign || goesOn ? Token::Unknown : Token::Number, end + (goesOn ? 1 : 0));
}

Token ClauseTokens::signToken()
{
    for (const std::string_view sign : {"<=", ">=", "<>", "=", "<", ">", "(", ")", ","}) {
        if (m_rest.starts_with(sign))
            return cut(Token::Sign, sign.size());
    }
    return cut(Token::Unknown, 1);
}
