#pragma once

#include "Job.h"

#include <QElapsedTimer>
#include <QObject>

#include <functional>
#include <vector>

/// One entry of the list of running jobs.
struct RunningJob {
    JobId id;
    JobDescription description;
    QElapsedTimer started;
    std::function<void()> stop; ///< Empty for a job that cannot be stopped.
    bool stopRequested = false; ///< Somebody asked this list to stop it.
};

/// What runs now: child processes as well as work on threads. The application owns the one list
/// and hands it to its pages; it outlives them. Interface thread only.
///
/// Quitting while something runs: the pages are destroyed, which ends their runs, and the program
/// quits on allEnded().
class JobList : public QObject
{
    Q_OBJECT

public:
    explicit JobList(QObject *parent = nullptr);

    /// Lists a job until the handle ends it. `stop` asks the job to end and returns at once; it may
    /// be called more than once. Without it the job runs to its end.
    Job begin(const JobDescription &description, std::function<void()> stop = {});

    const std::vector<RunningJob> &running() const { return m_running; }
    bool isEmpty() const { return m_running.empty(); }
    /// None when that job has ended meanwhile. Valid until the list changes.
    const RunningJob *find(JobId id) const;

    void stop(JobId id); ///< Nothing happens when it has ended or cannot be stopped.
    void stopAll();

Q_SIGNALS:
    void jobStarted(JobId id);
    void jobEnded(const RunningJob &job, JobOutcome outcome); ///< It is off the list already.
    void changed(); ///< After each of the two.
    /// The list became empty and stayed so for one turn of the event loop: a coroutine whose
    /// command has just ended had its chance to begin the next job.
    void allEnded();

private:
    friend class Job;
    void end(JobId id, JobOutcome outcome);
    void tellIfAllEnded();

    std::vector<RunningJob> m_running;
    JobId m_lastId = 0;
};
