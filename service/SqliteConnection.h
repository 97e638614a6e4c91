#pragma once

#include "SqlText.h"

#include <chrono>
#include <memory>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement with its values. A short one is kept by the connection for the next time.
class SqliteStatement
{
public:
    /// `code` is that of preparing it.
    SqliteStatement(int code, sqlite3_stmt *statement, bool isKept,
                    std::span<const Value *const> values);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement &) = delete;
    SqliteStatement &operator=(const SqliteStatement &) = delete;

    /// SQLITE_ROW, SQLITE_DONE or an error, that of preparing it too. After SQLITE_DONE it begins
    /// anew.
    int step();
    sqlite3_stmt *get() const { return m_statement; }

private:
    const int m_code;
    sqlite3_stmt *const m_statement; ///< Null if it could not be prepared.
    const bool m_isKept;
};

/// A connection to a database file that trusts neither the file nor the statements: what it
/// prepares may read, or read and write, the one table that it is restricted to, and a statement
/// ends after a number of steps. One thread at a time.
class SqliteConnection
{
public:
    enum class Access { Read, ReadAndWrite };

    /// Null, and a line in the log, if the file cannot be opened. With ReadAndWrite it is created.
    static std::unique_ptr<SqliteConnection> open(const std::string &path, Access access);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection &) = delete;
    SqliteConnection &operator=(const SqliteConnection &) = delete;

    /// The statements that follow may use this table alone; null takes the restriction away, for
    /// statements that hold nothing of a client's.
    void restrictTo(const TableSchema *table) { m_table = table; }
    void setWaiting(bool waits); ///< Whether statements wait for locks of others; at first they do.
    SqliteStatement prepare(const SqlText &sql);

    int run(const char *sql); ///< Statements without values.
    std::int64_t number(const char *sql); ///< The first value of the first row, -1 on an error.
    bool isInTransaction() const;
    std::int64_t changedRows() const; ///< By the last insert, update or delete.
    std::string message() const; ///< Of the last error.
    /// Why the condition is at fault for this code, and not the database; empty if it is not.
    std::string_view conditionFault(int code) const;

private:
    SqliteConnection(sqlite3 *database, std::int64_t maxSteps);
    static int authorize(void *self, int action, const char *first, const char *second,
                         const char *database, const char *trigger);
    static int countSteps(void *self);
    void configure();
    void forgetStatements(); ///< None may be in use.

    sqlite3 *m_database;
    const std::int64_t m_maxSteps;
    std::int64_t m_steps = 0; ///< Of the statement that runs.
    const TableSchema *m_table = nullptr;
    std::unordered_map<std::string, sqlite3_stmt *> m_statements; ///< By their text.
};
