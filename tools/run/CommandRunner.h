#pragma once

#include "Command.h"

#include <QCoroFuture>
#include <QCoroTask>
#include <QFuture>
#include <QObject>

/// Runs commands for one owner, mostly a page that has it as a member. Interface thread only.
///
/// The child has no terminal: standard input and output are /dev/null, standard error is the
/// application's own, it leads a session and a process group of its own, and it dies with the
/// application. A run that did not succeed leaves one line in the log.
///
///     const CommandResult result = co_await m_runner.run(command, job);
///
/// The runner's end ends what still runs, without waiting for it. Those who wait get `OwnerGone`,
/// queued, when the owner no longer exists: PageAction.h shows the check that a page then makes.
class CommandRunner : public QObject
{
public:
    /// The keeper, mostly the list of jobs, outlives the runner and owns its runs, because ending a
    /// run takes longer than closing a page. Its end kills what is left.
    explicit CommandRunner(QObject &keeper);

    /// Starts a run that works for the job, and keeps the job listed until the last process of the
    /// run's group is gone. The future always ends with one result, always through the event loop:
    /// never inside this call. Do not cancel the future: the job's stop token stops the run (TERM
    /// to the whole process group, KILL after three seconds). Several runs at once do not disturb
    /// each other.
    QFuture<CommandResult> run(const Command &command, const Job &job = {});

private:
    QObject &m_keeper;
};
