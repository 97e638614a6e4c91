#include "SqliteConnection.h"

#include "Log.h"

#include <sqlite3.h>

namespace
{

/// How long a statement waits for another process that holds the file.
constexpr int busyTimeoutMilliseconds = 3000;
constexpr int stepsPerCall = 10'000;
/// About ten seconds of work; the whole of a table with a million records takes a thirtieth.
constexpr std::int64_t maxReadSteps = 500'000'000;
/// Less, because the other writers wait meanwhile.
constexpr std::int64_t maxWriteSteps = 100'000'000;
constexpr std::size_t maxKeptStatements = 64;
constexpr std::size_t maxKeptLength = 500;

void bind(sqlite3_stmt *statement, int place, const Value &value)
{
    if (const auto *number = std::get_if<std::int64_t>(&value)) {
        sqlite3_bind_int64(statement, place, *number);
    } else {
        const auto &text = std::get<std::string>(value);
        sqlite3_bind_text64(statement, place, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
    }
}

} // namespace

SqliteStatement::SqliteStatement(int code, sqlite3_stmt *statement, bool isKept,
                                 std::span<const Value *const> values)
    : m_code(code), m_statement(statement), m_isKept(isKept)
{
    for (std::size_t i = 0; i < values.size() && m_statement; ++i)
        bind(m_statement, int(i) + 1, *values[i]);
}

SqliteStatement::~SqliteStatement()
{
    if (!m_statement)
        return;
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
    if (!m_isKept)
        sqlite3_finalize(m_statement);
}

int SqliteStatement::step()
{
    return m_statement ? sqlite3_step(m_statement) : m_code;
}

std::unique_ptr<SqliteConnection> SqliteConnection::open(const std::string &path, Access access)
{
    const int flags =
        access == Access::Read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    sqlite3 *database = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    const bool isReader = access == Access::Read;
    std::unique_ptr<SqliteConnection> connection(
        new SqliteConnection(database, isReader ? maxReadSteps : maxWriteSteps));
    if (code != SQLITE_OK) {
        logLine("database: cannot open it: " + connection->message());
        return nullptr;
    }
    connection->configure();
    return connection;
}

SqliteConnection::SqliteConnection(sqlite3 *database, std::int64_t maxSteps)
    : m_database(database), m_maxSteps(maxSteps)
{
}

SqliteConnection::~SqliteConnection()
{
    forgetStatements();
    sqlite3_close(m_database);
}

void SqliteConnection::forgetStatements()
{
    for (const auto &[text, statement] : m_statements)
        sqlite3_finalize(statement);
    m_statements.clear();
}

void SqliteConnection::configure()
{
    setWaiting(true);
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(m_database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_set_authorizer(m_database, &SqliteConnection::authorize, this);
    sqlite3_progress_handler(m_database, stepsPerCall, &SqliteConnection::countSteps, this);
    run("PRAGMA cell_size_check=ON");
}

void SqliteConnection::setWaiting(bool waits)
{
    sqlite3_busy_timeout(m_database, waits ? busyTimeoutMilliseconds : 0);
}

SqliteStatement SqliteConnection::prepare(const SqlText &sql)
{
    m_steps = 0;
    const auto known = m_statements.find(sql.text);
    if (known != m_statements.end())
        return {SQLITE_OK, known->second, true, sql.values};
    const bool isKept = sql.text.size() <= maxKeptLength;
    sqlite3_stmt *statement = nullptr;
    const int code =
        sqlite3_prepare_v3(m_database, sql.text.data(), int(sql.text.size()),
                           isKept ? SQLITE_PREPARE_PERSISTENT : 0, &statement, nullptr);
    if (!isKept || !statement)
        return {code, statement, false, sql.values};
    if (m_statements.size() >= maxKeptStatements)
        forgetStatements();
    m_statements.emplace(sql.text, statement);
    return {code, statement, true, sql.values};
}

int SqliteConnection::run(const char *sql)
{
    m_steps = 0;
    return sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr);
}

std::int64_t SqliteConnection::number(const char *sql)
{
    const SqlText text{sql, {}};
    SqliteStatement statement = prepare(text);
    return statement.step() == SQLITE_ROW ? sqlite3_column_int64(statement.get(), 0) : -1;
}

bool SqliteConnection::isInTransaction() const
{
    return sqlite3_get_autocommit(m_database) == 0;
}

std::int64_t SqliteConnection::changedRows() const
{
    return sqlite3_changes64(m_database);
}

std::string SqliteConnection::message() const
{
    return sqlite3_errmsg(m_database);
}

std::string_view SqliteConnection::conditionFault(int code) const
{
    if (code == SQLITE_INTERRUPT)
        return "the condition takes too long";
    const std::string words = code == SQLITE_ERROR ? message() : "";
    const bool isTooComplex = words.find("stack overflow") != words.npos
        || words.find("Expression tree is too large") != words.npos;
    return isTooComplex ? "the condition is too deeply nested" : "";
}

/// Called while a statement is prepared. A statement that is kept was allowed for its own table.
int SqliteConnection::authorize(void *self, int action, const char *first, const char *,
                                const char *database, const char *)
{
    const TableSchema *const table = static_cast<SqliteConnection *>(self)->m_table;
    if (!table)
        return SQLITE_OK;
    switch (action) {
    case SQLITE_SELECT:
        return SQLITE_OK;
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        return first && table->name == first && database && std::string_view(database) == "main"
            ? SQLITE_OK
            : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

int SqliteConnection::countSteps(void *self)
{
    auto *const connection = static_cast<SqliteConnection *>(self);
    connection->m_steps += stepsPerCall;
    return connection->m_steps > connection->m_maxSteps ? 1 : 0;
}
