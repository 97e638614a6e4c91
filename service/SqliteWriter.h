#pragma once

#include "SqliteConnection.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// A thread that makes changes, one after the other. What waits when it begins is committed
/// together: waiting for the disk is what a change costs, and it costs the same for a hundred.
class SqliteWriter
{
public:
    using Done = std::function<void(Outcome)>;

    /// Opens the database if it can.
    SqliteWriter(std::string path, const std::vector<TableSchema> &tables);
    ~SqliteWriter(); ///< Makes the changes that wait, then closes the database.

    void add(Change change, Done done); ///< Any thread.
    /// Tries again to open a database that could not be opened.
    void retryOpening();

private:
    struct Job {
        Change change;
        Done done;
        std::optional<Outcome> outcome = {};
    };

    void run();
    bool openDatabase();
    std::vector<Job> waitForJobs();
    void makeAll(std::vector<Job> &jobs);
    bool makeTogether(std::vector<Job> &jobs);
    std::optional<Outcome> make(const Change &change);
    std::optional<Outcome> insert(const Change &change);
    bool isNameTaken(const Change &change);
    int runToEnd(const TableSchema &table, const SqlText &sql);

    const std::string m_path;
    const std::vector<TableSchema> &m_tables;
    std::unique_ptr<SqliteConnection> m_database; ///< Null if it is not open. The thread's.

    std::mutex m_mutex; ///< Over the members that follow.
    std::condition_variable m_hasWork;
    std::vector<Job> m_waiting;
    bool m_mustOpen = false;
    bool m_isEnding = false;

    std::thread m_thread; ///< Last, so that it begins with the rest complete.
};
