#include "CommandRunner.h"

#include "ChildProcess.h"
#include "ProgressPipe.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QFile>
#include <QProcess>
#include <QPromise>
#include <QTimer>

#include <sysexits.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto killTimeout = 3s;
constexpr auto pollInterval = 50ms;

std::optional<QByteArray> encoded(const std::optional<QString> &path)
{
    return path ? std::optional(QFile::encodeName(*path)) : std::nullopt;
}

// The system would cut an argument there and the program would work on another file.
bool holdsNull(const Command &command)
{
    const auto hasNull = [](const QString &text) { return text.contains(QChar::Null); };
    return hasNull(command.launchPath) || hasNull(command.workingDirectory.value_or(QString()))
        || std::ranges::any_of(command.arguments, hasNull);
}

// One run of one command, from start to the last member of its process group. Deletes itself.
class CommandRun : public QObject
{
public:
    CommandRun(const Command &command, const Job &job, QObject &keeper);
    ~CommandRun() override;

    QFuture<CommandResult> start();
    void disown(); ///< Gives the result `OwnerGone` at once and ends the run.

private:
    void offerProgress();
    void onStarted();
    void onError(QProcess::ProcessError error);
    void onFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void stop();
    void end();
    void terminate();
    void watchEnding();
    void settle(const CommandResult &result);
    void conclude(const CommandResult &result);

    const Command m_command;
    const QString m_program = programPath(m_command.launchPath);
    Job m_job;
    std::optional<ProgressPipe> m_progress; ///< If the program reports it.
    QProcess m_process{this};
    QPromise<CommandResult> m_promise;
    ProcessGroup m_group; ///< None until the program runs.
    bool m_settled = false; ///< The result has been given.
    bool m_ending = false; ///< A stop was requested, or the owner is gone.
    QTimer m_poll; ///< Runs from TERM until no member of the group is left.
    QDeadlineTimer m_killTime; ///< Set when TERM is sent.
    std::stop_callback<std::function<void()>> m_onStop; // last: it may be called at once
};

CommandRun::CommandRun(const Command &command, const Job &job, QObject &keeper)
    : QObject(&keeper), m_command(command), m_job(job),
      m_onStop(job.stopToken(), [this] { stop(); })
{
    offerProgress();
    // A missing working directory must be a failed run, so QProcess does not set it: it would
    // report a program that could not start.
    m_process.setChildProcessModifier(
        childSetup(encoded(command.workingDirectory), m_progress ? m_progress->writeEnd() : -1));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::started, this, &CommandRun::onStarted);
    connect(&m_process, &QProcess::finished, this, &CommandRun::onFinished);
    // Queued, because some errors are reported inside start().
    connect(&m_process, &QProcess::errorOccurred, this, &CommandRun::onError, Qt::QueuedConnection);
    connect(&m_poll, &QTimer::timeout, this, &CommandRun::watchEnding);
}

CommandRun::~CommandRun()
{
    m_process.disconnect(this); // its destructor reports the end of a process that still runs
    if (m_process.state() != QProcess::NotRunning || m_poll.isActive())
        m_group.signal(SIGKILL);
    // A promise that breaks would resume its coroutine without a result to take.
    settle({CommandResult::End::OwnerGone});
}

// The variable goes to the programs that expect it, and to no other, even if we were started with
// it ourselves.
void CommandRun::offerProgress()
{
    constexpr auto variable = "TOOLVANE_PROGRESS_FD";
    const bool isOffered = reportsProgress(m_program);
    if (!isOffered && !qEnvironmentVariableIsSet(variable))
        return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QString::fromLatin1(variable));
    if (isOffered) {
        m_progress.emplace([this](quint64 done, quint64 total) { m_job.setProgress(done, total); });
        environment.insert(QString::fromLatin1(variable), QString::number(m_progress->writeEnd()));
    }
    m_process.setProcessEnvironment(environment);
}

QFuture<CommandResult> CommandRun::start()
{
    m_promise.start();
    if (holdsNull(m_command))
        QMetaObject::invokeMethod(
            this,
            [this] {
                conclude({CommandResult::End::CouldNotStart, 0,
                          u"an argument holds a null character"_s});
            },
            Qt::QueuedConnection);
    else
        m_process.start(m_program, m_command.arguments);
    if (m_progress)
        m_progress->closeWriteEnd(); // the child has it
    return m_promise.future();
}

void CommandRun::stop()
{
    if (!m_settled)
        end();
}

void CommandRun::disown()
{
    if (m_settled)
        return;
    settle({CommandResult::End::OwnerGone});
    end();
}

void CommandRun::end()
{
    if (std::exchange(m_ending, true))
        return;
    if (m_process.state() == QProcess::Running) // else onStarted() does it: no group exists yet
        terminate();
}

void CommandRun::onStarted()
{
    m_group = ProcessGroup(static_cast<pid_t>(m_process.processId()));
    if (m_ending)
        terminate();
}

void CommandRun::onError(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart) // a crash is reported by finished() as well
        conclude({CommandResult::End::CouldNotStart, 0, m_process.errorString()});
}

void CommandRun::onFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    const bool hasExited = exitStatus == QProcess::NormalExit;
    if (m_ending)
        watchEnding();
    else if (hasExited && exitCode == EX_UNAVAILABLE && m_program != m_command.launchPath)
        // One of ours, in whose place the system's program would not have started either.
        conclude({CommandResult::End::CouldNotStart, 0, u"a program is not installed"_s});
    else // a killed process has the signal's number as its exit code
        conclude({hasExited ? CommandResult::End::Exited : CommandResult::End::Killed, exitCode});
}

void CommandRun::terminate()
{
    m_group.signal(SIGTERM);
    m_killTime.setRemainingTime(killTimeout);
    m_poll.start(pollInterval);
}

// The group can outlive the process that leads it.
void CommandRun::watchEnding()
{
    const bool leaderEnded = m_process.state() == QProcess::NotRunning;
    const bool timeIsUp = m_killTime.hasExpired();
    if (timeIsUp)
        m_group.signal(SIGKILL);
    if (leaderEnded && (timeIsUp || !m_group.hasMembers()))
        conclude({CommandResult::End::Cancelled});
}

void CommandRun::settle(const CommandResult &result)
{
    if (std::exchange(m_settled, true))
        return;
    if (!result.succeeded())
        qWarning().noquote() << m_program.simplified() + u": "_s + result.description();
    m_promise.addResult(result);
    m_promise.finish();
}

void CommandRun::conclude(const CommandResult &result)
{
    m_poll.stop();
    if (m_settled) // the page that would say so is gone
        m_job.end(JobOutcome::Stopped);
    settle(result);
    deleteLater();
}

} // namespace

CommandRunner::CommandRunner(QObject &keeper) : m_keeper(keeper)
{
}

QFuture<CommandResult> CommandRunner::run(const Command &command, const Job &job)
{
    auto *run = new CommandRun(command, job, m_keeper); // owned by the keeper
    connect(this, &QObject::destroyed, run, &CommandRun::disown);
    return run->start();
}
