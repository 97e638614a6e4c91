#include "TrialRun.h"

#include <QElapsedTimer>

#include <sys/prctl.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>
#include <thread>

using namespace std::chrono_literals;

namespace
{

constexpr int patience = 8000; // milliseconds: the runner waits three seconds between TERM and KILL

/// Reaps children that have ended; true when there are none left.
bool hasNoChildren()
{
    pid_t ended = 0;
    do
        ended = ::waitpid(-1, nullptr, WNOHANG);
    while (ended > 0);
    return ended < 0 && errno == ECHILD;
}

} // namespace

TrialRun::TrialRun(const QStringList &command, const Variables &variables)
{
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    m_process.setProcessEnvironment(environment);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.start(command.first(), command.mid(1));
    if (!m_process.waitForStarted())
        qFatal("cannot start %s", qPrintable(command.first()));
}

TrialRun::~TrialRun()
{
    m_process.kill();
    m_process.waitForFinished(-1);
}

void TrialRun::send(int signal) const
{
    if (m_process.processId() > 0)
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
}

int TrialRun::awaitEnd()
{
    m_process.waitForFinished(-1);
    // Qt keeps the number of the signal there.
    return m_process.exitCode() + (m_process.exitStatus() == QProcess::CrashExit ? 128 : 0);
}

bool TrialRun::isAlone()
{
    QElapsedTimer time;
    time.start();
    while (!hasNoChildren()) {
        if (time.elapsed() > patience)
            return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

QByteArray TrialRun::words()
{
    return m_process.readAllStandardOutput() + m_process.readAllStandardError();
}
