#include "SqlText.h"

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

void SqlText::append(const TableSchema &table, const Condition &condition)
{
    using Kind = Condition::Kind;
    const std::string &column = table.columns[std::size_t(condition.column)].name;
    switch (condition.kind) {
    case Kind::Always:
    case Kind::Never:
        text += condition.kind == Kind::Always ? "1=1" : "0=1";
        return;
    case Kind::Compare:
        text.append(column).append(condition.comparison);
        return appendPlaces(condition.values, "");
    case Kind::In:
        text.append(column).append(" IN (");
        appendPlaces(condition.values, ",");
        text += ")";
        return;
    case Kind::Between:
        text.append(column).append(" BETWEEN ");
        return appendPlaces(condition.values, " AND ");
    case Kind::IsNull:
    case Kind::IsNotNull:
        text.append(column).append(condition.kind == Kind::IsNull ? " IS NULL" : " IS NOT NULL");
        return;
    case Kind::Not:
        text += "NOT ";
        return appendJoined(table, condition.parts, "");
    case Kind::And:
        return appendJoined(table, condition.parts, " AND ");
    case Kind::Or:
        return appendJoined(table, condition.parts, " OR ");
    }
}

/// Halved again and again: a database limits how deeply an expression is nested, and a chain of a
/// thousand parts counts as a thousand levels.
void SqlText::appendJoined(const TableSchema &table, std::span<const Condition> parts,
                           std::string_view word)
{
    text += "(";
    if (parts.size() == 1) {
        append(table, parts[0]);
    } else {
        appendJoined(table, parts.first(parts.size() / 2), word);
        text += word;
        appendJoined(table, parts.subspan(parts.size() / 2), word);
    }
    text += ")";
}

void SqlText::appendPlaces(std::span<const Value> bound, std::string_view separator)
{
    for (const Value &value : bound) {
        text.append(&value == &bound.front() ? "" : separator).append("?");
        values.push_back(&value);
    }
}
