#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

class JobList;

using JobId = quint64;

/// What the user is told about a job.
struct JobDescription {
    QString page; ///< The `objectName` of the page, which is its class name.
    QString title; ///< What is being done, localised: mostly the page's title.
    QString subject = {}; ///< What it is done to, mostly a path. Plain text, shown as it stands.
    QElapsedTimer begun = {}; ///< When the run began of which this job is a later part.
    bool successIsNews = true; ///< False where more of the run follows, or success shows itself.
};

enum class JobOutcome { Succeeded, Failed, Stopped };

/// Keeps one job in the list of running jobs for as long as it lives. Move-only; interface thread
/// only (work on another thread keeps its handle in the coroutine that awaits it).
class [[nodiscard]] Job
{
public:
    Job() = default; ///< No job at all.
    Job(Job &&other) noexcept;
    Job &operator=(Job &&other) noexcept;
    Job(const Job &) = delete;
    Job &operator=(const Job &) = delete;
    /// A job that goes out of scope without a word about its outcome has failed.
    ~Job();

    /// Takes the job off the list. Only the first call counts.
    void end(JobOutcome outcome);

private:
    friend class JobList;
    Job(JobList *list, JobId id);

    QPointer<JobList> m_list;
    JobId m_id = 0;
};
