#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A word, literal or sign of a clause. Its text is a part of the clause's.
struct Token {
    enum Kind {
        Word, ///< A keyword or a column.
        Number, ///< Digits, perhaps with a minus before them.
        Text, ///< With its quotes.
        Sign, ///< An operator, a bracket or a comma.
        End,
        Unknown, ///< Whatever else.
    };

    Kind kind = End;
    std::string_view text = {};

    std::optional<std::int64_t> number() const; ///< None if it does not fit into 64 bits.
    std::string unquoted() const;
};

/// Parts a clause into tokens as SQLite does. What SQLite would not read, and what no condition
/// needs (comments, names in quotes, hexadecimal numbers, …), is an Unknown token.
class ClauseTokens
{
public:
    explicit ClauseTokens(std::string_view text) : m_rest(text) { take(); }

    const Token &current() const { return m_current; }
    Token take(); ///< The current token; the next one becomes current.
    bool isWord(std::string_view word) const; ///< Whatever its case.
    bool isSign(std::string_view sign) const;
    bool takeWord(std::string_view word); ///< False, and nothing is taken, if it is another token.
    bool takeSign(std::string_view sign);
    void stop(); ///< No token is left.

private:
    Token next();
    Token cut(Token::Kind kind, std::size_t length);
    Token textToken();
    Token numberToken();
    Token signToken();

    std::string_view m_rest;
    Token m_current;
};
