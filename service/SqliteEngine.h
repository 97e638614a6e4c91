#pragma once

#include "FileDescriptor.h"
#include "SqliteWriter.h"

/// Keeps the records in an SQLite file. A file that cannot be used (locked, damaged, made by a
/// newer version) is tried again with later requests; nobody has to start the service anew.
class SqliteEngine : public Engine
{
public:
    /// Null if another service uses the file, or if its folder cannot be written; `fault` then says
    /// which.
    static std::unique_ptr<SqliteEngine>
    open(const std::string &path, const std::vector<TableSchema> &tables, std::string &fault);

    void change(Change change, std::function<void(Outcome)> done) override;
    Parsed<std::string> select(const Selection &selection) override;
    std::optional<std::string> selectAtOnce(const Selection &selection) override;
    bool isHealthy() override;

private:
    SqliteEngine(const std::string &path, const std::vector<TableSchema> &tables,
                 FileDescriptor lock);
    Parsed<std::string> selectWith(std::unique_ptr<SqliteConnection> reader,
                                   const Selection &selection);
    std::unique_ptr<SqliteConnection> takeIdleReader(); ///< Null if none is idle.
    std::unique_ptr<SqliteConnection> takeReader();
    void putBack(std::unique_ptr<SqliteConnection> reader);

    const std::string m_path;
    const std::vector<TableSchema> &m_tables;
    const FileDescriptor m_lock; ///< Held as long as the engine exists.
    std::mutex m_mutex;
    std::vector<std::unique_ptr<SqliteConnection>> m_readers; ///< Those that nobody uses.
    SqliteWriter m_writer;
};
