#include "RecordBody.h"

#include <simdjson.h>

#include <charconv>
#include <limits>
#include <optional>

using simdjson::dom::element;

namespace
{

Outcome notUnderstood(std::string_view words)
{
    return {Status::NotUnderstood, words};
}

std::optional<std::int64_t> wholeNumber(const element &value)
{
    std::int64_t number = 0;
    std::string_view text;
    if (value.get(text) == simdjson::SUCCESS) {
        const char *const end = text.data() + text.size();
        const auto [read, error] = std::from_chars(text.data(), end, number);
        if (error != std::errc() || read != end)
            return std::nullopt;
    } else if (value.get(number) != simdjson::SUCCESS) {
        return std::nullopt;
    }
    using Range = std::numeric_limits<std::int32_t>;
    return number >= Range::min() && number <= Range::max() ? std::optional(number) : std::nullopt;
}

std::optional<Value> valueOf(ColumnKind kind, const element &value)
{
    if (kind == ColumnKind::Integer)
        return wholeNumber(value);
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS || text.size() > RecordBody::maxTextLength
        || text.find('\0') != text.npos)
        return std::nullopt;
    return std::string(text);
}

/// By column; an entry without a value is missing.
using Members = std::vector<std::optional<Value>>;

std::optional<Outcome> readMembers(const TableSchema &table, const simdjson::dom::object &object,
                                   Members &members)
{
    for (const auto &[name, value] : object) {
        const int index = table.columnNamed(name);
        if (index < 0 || table.columns[std::size_t(index)].name != name)
            return notUnderstood("a member that is no column of the table");
        std::optional<Value> &member = members[std::size_t(index)];
        if (member)
            return notUnderstood("a member that is there twice");
        member = valueOf(table.columns[std::size_t(index)].kind, value);
        if (!member)
            return notUnderstood("a value that its column cannot hold");
    }
    for (const auto &member : members) {
        if (!member)
            return notUnderstood("a column is missing");
    }
    return std::nullopt;
}

} // namespace

Parsed<RecordBody> RecordBody::parse(const TableSchema &table, std::string_view json)
{
    simdjson::dom::parser parser(maxLength);
    simdjson::dom::object object;
    if (parser.parse(json.data(), json.size()).get(object) != simdjson::SUCCESS)
        return notUnderstood("the body is not one JSON object");
    Members members(table.columns.size());
    if (const auto fault = readMembers(table, object, members))
        return *fault;
    RecordBody body{std::get<std::int64_t>(*members[0]), {}};
    for (std::size_t i = 1; i < members.size(); ++i)
        body.values.push_back(std::move(*members[i]));
    return body;
}
