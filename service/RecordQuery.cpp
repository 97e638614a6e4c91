#include "RecordQuery.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace
{

constexpr std::pair<std::string_view, Operation> operations[] = {
    {"INSERT", Operation::Insert},
    {"UPDATE", Operation::Update},
    {"DELETE", Operation::Delete},
    {"SELECT", Operation::Select},
};
constexpr std::string_view clauseMark = "&CLAUSE=";

int hexDigit(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

/// A whole number and nothing else. Too large a one becomes the type's largest.
std::optional<int> wholeNumber(std::string_view text)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end != text.data() + text.size() || error == std::errc::invalid_argument)
        return std::nullopt;
    return error == std::errc() ? value : std::numeric_limits<int>::max();
}

/// Cuts "&FROM=n&STEP=n" off the end of the clause.
std::optional<Page> takePage(std::string_view &clause)
{
    constexpr std::string_view fromMark = "&FROM=";
    constexpr std::string_view stepMark = "&STEP=";
    const std::size_t begin = clause.rfind(fromMark);
    const std::size_t middle = clause.rfind(stepMark);
    if (begin == clause.npos || middle == clause.npos || middle < begin + fromMark.size())
        return std::nullopt;
    const std::size_t first = begin + fromMark.size();
    const auto from = wholeNumber(clause.substr(first, middle - first));
    const auto step = wholeNumber(clause.substr(middle + stepMark.size()));
    if (!from || !step)
        return std::nullopt;
    clause = clause.substr(0, begin);
    return Page{*from, *step};
}

Outcome notUnderstood(std::string_view words)
{
    return {Status::NotUnderstood, words};
}

Parsed<RecordQuery> readClause(RecordQuery query, std::optional<std::string_view> clause)
{
    const bool takesClause =
        query.operation == Operation::Delete || query.operation == Operation::Select;
    if (clause.has_value() != takesClause)
        return notUnderstood(takesClause ? "CLAUSE is missing" : "CLAUSE does not belong here");
    if (!takesClause)
        return query;
    if (query.operation == Operation::Select)
        query.page = takePage(*clause);
    if (query.page && query.page->step > RecordQuery::maxStep)
        return notUnderstood("STEP is larger than 10000");
    auto decoded = percentDecoded(*clause);
    if (!decoded)
        return notUnderstood("a % without two hexadecimal digits");
    query.clause = std::move(*decoded);
    return query;
}

} // namespace

std::string_view operationName(Operation operation)
{
    return operations[int(operation)].first;
}

std::optional<std::string> percentDecoded(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            decoded += text[i];
            continue;
        }
        const int high = i + 2 < text.size() ? hexDigit(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? hexDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0)
            return std::nullopt;
        decoded += char(high * 16 + low);
        i += 2;
    }
    return decoded;
}

bool RecordQuery::looksLikeSelect(std::string_view target)
{
    return target.substr(0, target.find(clauseMark)).ends_with("?OPERATION=SELECT");
}

Parsed<RecordQuery> RecordQuery::parse(std::span<const TableSchema> tables, std::string_view base,
                                       std::string_view target)
{
    const std::size_t mark = target.find('?');
    const std::string_view path = target.substr(0, mark);
    const auto table = std::ranges::find_if(tables, [&](const TableSchema &one) {
        return path.starts_with(base) && path.substr(base.size()) == one.name;
    });
    if (table == tables.end())
        return Outcome{Status::NotUnderstood, "no such table", 404};
    const std::string_view query = mark == target.npos ? "" : target.substr(mark + 1);
    const std::size_t clause = query.find(clauseMark);
    const std::string_view head = query.substr(0, clause);
    for (const auto &[name, operation] : operations) {
        constexpr std::string_view word = "OPERATION=";
        if (head.starts_with(word) && head.substr(word.size()) == name)
            return readClause({&*table, operation, {}, {}},
                              clause == query.npos
                                  ? std::nullopt
                                  : std::optional(query.substr(clause + clauseMark.size())));
    }
    return notUnderstood("no such operation");
}
