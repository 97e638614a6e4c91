#include "SqliteDatabase.h"

#include "Log.h"

#include <sqlite3.h>
#include <sys/stat.h>

namespace
{

/// Of the tables' layout, kept in the file. A database of the application has 0 and can be used.
constexpr std::int64_t currentVersion = 1;

bool fails(SqliteConnection &connection, const char *words)
{
    logLine(std::string("database: ") + words + ": " + connection.message());
    return false;
}

bool isReadable(SqliteConnection &connection)
{
    const std::int64_t version = connection.number("PRAGMA user_version");
    if (version < 0)
        return fails(connection, "cannot read it");
    if (version <= currentVersion)
        return true;
    logLine("database: made by a newer version of this program; it is left as it is");
    return false;
}

/// Looks with a connection that cannot write.
bool isAcceptable(const std::string &path)
{
    struct stat status {
    };
    if (stat(path.c_str(), &status) != 0 || status.st_size == 0)
        return true; // to be made
    const auto connection = SqliteConnection::open(path, SqliteConnection::Access::Read);
    return connection && isReadable(*connection);
}

std::string makingText(const TableSchema &table)
{
    std::string sql = "CREATE TABLE IF NOT EXISTS " + table.name + "(";
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        sql += (i > 0 ? "," : "") + table.columns[i].definition + (i == 0 ? " AUTOINCREMENT" : "");
    sql += ");";
    // One index a column: with one over several, only the first is found quickly.
    for (const std::string &column : table.indexes)
        sql += "CREATE INDEX IF NOT EXISTS " + table.name + "_" + column + " ON " + table.name + "("
            + column + ");";
    return sql;
}

bool hasOurColumns(SqliteConnection &connection, const TableSchema &table)
{
    std::string names;
    std::string ours;
    const SqlText text{"SELECT name FROM pragma_table_info('" + table.name + "') ORDER BY cid", {}};
    SqliteStatement statement = connection.prepare(text);
    while (statement.step() == SQLITE_ROW)
        names.append(reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), 0))) +=
            ' ';
    for (const ColumnSchema &column : table.columns)
        ours += column.name + ' ';
    if (names == ours)
        return true;
    logLine("database: the table " + table.name + " has other columns than it should");
    return false;
}

bool makeTables(SqliteConnection &connection, const std::vector<TableSchema> &tables)
{
    for (const TableSchema &table : tables) {
        if (connection.run(makingText(table).c_str()) != SQLITE_OK)
            return fails(connection, "cannot make a table");
        if (!hasOurColumns(connection, table))
            return false;
    }
    const std::string version = "PRAGMA user_version=" + std::to_string(currentVersion);
    return connection.run(version.c_str()) == SQLITE_OK && connection.run("COMMIT") == SQLITE_OK;
}

} // namespace

std::unique_ptr<SqliteConnection> SqliteDatabase::openWriter(const std::string &path,
                                                             const std::vector<TableSchema> &tables)
{
    if (!isAcceptable(path))
        return nullptr;
    auto connection = SqliteConnection::open(path, SqliteConnection::Access::ReadAndWrite);
    if (!connection)
        return nullptr;
    if (connection->run("PRAGMA synchronous=FULL; PRAGMA journal_size_limit=16777216;"
                        "PRAGMA journal_mode=WAL; BEGIN IMMEDIATE")
        != SQLITE_OK) {
        fails(*connection, "cannot write");
        return nullptr;
    }
    return makeTables(*connection, tables) ? std::move(connection) : nullptr;
}

std::unique_ptr<SqliteConnection> SqliteDatabase::openReader(const std::string &path)
{
    auto connection = SqliteConnection::open(path, SqliteConnection::Access::Read);
    if (!connection)
        return nullptr;
    const std::int64_t version = connection->number("PRAGMA user_version");
    if (version == currentVersion)
        return connection;
    logLine("database: not ready for reading: "
            + (version < 0 ? connection->message() : "version " + std::to_string(version)));
    return nullptr;
}
