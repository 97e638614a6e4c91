#include "Condition.h"

#include "ClauseTokens.h"

#include <QByteArrayView>

#include <algorithm>

namespace
{

/// Reads a clause by recursive descent. After a failure every step fails.
class Reader
{
public:
    Reader(const TableSchema &table, std::string_view text) : m_table(table), m_tokens(text) { }

    Parsed<Clause> clause()
    {
        Clause clause{condition(), {}};
        if (m_tokens.takeWord("ORDER"))
            clause.order = order();
        if (m_tokens.current().kind != Token::End)
            fail("something follows that does not belong to a condition");
        if (!m_fault.empty())
            return Outcome{Status::ConditionRefused, m_fault};
        return clause;
    }

private:
    Condition condition()
    {
        return joined(Condition::Kind::Or, "OR", [this] {
            return joined(Condition::Kind::And, "AND", [this] { return term(); });
        });
    }

    /// One part, or several that the word joins.
    template <class ReadPart>
    Condition joined(Condition::Kind kind, std::string_view word, ReadPart readPart)
    {
        Condition first = readPart();
        if (!m_tokens.isWord(word))
            return first;
        Condition whole{.kind = kind};
        whole.parts.push_back(std::move(first));
        while (m_tokens.takeWord(word) && m_fault.empty())
            whole.parts.push_back(readPart());
        return whole;
    }

    Condition term()
    {
        if (m_tokens.isWord("NOT") || m_tokens.isSign("("))
            return nested();
        return m_tokens.current().kind == Token::Number ? constant() : test();
    }

    Condition nested()
    {
        if (m_depth == Clause::maxDepth)
            return fail("too deeply nested");
        ++m_depth;
        Condition result = m_tokens.takeWord("NOT") ? negation() : inBrackets();
        --m_depth;
        return result;
    }

    Condition negation()
    {
        Condition negation{.kind = Condition::Kind::Not};
        negation.parts.push_back(term());
        return negation;
    }

    Condition inBrackets()
    {
        m_tokens.takeSign("(");
        Condition inner = condition();
        return m_tokens.takeSign(")") ? inner : fail("a bracket is not closed");
    }

    Condition constant()
    {
        const std::string_view left = m_tokens.take().text;
        if (m_tokens.takeSign("=") && m_tokens.current().kind == Token::Number
            && m_tokens.take().text == "1") {
            if (left == "1")
                return {.kind = Condition::Kind::Always};
            if (left == "0")
                return {.kind = Condition::Kind::Never};
        }
        return fail("a condition begins with a column; the only constants are 1=1 and 0=1");
    }

    int column()
    {
        const Token token = m_tokens.current();
        const int index = token.kind == Token::Word ? m_table.columnNamed(token.text) : -1;
        if (index < 0)
            fail("a column of the table is expected");
        m_tokens.take();
        return std::max(index, 0);
    }

    Condition test()
    {
        Condition test{.kind = Condition::Kind::Compare, .column = column()};
        if (m_tokens.takeWord("IN"))
            return inList(std::move(test));
        if (m_tokens.takeWord("BETWEEN"))
            return between(std::move(test));
        if (m_tokens.takeWord("IS"))
            return null(std::move(test));
        for (const std::string_view sign : {"=", "<>", "<", "<=", ">", ">="}) {
            if (m_tokens.takeSign(sign)) {
                test.comparison = sign;
                takeLiteral(test);
                return test;
            }
        }
        return fail("an operator is expected: = <> < <= > >= IN BETWEEN IS");
    }

    Condition inList(Condition test)
    {
        test.kind = Condition::Kind::In;
        if (!m_tokens.takeSign("("))
            return fail("IN has a list in brackets");
        do
            takeLiteral(test);
        while (m_tokens.takeSign(",") && m_fault.empty());
        return m_tokens.takeSign(")") ? test : fail("the list of IN is not closed");
    }

    Condition between(Condition test)
    {
        test.kind = Condition::Kind::Between;
        takeLiteral(test);
        if (!m_tokens.takeWord("AND"))
            return fail("BETWEEN has two literals with AND between them");
        takeLiteral(test);
        return test;
    }

    Condition null(Condition test)
    {
        test.kind = m_tokens.takeWord("NOT") ? Condition::Kind::IsNotNull : Condition::Kind::IsNull;
        return m_tokens.takeWord("NULL") ? test : fail("only NULL stands behind IS");
    }

    void takeLiteral(Condition &test)
    {
        const bool isText = m_table.columns[std::size_t(test.column)].kind == ColumnKind::Text;
        const Token token = m_tokens.take();
        if (token.kind == Token::Number && !isText) {
            if (const auto number = token.number())
                test.values.emplace_back(*number);
            else
                fail("a number is too large");
        } else if (token.kind == Token::Text && isText) {
            test.values.emplace_back(token.unquoted());
        } else {
            fail("a literal of the column's kind is expected");
        }
    }

    std::vector<Ordering> order()
    {
        std::vector<Ordering> order;
        if (!m_tokens.takeWord("BY"))
            fail("BY is missing behind ORDER");
        do {
            const int index = column();
            const bool isDescending = m_tokens.takeWord("DESC");
            if (!isDescending)
                m_tokens.takeWord("ASC");
            order.push_back({index, isDescending});
        } while (m_tokens.takeSign(",") && m_fault.empty());
        return order;
    }

    /// Notes the first failure and leaves nothing to read.
    Condition fail(std::string_view words)
    {
        if (m_fault.empty())
            m_fault = words;
        m_tokens.stop();
        return {};
    }

    const TableSchema &m_table;
    ClauseTokens m_tokens;
    std::string m_fault;
    int m_depth = 0;
};

bool isPlainText(std::string_view text)
{
    return text.find('\0') == text.npos
        && QByteArrayView(text.data(), qsizetype(text.size())).isValidUtf8();
}

} // namespace

bool Condition::namesColumn() const
{
    switch (kind) {
    case Kind::Always:
    case Kind::Never:
        return false;
    case Kind::Not:
    case Kind::And:
    case Kind::Or:
        return std::ranges::any_of(parts, &Condition::namesColumn);
    default:
        return true;
    }
}

bool Condition::isOneKey() const
{
    return kind == Kind::Compare && column == 0 && comparison == "=";
}

Parsed<Clause> Clause::parse(const TableSchema &table, std::string_view text)
{
    if (text.size() > maxLength)
        return Outcome{Status::ConditionRefused, "the condition is longer than 8 KiB"};
    if (!isPlainText(text))
        return Outcome{Status::ConditionRefused, "the condition is not UTF-8"};
    return Reader(table, text).clause();
}
