#include "SqliteWriter.h"

#include "Log.h"
#include "SqliteDatabase.h"

#include <sqlite3.h>

#include <algorithm>

namespace
{

constexpr std::size_t maxWaiting = 1024;
constexpr std::size_t maxTogether = 256;

Outcome notNow()
{
    return {Status::NotNow, "the database cannot be written, try again later"};
}

} // namespace

SqliteWriter::SqliteWriter(std::string path, const std::vector<TableSchema> &tables)
    : m_path(std::move(path)), m_tables(tables),
      m_database(SqliteDatabase::openWriter(m_path, m_tables)), m_thread(&SqliteWriter::run, this)
{
}

SqliteWriter::~SqliteWriter()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_hasWork.notify_one();
    m_thread.join();
}

void SqliteWriter::add(Change change, Done done)
{
    std::unique_lock lock(m_mutex);
    if (m_waiting.size() >= maxWaiting) {
        lock.unlock();
        return done({Status::NotNow, "too many changes wait, try again later"});
    }
    m_waiting.push_back({std::move(change), std::move(done)});
    lock.unlock();
    m_hasWork.notify_one();
}

void SqliteWriter::retryOpening()
{
    {
        const std::lock_guard lock(m_mutex);
        m_mustOpen = true;
    }
    m_hasWork.notify_one();
}

void SqliteWriter::run()
{
    bool goesOn = true;
    while (goesOn) {
        std::vector<Job> jobs = waitForJobs();
        const bool isOpen = openDatabase();
        goesOn = !jobs.empty() || [this] {
            const std::lock_guard lock(m_mutex);
            return !m_isEnding;
        }();
        if (isOpen)
            makeAll(jobs);
        for (Job &job : jobs)
            job.done(job.outcome.value_or(notNow()));
    }
    m_database.reset();
}

/// Also returns, without jobs, when the database is to be opened or the thread is to end.
std::vector<SqliteWriter::Job> SqliteWriter::waitForJobs()
{
    std::unique_lock lock(m_mutex);
    m_hasWork.wait(lock, [this] { return !m_waiting.empty() || m_mustOpen || m_isEnding; });
    m_mustOpen = false;
    const auto end = m_waiting.begin() + std::ptrdiff_t(std::min(m_waiting.size(), maxTogether));
    std::vector<Job> jobs(std::move_iterator(m_waiting.begin()), std::move_iterator(end));
    m_waiting.erase(m_waiting.begin(), end);
    return jobs;
}

bool SqliteWriter::openDatabase()
{
    if (!m_database)
        m_database = SqliteDatabase::openWriter(m_path, m_tables);
    return m_database != nullptr;
}

/// Each job without an outcome afterwards has failed with the database.
void SqliteWriter::makeAll(std::vector<Job> &jobs)
{
    while (!jobs.empty() && !makeTogether(jobs)) {
        // A change that took too many steps took the others with it: they are made without it.
        const auto refused = std::ranges::find_if(jobs, [](const Job &job) {
            return job.outcome && job.outcome->status == Status::ConditionRefused;
        });
        if (refused == jobs.end())
            return;
        refused->done(*refused->outcome);
        jobs.erase(refused);
    }
}

/// True if all is committed. Otherwise nothing is, and of the outcomes only that of a change which
/// cannot be made at all is left.
bool SqliteWriter::makeTogether(std::vector<Job> &jobs)
{
    const auto forget = [this, &jobs] {
        logLine("database: nothing is written: " + m_database->message());
        m_database->run("ROLLBACK");
        for (Job &job : jobs)
            job.outcome.reset();
        return false;
    };
    m_database->restrictTo(nullptr);
    if (m_database->run("BEGIN IMMEDIATE") != SQLITE_OK)
        return forget();
    for (Job &job : jobs) {
        job.outcome = make(job.change);
        if (!job.outcome || !m_database->isInTransaction()) {
            const auto outcome = job.outcome;
            forget();
            job.outcome = outcome;
            return false;
        }
    }
    m_database->restrictTo(nullptr);
    return m_database->run("COMMIT") == SQLITE_OK || forget();
}

/// None if the database failed.
std::optional<Outcome> SqliteWriter::make(const Change &change)
{
    const TableSchema &table = *change.table;
    if (change.operation == Operation::Insert)
        return insert(change);
    const Value key = change.record.key;
    const bool isUpdate = change.operation == Operation::Update;
    const int code = runToEnd(table,
                              isUpdate ? SqlText::update(table, change.record, key)
                                       : SqlText::remove(table, change.condition));
    if (const auto fault = m_database->conditionFault(code); !fault.empty())
        return Outcome{Status::ConditionRefused, fault};
    if (code != SQLITE_DONE)
        return std::nullopt;
    if (m_database->changedRows() == 0 && (isUpdate || change.condition.isOneKey()))
        return Outcome{Status::NoSuchRecord, "no such record"};
    return Outcome{Status::Done, "done"};
}

std::optional<Outcome> SqliteWriter::insert(const Change &change)
{
    if (isNameTaken(change))
        return Outcome{Status::ExistsAlready, "a record of this name exists already"};
    if (runToEnd(*change.table, SqlText::insert(*change.table, change.record)) != SQLITE_DONE)
        return std::nullopt;
    return Outcome{Status::Done, "done"};
}

bool SqliteWriter::isNameTaken(const Change &change)
{
    const TableSchema &table = *change.table;
    if (table.nameColumn < 0)
        return false;
    const std::string &column = table.columns[std::size_t(table.nameColumn)].name;
    const SqlText sql{"SELECT 1 FROM " + table.name + " WHERE " + column + "=?",
                      {&change.record.values[std::size_t(table.nameColumn) - 1]}};
    return runToEnd(table, sql) == SQLITE_ROW;
}

int SqliteWriter::runToEnd(const TableSchema &table, const SqlText &sql)
{
    m_database->restrictTo(&table);
    return m_database->prepare(sql).step();
}
