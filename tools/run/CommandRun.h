#pragma once

#include "Command.h"
#include "CommandResult.h"
#include "JobList.h"
#include "ProcessGroup.h"

#include <QDeadlineTimer>
#include <QFuture>
#include <QObject>
#include <QProcess>
#include <QPromise>
#include <QTimer>

/// One run of one command, from start to the last member of its process group. It belongs to the
/// list of jobs, not to the page, because ending a run takes longer than closing a page.
class CommandRun : public QObject
{
    Q_OBJECT

public:
    CommandRun(const Command &command, const JobDescription &description, JobList *jobs);
    ~CommandRun() override;

    QFuture<CommandResult> start();
    bool isSettled() const { return m_settled; }
    void stop(); ///< Ends the run; the result is `Cancelled` once it has ended.
    void disown(); ///< Gives the result `OwnerGone` at once and ends the run.

private:
    void onStarted();
    void onError(QProcess::ProcessError error);
    void onFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void end();
    void terminate();
    void watchEnding();
    void settle(const CommandResult &result);
    void conclude(const CommandResult &result);
    void leave();

    const Command m_command;
    const QString m_program;
    QProcess m_process;
    QPromise<CommandResult> m_promise;
    Job m_job;
    JobOutcome m_outcome = JobOutcome::Failed;
    ProcessGroup m_group; ///< None until the program runs.
    bool m_settled = false; ///< The result has been given.
    bool m_ending = false; ///< stop() or disown() was called.
    QTimer m_watch; ///< Runs from TERM until no member of the group is left.
    QDeadlineTimer m_untilKill; ///< Set when TERM is sent.
};
