#include "SqlText.h"

#include <algorithm>
#include <functional>

namespace
{

std::string names(const TableSchema &table, std::size_t first, std::string_view behind)
{
    std::string text;
    for (std::size_t i = first; i < table.columns.size(); ++i) {
        text += i > first ? "," : "";
        text.append(table.columns[i].name).append(behind);
    }
    return text;
}

/// Records that the order leaves equal are in the order of their keys, so that pages fit together.
std::string orderOf(const TableSchema &table, const std::vector<Ordering> &order)
{
    std::string text = " ORDER BY ";
    for (const Ordering &part : order)
        text += table.columns[std::size_t(part.column)].name + (part.isDescending ? " DESC," : ",");
    return text + "ID";
}

int depth(const Condition &condition)
{
    int deepest = 0;
    for (const Condition &part : condition.parts)
        deepest = std::max(deepest, depth(part));
    return deepest + 1;
}

} // namespace

SqlText SqlText::select(const Selection &selection)
{
    const TableSchema &table = *selection.table;
    SqlText sql{"SELECT " + names(table, 0, "") + " FROM " + table.name + " WHERE ", {}};
    sql.append(table, selection.clause.condition);
    sql.text += orderOf(table, selection.clause.order);
    return sql;
}

SqlText SqlText::remove(const TableSchema &table, const Condition &condition)
{
    SqlText sql{"DELETE FROM " + table.name + " WHERE ", {}};
    sql.append(table, condition);
    return sql;
}

SqlText SqlText::insert(const TableSchema &table, const RecordBody &record)
{
    SqlText sql{"INSERT INTO " + table.name + "(" + names(table, 1, "") + ") VALUES(", {}};
    sql.appendPlaces(record.values, ",");
    sql.text += ")";
    return sql;
}

SqlText SqlText::update(const TableSchema &table, const RecordBody &record, const Value &key)
{
    SqlText sql{"UPDATE " + table.name + " SET " + names(table, 1, "=?") + " WHERE ID=?", {}};
    for (const Value &value : record.values)
        sql.values.push_back(&value);
    sql.values.push_back(&key);
    return sql;
}

/// A negation is carried down to the tests. It means the same there, also for NULL, and leaves less
/// nesting: SQLite's own parser gives up after a hundred symbols that wait for their end.
void SqlText::append(const TableSchema &table, const Condition &condition, bool isNegated)
{
    using Kind = Condition::Kind;
    switch (condition.kind) {
    case Kind::Always:
    case Kind::Never:
        text += (condition.kind == Kind::Always) != isNegated ? "1=1" : "0=1";
        return;
    case Kind::Not:
        return append(table, condition.parts[0], !isNegated);
    case Kind::And:
    case Kind::Or: {
        std::vector<const Condition *> parts;
        for (const Condition &part : condition.parts)
            parts.push_back(&part);
        return appendJoined(table, std::move(parts),
                            (condition.kind == Kind::And) != isNegated ? " AND " : " OR ",
                            isNegated);
    }
    default:
        text += isNegated ? "NOT " : "";
        return appendTest(table, condition);
    }
}

void SqlText::appendTest(const TableSchema &table, const Condition &test)
{
    const std::string &column = table.columns[std::size_t(test.column)].name;
    switch (test.kind) {
    case Condition::Kind::In:
        text.append(column).append(" IN (");
        appendPlaces(test.values, ",");
        text += ")";
        return;
    case Condition::Kind::Between:
        text.append(column).append(" BETWEEN ");
        return appendPlaces(test.values, " AND ");
    case Condition::Kind::IsNull:
        text.append(column).append(" IS NULL");
        return;
    case Condition::Kind::IsNotNull:
        text.append(column).append(" IS NOT NULL");
        return;
    default:
        text.append(column).append(test.comparison);
        return appendPlaces(test.values, "");
    }
}

/// The most deeply nested part comes first: to the left of everything else it costs the parser one
/// symbol a level.
void SqlText::appendJoined(const TableSchema &table, std::vector<const Condition *> parts,
                           std::string_view word, bool isNegated)
{
    std::ranges::stable_sort(parts, std::greater(),
                             [](const Condition *part) { return depth(*part); });
    text += "(";
    append(table, *parts[0], isNegated);
    text += word;
    appendHalves(table, std::span(parts).subspan(1), word, isNegated);
    text += ")";
}

/// Halved again and again: SQLite counts a chain of a thousand parts as a thousand levels.
void SqlText::appendHalves(const TableSchema &table, std::span<const Condition *const> parts,
                           std::string_view word, bool isNegated)
{
    if (parts.size() == 1)
        return append(table, *parts[0], isNegated);
    text += "(";
    appendHalves(table, parts.first(parts.size() / 2), word, isNegated);
    text += word;
    appendHalves(table, parts.subspan(parts.size() / 2), word, isNegated);
    text += ")";
}

void SqlText::appendPlaces(std::span<const Value> bound, std::string_view separator)
{
    for (const Value &value : bound) {
        text.append(&value == &bound.front() ? "" : separator).append("?");
        values.push_back(&value);
    }
}
