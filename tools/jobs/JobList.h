#pragma once

#include "Job.h"
#include "JobProgress.h"

#include <QElapsedTimer>
#include <QObject>

#include <vector>

/// One entry of the list of running jobs.
struct RunningJob {
    JobId id;
    JobDescription description;
    QElapsedTimer started; ///< Running since begin().
    std::stop_source stop; ///< Of all its handles' stop tokens.
    JobProgress progress = {};
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
    using QObject::QObject;

    /// Lists a job until one of its handles ends it, or the last one goes. Work that can be stopped
    /// already has a stop source, which is then the job's.
    Job begin(const JobDescription &description, const std::stop_source &stop = {});

    /// In the order in which they began.
    const std::vector<RunningJob> &running() const { return m_running; }
    bool isEmpty() const { return m_running.empty(); }
    /// Null if that job has ended. Valid until the list changes.
    const RunningJob *find(JobId id) const;

    /// Requests that a job ends and returns at once; the job is listed until it has ended. Nothing
    /// happens if it has ended already.
    void stop(JobId id);
    void stopAll();

Q_SIGNALS:
    void jobEnded(const RunningJob &job, JobOutcome outcome); ///< It is off the list already.
    void changed(); ///< After a job began or ended.
    void progressed(JobId id); ///< A job has said how far it is; it may do so many times a second.
    void allEnded(); ///< After the last job ended, and after changed().

private:
    friend class Job;
    void end(JobId id, JobOutcome outcome);

    std::vector<RunningJob> m_running;
    JobId m_lastId = 0;
};
