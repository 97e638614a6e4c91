#include "JobList.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// What the handles of one job share.
struct Job::Listed {
    QPointer<JobList> list;
    JobId id;
    std::stop_source stop;

    Listed(JobList &jobs, JobId number, const std::stop_source &source)
        : list(&jobs), id(number), stop(source)
    {
    }
    Listed(const Listed &) = delete;
    Listed &operator=(const Listed &) = delete;
    ~Listed() { end(stop.stop_requested() ? JobOutcome::Stopped : JobOutcome::Failed); }

    void end(JobOutcome outcome) const
    {
        if (list)
            list->end(id, outcome);
    }
};

std::stop_token Job::stopToken() const
{
    return m_listed ? m_listed->stop.get_token() : std::stop_token();
}

void Job::update(const std::function<void(RunningJob &)> &change)
{
    JobList *list = m_listed ? m_listed->list.data() : nullptr;
    if (!list)
        return;
    const auto job = std::ranges::find(list->m_running, m_listed->id, &RunningJob::id);
    if (job == list->m_running.end())
        return;
    change(*job);
    Q_EMIT list->progressed(m_listed->id);
}

void Job::setProgress(quint64 done, quint64 total)
{
    update([=](RunningJob &job) { job.progress.set(done, total, job.started.elapsed()); });
}

void Job::setItems(quint64 items, quint64 bytes)
{
    update([=](RunningJob &job) { job.progress.setItems(items, bytes); });
}

void Job::end(JobOutcome outcome)
{
    if (m_listed)
        m_listed->end(outcome);
}

QString elapsedText(qint64 milliseconds)
{
    const qint64 seconds = std::max<qint64>(milliseconds, 0) / 1000;
    const auto padded = [](qint64 number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); };
    if (seconds < 3600)
        return u"%1:%2"_s.arg(QString::number(seconds / 60), padded(seconds % 60));
    return u"%1:%2:%3"_s.arg(QString::number(seconds / 3600), padded(seconds / 60 % 60),
                             padded(seconds % 60));
}

Job JobList::begin(const JobDescription &description, const std::stop_source &stop)
{
    const JobId id = ++m_lastId;
    m_running.push_back({id, description, {}, stop, {}});
    m_running.back().started.start();
    Job job;
    job.m_listed = std::make_shared<Job::Listed>(*this, id, stop);
    Q_EMIT changed();
    return job;
}

const RunningJob *JobList::find(JobId id) const
{
    const auto job = std::ranges::find(m_running, id, &RunningJob::id);
    return job == m_running.end() ? nullptr : &*job;
}

void JobList::stop(JobId id)
{
    if (const RunningJob *job = find(id)) {
        std::stop_source stop = job->stop; // a copy: what reacts to it may end the job
        stop.request_stop();
    }
}

void JobList::stopAll()
{
    const std::vector<RunningJob> running = m_running; // each may change the list
    for (const RunningJob &job : running)
        stop(job.id);
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
    if (isEmpty())
        Q_EMIT allEnded();
}
