#pragma once

#include "CacheCleaner.h"
#include "Job.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <thread>

/// One check or clean on a thread of its own. It deletes itself when its thread has ended.
///
/// The list of jobs owns it, not the page: a page that is destroyed meanwhile does not wait until a
/// folder is deleted, but the program does, because the run stays listed until its thread has
/// ended. Made and used on the interface thread.
class CacheRun : public QObject
{
    Q_OBJECT

public:
    enum class Work { Check, Clean };

    struct Request {
        Work work;
        QUrl bookmarkURL; ///< As for CacheCleaner.
        CacheSelection ticked;
    };

    /// Starts at once, but works only while it holds `turn`: of the runs that share one, each
    /// begins when the one before has made its last update.
    CacheRun(const Request &request, JobList &jobs, const JobDescription &description,
             std::shared_ptr<std::mutex> turn);

    /// Ends the run after what it is just doing; returns at once.
    void stop() { m_worker.request_stop(); }

Q_SIGNALS:
    void updated(const CacheUpdate &update); ///< On the interface thread, in the cleaner's order.

private:
    void work(const Request &request, const std::stop_token &stop);
    void end();

    Job m_job;
    std::jthread m_worker; // last: its destructor waits for the thread, which uses the rest
};
