#include "CommandRun.h"

#include "ChildSetup.h"
#include "ProgramPath.h"

#include <QDebug>
#include <QFile>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr auto untilKill = 3s;
constexpr auto betweenLooks = 50ms;

static std::optional<QByteArray> encoded(const std::optional<QString> &path)
{
    return path ? std::optional(QFile::encodeName(*path)) : std::nullopt;
}

// The system would cut an argument there and the program would work on another file.
static bool holdsNull(const Command &command)
{
    const auto hasNull = [](const QString &text) { return text.contains(QChar::Null); };
    return hasNull(command.launchPath) || hasNull(command.workingDirectory.value_or(QString()))
        || std::ranges::any_of(command.arguments, hasNull);
}

static JobOutcome outcomeOf(const CommandResult &result)
{
    using End = CommandResult::End;
    if (result.succeeded())
        return JobOutcome::Succeeded;
    const bool stopped = result.end() == End::Cancelled || result.end() == End::OwnerGone;
    return stopped ? JobOutcome::Stopped : JobOutcome::Failed;
}

CommandRun::CommandRun(const Command &command, const JobDescription &description, JobList *jobs)
    : QObject(jobs), m_command(command), m_program(programPath(command.launchPath))
{
    m_job = jobs->begin(description, [run = QPointer(this)] {
        if (run)
            run->stop();
    });
    // A missing working directory must be a failed run, so QProcess is not told about it: it would
    // report a program that could not start.
    m_process.setChildProcessModifier(childSetup(encoded(command.workingDirectory)));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::started, this, &CommandRun::onStarted);
    connect(&m_process, &QProcess::finished, this, &CommandRun::onFinished);
    // Queued, because some errors are reported inside start().
    connect(&m_process, &QProcess::errorOccurred, this, &CommandRun::onError, Qt::QueuedConnection);
    m_watch.setInterval(betweenLooks);
    connect(&m_watch, &QTimer::timeout, this, &CommandRun::watchEnding);
}

CommandRun::~CommandRun()
{
    m_process.disconnect(this); // its destructor reports the end of a process that still runs
    if (m_process.state() != QProcess::NotRunning || m_watch.isActive())
        m_group.signal(SIGKILL);
    // A promise that breaks would resume its coroutine without a result to take.
    settle(CommandResult::ownerGone());
}

QFuture<CommandResult> CommandRun::start()
{
    m_promise.start();
    if (holdsNull(m_command)) {
        const auto refused = CommandResult::couldNotStart(u"an argument holds a null character"_s);
        QMetaObject::invokeMethod(
            this, [this, refused] { conclude(refused); }, Qt::QueuedConnection);
    } else {
        m_process.start(m_program, m_command.arguments);
    }
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
    settle(CommandResult::ownerGone());
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
        conclude(CommandResult::couldNotStart(m_process.errorString()));
}

void CommandRun::onFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    if (m_ending)
        watchEnding();
    else if (exitStatus == QProcess::NormalExit)
        conclude(CommandResult::exited(exitCode));
    else
        conclude(CommandResult::killed(exitCode)); // QProcess puts the signal's number there
}

void CommandRun::terminate()
{
    m_group.signal(SIGTERM);
    m_untilKill.setRemainingTime(untilKill);
    m_watch.start();
}

// The group can outlive the process that leads it.
void CommandRun::watchEnding()
{
    const bool leaderEnded = m_process.state() == QProcess::NotRunning;
    const bool timeIsUp = m_untilKill.hasExpired();
    if (timeIsUp)
        m_group.signal(SIGKILL);
    if (leaderEnded && (timeIsUp || !m_group.hasMembers()))
        conclude(CommandResult::cancelled());
}

void CommandRun::settle(const CommandResult &result)
{
    if (std::exchange(m_settled, true))
        return;
    m_outcome = outcomeOf(result);
    if (!result.succeeded())
        qWarning().noquote() << m_program.simplified() + u": "_s + result.description();
    m_promise.addResult(result);
    m_promise.finish();
}

void CommandRun::conclude(const CommandResult &result)
{
    m_watch.stop();
    settle(result);
    // Behind the event that resumes the waiting coroutine, so that the list of jobs does not look
    // empty before that coroutine could begin its next job.
    QMetaObject::invokeMethod(this, &CommandRun::leave, Qt::QueuedConnection);
}

void CommandRun::leave()
{
    m_job.end(m_outcome);
    deleteLater();
}
