#pragma once

#include "Command.h"
#include "CommandResult.h"
#include "JobList.h"

#include <QCoroFuture>
#include <QCoroTask>
#include <QFuture>
#include <QPointer>

#include <vector>

class CommandRun;

/// Runs commands for one owner, mostly a page that has it as a member. Interface thread only.
///
/// The child has no terminal: standard input and output are /dev/null, standard error is the
/// application's own, it leads a session and a process group of its own, and it dies with the
/// application. A run that did not succeed leaves one line in the log.
///
///     const CommandResult result = co_await m_runner.run(command, description);
class CommandRunner
{
public:
    /// The list must outlive the runner; it keeps what is left of a run whose owner is gone.
    explicit CommandRunner(JobList &jobs);
    /// Ends what still runs, without waiting for it. Those who wait get `OwnerGone`, queued, when
    /// the owner is no longer there: see PageAction.h for the check that a page then makes.
    ~CommandRunner();
    CommandRunner(const CommandRunner &) = delete;
    CommandRunner &operator=(const CommandRunner &) = delete;

    /// Starts a run and lists it as a job. The future always ends with one result, always through
    /// the event loop: never inside this call. Do not cancel the future: the list of jobs stops the
    /// run (TERM to the whole process group, after three seconds KILL). Several runs at once do not
    /// disturb each other.
    QFuture<CommandResult> run(const Command &command, const JobDescription &description);

private:
    JobList *m_jobs;
    std::vector<QPointer<CommandRun>> m_runs;
};
