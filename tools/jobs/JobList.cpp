#include "JobList.h"

#include <algorithm>
#include <utility>

JobList::JobList(QObject *parent) : QObject(parent)
{
}

Job JobList::begin(const JobDescription &description, std::function<void()> stop)
{
    QElapsedTimer started = description.begun;
    if (!started.isValid())
        started.start();
    const JobId id = ++m_lastId;
    m_running.push_back({id, description, started, std::move(stop), false});
    Q_EMIT jobStarted(id);
    Q_EMIT changed();
    return Job(this, id);
}

const RunningJob *JobList::find(JobId id) const
{
    const auto job = std::ranges::find(m_running, id, &RunningJob::id);
    return job == m_running.end() ? nullptr : &*job;
}

void JobList::stop(JobId id)
{
    const auto job = std::ranges::find(m_running, id, &RunningJob::id);
    if (job == m_running.end() || !job->stop)
        return;
    job->stopRequested = true;
    // A copy: a stop function may end its job, and with it the entry that holds the function.
    const auto stopJob = job->stop;
    stopJob();
}

void JobList::stopAll()
{
    std::vector<JobId> ids;
    std::ranges::transform(m_running, std::back_inserter(ids), &RunningJob::id);
    for (const JobId id : ids)
        stop(id);
}

void JobList::end(JobId id, JobOutcome outcome)
{
    const auto job = std::ranges::find(m_running, id, &RunningJob::id);
    if (job == m_running.end())
        return;
    const RunningJob ended = std::move(*job);
    m_running.erase(job);
    Q_EMIT jobEnded(ended, outcome);
    Q_EMIT changed();
    QMetaObject::invokeMethod(this, &JobList::tellIfAllEnded, Qt::QueuedConnection);
}

void JobList::tellIfAllEnded()
{
    if (isEmpty())
        Q_EMIT allEnded();
}
