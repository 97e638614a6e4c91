#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <stop_token>

class JobList;
struct RunningJob;

/// Names a job for as long as its list exists; never given out twice.
using JobId = quint64;

/// What the user sees of a job.
struct JobDescription {
    QString page; ///< The `objectName` of the page, which is its class name.
    QString title; ///< What is being done, localised: mostly the page's title.
    QString subject = {}; ///< What it is done to, mostly a path. Always shown as plain text.
    QString output = {}; ///< Path of what is being made; empty if that has the subject's name.
};

enum class JobOutcome {
    Succeeded,
    Failed,
    Stopped, ///< Ended early because somebody wanted it to.
};

/// A handle of one job in the list of what runs. Copies are handles of the same job: a page hands
/// them to whatever works for the job, and the program does not quit while one of them is left.
/// Interface thread only; a worker thread gets the stop token instead.
class [[nodiscard]] Job
{
public:
    Job() = default; ///< No job: it is in no list, and cannot be stopped.

    /// Set when the job is to end early. The token may be used on any thread.
    std::stop_token stopToken() const;

    /// How far the job is, see JobProgress. Nothing happens once it is off the list.
    void setProgress(quint64 done, quint64 total);
    void setItems(quint64 items, quint64 bytes);

    /// Takes the job off the list. Only the first call counts. A job whose last handle goes without
    /// this call ends as Stopped if a stop was requested, otherwise as Failed.
    void end(JobOutcome outcome);

private:
    friend class JobList;
    struct Listed;
    void update(const std::function<void(RunningJob &)> &change);

    std::shared_ptr<Listed> m_listed;
};

/// A time as people read it: "0:07", from one hour on "1:02:03". Negative counts as 0.
QString elapsedText(qint64 milliseconds);
