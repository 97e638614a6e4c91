#include "TrialRun.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcessEnvironment>

#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr int patience = 8000; // milliseconds: the runner waits three seconds between TERM and KILL

/// Strings as the system calls want them.
class Pointers
{
public:
    explicit Pointers(const QStringList &texts)
    {
        for (const QString &text : texts)
            m_bytes += text.toLocal8Bit();
        for (QByteArray &bytes : m_bytes)
            m_pointers.push_back(bytes.data());
        m_pointers.push_back(nullptr);
    }
    char **get() { return m_pointers.data(); }

private:
    QList<QByteArray> m_bytes;
    std::vector<char *> m_pointers;
};

QStringList environment(const TrialRun::Variables &variables)
{
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        all.insert(variable.key(), variable.value());
    return all.toStringList();
}

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

TrialRun::TrialRun(const QStringList &command, const Variables &variables, const QString &logFile)
    : m_logFile(logFile)
{
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        qFatal("no pipe");
    m_output = ends[0];
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO,
                                       QFile::encodeName(logFile).constData(),
                                       O_WRONLY | O_CREAT | O_TRUNC, 0600);
    Pointers arguments(command);
    Pointers variablesOfChild(environment(variables));
    if (::posix_spawn(&m_process, arguments.get()[0], &actions, nullptr, arguments.get(),
                      variablesOfChild.get())
        != 0)
        qFatal("cannot start %s", arguments.get()[0]);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
}

TrialRun::~TrialRun()
{
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        awaitEnd();
    }
    ::close(m_output);
}

void TrialRun::awaitOutput()
{
    std::array<char, 512> bytes = {};
    const auto count = ::read(m_output, bytes.data(), bytes.size());
    m_read.append(bytes.data(), qMax(count, 0));
}

void TrialRun::send(int signal) const
{
    ::kill(m_process, signal);
}

int TrialRun::awaitEnd()
{
    int status = 0;
    ::waitpid(m_process, &status, 0);
    m_process = -1;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

bool TrialRun::isAlone() const
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
    for (qsizetype before = -1; before != m_read.size();) {
        before = m_read.size();
        awaitOutput();
    }
    QFile log(m_logFile);
    return m_read + (log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray("no log"));
}
