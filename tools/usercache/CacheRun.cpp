#include "CacheRun.h"

#include "JobList.h"

#include <QTimer>

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <utility>

/// What the thread and the run share. It outlives both, so that a thread that was left behind
/// touches nothing else.
class CacheRun::Mailbox
{
public:
    explicit Mailbox(CacheRun &run) : m_run(&run) { }

    void post(const CacheUpdate &update)
    {
        const std::lock_guard lock(m_mutex);
        if (CacheRun *const run = m_run)
            QMetaObject::invokeMethod(
                run, [run, update] { Q_EMIT run->updated(update); }, Qt::QueuedConnection);
    }

    /// The thread's last act.
    void finish()
    {
        const std::lock_guard lock(m_mutex);
        m_isFinished = true;
        if (m_run)
            QMetaObject::invokeMethod(m_run, &CacheRun::finish, Qt::QueuedConnection);
        m_finished.notify_all();
    }

    /// From now on the run gets nothing more. False if the thread does not finish in time.
    bool close(std::chrono::milliseconds timeout)
    {
        std::unique_lock lock(m_mutex);
        m_run = nullptr;
        return m_finished.wait_for(lock, timeout, [this] { return m_isFinished; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_finished;
    CacheRun *m_run;
    bool m_isFinished = false;
};

CacheRun::CacheRun(Task task, JobList &jobs, const JobDescription &description,
                   const CacheRun *previous)
    : QObject(&jobs), m_task(std::move(task)), m_mailbox(std::make_shared<Mailbox>(*this)),
      m_job(jobs.begin(description, m_stop)), m_onStop(m_stop.get_token(), [this] {
          // Whoever stops the job may be on any thread.
          QMetaObject::invokeMethod(
              this, [this] { QTimer::singleShot(leaveBehindTimeout, this, &CacheRun::giveUp); },
              Qt::QueuedConnection);
      })
{
    if (previous && !previous->m_hasEnded)
        connect(previous, &CacheRun::ended, this, &CacheRun::begin);
    else
        begin();
}

CacheRun::~CacheRun()
{
    m_stop.request_stop();
    part(leaveBehindTimeout);
}

void CacheRun::begin()
{
    if (m_hasEnded) // stopped while it waited for the one before
        return;
    try {
        m_worker =
            std::thread([task = std::move(m_task), mailbox = m_mailbox, stop = m_stop.get_token()] {
                task([&mailbox](const CacheUpdate &update) { mailbox->post(update); }, stop);
                mailbox->finish();
            });
    } catch (const std::system_error &) {
        // Later, because nobody listens to a run that is being made.
        QMetaObject::invokeMethod(
            this, [this] { fail(CacheTrouble::NoThread, JobOutcome::Failed); },
            Qt::QueuedConnection);
    }
}

void CacheRun::finish()
{
    part({});
    end(m_stop.stop_requested() ? JobOutcome::Stopped : JobOutcome::Succeeded);
}

// True if there was a thread and it has ended; otherwise it is left behind.
bool CacheRun::part(std::chrono::milliseconds timeout)
{
    if (!m_worker.joinable())
        return false;
    const bool isFinished = m_mailbox->close(timeout);
    if (isFinished)
        m_worker.join();
    else
        m_worker.detach();
    return isFinished;
}

void CacheRun::giveUp()
{
    // If the thread has just ended, finish() is on its way, behind the last updates.
    if (!m_hasEnded && !part({}))
        fail(CacheTrouble::NoAnswer, JobOutcome::Stopped);
}

void CacheRun::fail(CacheTrouble trouble, JobOutcome outcome)
{
    Q_EMIT updated(trouble);
    Q_EMIT updated(CleanerIdle{});
    end(outcome);
}

void CacheRun::end(JobOutcome outcome)
{
    if (std::exchange(m_hasEnded, true))
        return;
    Job job = m_job; // the list may go with what follows, and this run with it
    deleteLater();
    Q_EMIT ended();
    job.end(outcome);
}
