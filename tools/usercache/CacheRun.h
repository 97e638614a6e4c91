#pragma once

#include "CacheCleaner.h"
#include "Job.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>

/// One check or clean on a thread of its own. It deletes itself when it has ended.
///
/// The list of jobs owns it, not the page: a page that is destroyed meanwhile does not wait until a
/// folder is deleted, but the program does, because the run stays listed until its thread has
/// ended. A thread that a file system holds, because a server does not answer, cannot be ended:
/// some time after the stop request it is left behind, and whatever it reports later is dropped.
/// Made and used on the interface thread.
class CacheRun : public QObject
{
    Q_OBJECT

public:
    /// The work, on the run's thread. It may outlive the run, the page and the list, so it uses
    /// only what it owns and what it is given.
    using Task = std::function<void(const CacheCleaner::Report &, const std::stop_token &)>;

    /// From the stop request on.
    static constexpr std::chrono::seconds leaveBehindTimeout{3};

    /// Begins when the previous run, if there is one, has ended.
    CacheRun(Task task, JobList &jobs, const JobDescription &description, const CacheRun *previous);
    /// Stops the run, and waits for its thread as long as for any other stop.
    ~CacheRun() override;

    /// Ends the run after what it is just doing; returns at once.
    void stop() { m_stop.request_stop(); }

Q_SIGNALS:
    void updated(const CacheUpdate &update); ///< On the interface thread, in the cleaner's order.
    void ended(); ///< After its last update.

private:
    class Mailbox;

    void begin();
    void finish();
    bool part(std::chrono::milliseconds timeout);
    void giveUp();
    void fail(CacheTrouble trouble, JobOutcome outcome);
    void end(JobOutcome outcome);

    Task m_task;
    std::shared_ptr<Mailbox> m_mailbox;
    std::thread m_worker;
    bool m_hasEnded = false;
    std::stop_source m_stop;
    Job m_job;
    std::stop_callback<std::function<void()>> m_onStop;
};
