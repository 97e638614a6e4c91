#include "SqliteEngine.h"

#include "JsonRows.h"
#include "Log.h"
#include "SqliteDatabase.h"

#include <QByteArrayView>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>

#include <cstring>
#include <filesystem>

namespace
{

void addRow(JsonRows &rows, sqlite3_stmt *statement, const TableSchema &table)
{
    for (int i = 0; i < int(table.columns.size()); ++i) {
        if (sqlite3_column_type(statement, i) == SQLITE_NULL) {
            rows.addNull();
        } else if (table.columns[std::size_t(i)].kind == ColumnKind::Integer) {
            rows.add(std::int64_t(sqlite3_column_int64(statement, i)));
        } else {
            const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, i));
            rows.add(std::string_view(text ? text : "",
                                      std::size_t(sqlite3_column_bytes(statement, i))));
        }
    }
}

int readAll(SqliteStatement &statement, const TableSchema &table, JsonRows &rows)
{
    int code = SQLITE_ROW;
    while (!rows.isTooLong() && (code = statement.step()) == SQLITE_ROW)
        addRow(rows, statement.get(), table);
    return rows.isTooLong() ? SQLITE_DONE : code;
}

/// Steps over what comes before a page. The end of the rows counts as one step, and after it they
/// begin again: so it is with the application's own database.
int skip(SqliteStatement &statement, std::int64_t count)
{
    int code = SQLITE_DONE;
    for (std::int64_t taken = 1; count > 0; ++taken) {
        --count;
        code = statement.step();
        if (code == SQLITE_DONE)
            count %= std::exchange(taken, 0); // the same again and again
        else if (code != SQLITE_ROW)
            return code;
    }
    return SQLITE_DONE;
}

int readPage(SqliteStatement &statement, const TableSchema &table, const Page &page, JsonRows &rows)
{
    int code = skip(statement, page.from);
    for (int i = -2; i < page.step && code == SQLITE_DONE && !rows.isTooLong(); ++i) {
        code = statement.step();
        if (code == SQLITE_ROW) {
            addRow(rows, statement.get(), table);
            code = SQLITE_DONE;
        }
    }
    return code;
}

/// The reply, or why there is none.
Parsed<std::string> resultOf(int code, JsonRows &rows, const SqliteConnection &reader)
{
    if (const auto fault = reader.conditionFault(code); !fault.empty())
        return Outcome{Status::ConditionRefused, fault};
    if (code != SQLITE_DONE) {
        logLine("database: cannot read: " + reader.message());
        return Outcome{Status::NotNow, "the database cannot be read, try again later"};
    }
    if (rows.isTooLong())
        return Outcome{Status::NotNow, "more than 64 MiB, ask for pages with &FROM= and &STEP="};
    std::string reply = rows.take();
    if (!QByteArrayView(reply.data(), qsizetype(reply.size())).isValidUtf8()) {
        logLine("database: a text is not UTF-8");
        return Outcome{Status::NotNow, "a text in the database is not UTF-8"};
    }
    return reply;
}

} // namespace

std::unique_ptr<SqliteEngine> SqliteEngine::open(const std::string &name,
                                                 const std::vector<TableSchema> &tables,
                                                 std::string &fault)
{
    // Whatever links lead to the file, there is one lock.
    std::error_code error;
    const std::string path = std::filesystem::weakly_canonical(name, error).string();
    const std::string lockPath = path + ".lock";
    FileDescriptor lock(
        ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    if (!lock) {
        fault = "cannot make " + lockPath + ": " + std::strerror(errno);
        return nullptr;
    }
    if (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        fault = "another service uses " + path;
        return nullptr;
    }
    return std::unique_ptr<SqliteEngine>(new SqliteEngine(path, tables, std::move(lock)));
}

SqliteEngine::SqliteEngine(const std::string &path, const std::vector<TableSchema> &tables,
                           FileDescriptor lock)
    : m_path(path), m_tables(tables), m_lock(std::move(lock)), m_writer(path, tables)
{
}

void SqliteEngine::change(Change change, std::function<void(Outcome)> done)
{
    m_writer.add(std::move(change), std::move(done));
}

Parsed<std::string> SqliteEngine::select(const Selection &selection)
{
    auto reader = takeReader();
    if (!reader)
        return Outcome{Status::NotNow, "the database cannot be read, try again later"};
    return selectWith(std::move(reader), selection);
}

std::optional<std::string> SqliteEngine::selectAtOnce(const Selection &selection)
{
    auto reader =
        selection.clause.condition.isOneKey() && !selection.page ? takeIdleReader() : nullptr;
    if (!reader)
        return std::nullopt;
    reader->setWaiting(false);
    auto result = selectWith(std::move(reader), selection);
    auto *const reply = std::get_if<std::string>(&result);
    return reply ? std::optional(std::move(*reply)) : std::nullopt;
}

Parsed<std::string> SqliteEngine::selectWith(std::unique_ptr<SqliteConnection> reader,
                                             const Selection &selection)
{
    const TableSchema &table = *selection.table;
    reader->restrictTo(&table);
    const SqlText sql = SqlText::select(selection);
    JsonRows rows(table);
    int code = SQLITE_DONE;
    {
        SqliteStatement statement = reader->prepare(sql);
        code = selection.page ? readPage(statement, table, *selection.page, rows)
                              : readAll(statement, table, rows);
    }
    auto result = resultOf(code, rows, *reader);
    if (code == SQLITE_DONE || !reader->conditionFault(code).empty())
        putBack(std::move(reader));
    return result;
}

bool SqliteEngine::isHealthy()
{
    auto reader = takeReader();
    if (!reader)
        return false;
    reader->restrictTo(nullptr);
    for (const TableSchema &table : m_tables) {
        const std::string sql = "SELECT count(*) FROM (SELECT 1 FROM " + table.name + " LIMIT 1)";
        if (reader->number(sql.c_str()) < 0)
            return false;
    }
    putBack(std::move(reader));
    return true;
}

std::unique_ptr<SqliteConnection> SqliteEngine::takeIdleReader()
{
    const std::lock_guard lock(m_mutex);
    if (m_readers.empty())
        return nullptr;
    auto reader = std::move(m_readers.back());
    m_readers.pop_back();
    return reader;
}

std::unique_ptr<SqliteConnection> SqliteEngine::takeReader()
{
    if (auto reader = takeIdleReader()) {
        reader->setWaiting(true);
        return reader;
    }
    auto reader = SqliteDatabase::openReader(m_path);
    if (!reader)
        m_writer.retryOpening();
    return reader;
}

void SqliteEngine::putBack(std::unique_ptr<SqliteConnection> reader)
{
    const std::lock_guard lock(m_mutex);
    m_readers.push_back(std::move(reader));
}
