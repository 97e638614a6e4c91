// What is read as a condition becomes a statement that SQLite can prepare, with as many places as
// there are values; and the statement reads the same where the raw text is SQL at all.

#include "SampleTable.h"
#include "SqlText.h"

#include <sqlite3.h>

#include <algorithm>

namespace
{

sqlite3 *sampleDatabase()
{
    static sqlite3 *const database = [] {
        sqlite3 *opened = nullptr;
        sqlite3_open(":memory:", &opened);
        sqlite3_exec(opened,
                     "CREATE TABLE User(ID INTEGER PRIMARY KEY,UserGroupID INTEGER,User TEXT)",
                     nullptr, nullptr, nullptr);
        return opened;
    }();
    return database;
}

/// The number of its parameters, -1 if it cannot be prepared.
int placesOf(const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    const int code =
        sqlite3_prepare_v2(sampleDatabase(), sql.data(), int(sql.size()), &statement, nullptr);
    const int places = code == SQLITE_OK ? sqlite3_bind_parameter_count(statement) : -1;
    sqlite3_finalize(statement);
    return places;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const TableSchema &table = sampleTables()[0];
    const std::string_view text = sampleText(data, size);
    const auto clause = Clause::parse(table, text);
    if (!std::holds_alternative<Clause>(clause))
        return 0;
    const Selection selection{&table, std::get<Clause>(clause), {}};
    const SqlText sql = SqlText::select(selection);
    const bool isRaw = placesOf("SELECT * FROM User WHERE " + std::string(text)) == 0;
    const bool isOurs = placesOf(sql.text) == int(sql.values.size())
        && std::ranges::count(sql.text, '?') == std::ptrdiff_t(sql.values.size());
    if (isRaw && !isOurs)
        __builtin_trap();
    if (!isRaw && std::ranges::count(text, '(') + std::ranges::count(text, 'T') < 10)
        __builtin_trap(); // only what is too deeply nested for SQLite is ours alone
    return 0;
}
