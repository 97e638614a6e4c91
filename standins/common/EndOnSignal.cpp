#include "EndOnSignal.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace standin
{

namespace
{

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

// Read by the handler, written only while the ending signals are blocked.
std::array<pid_t, 8> children{};
const char *temporaryPath = nullptr;

// Only async-signal-safe calls from here on. KILL and not TERM: the usual media programs answer
// TERM by finishing the file at leisure.
void endNow(int signal)
{
    for (pid_t child : children) {
        if (child > 0)
            ::kill(child, SIGKILL);
    }
    for (pid_t child : children) {
        if (child > 0)
            ::waitpid(child, nullptr, 0);
    }
    if (temporaryPath)
        ::unlink(temporaryPath);
    ::_exit(128 + signal);
}

sigset_t endingSet()
{
    sigset_t set;
    sigemptyset(&set);
    for (int signal : endingSignals)
        sigaddset(&set, signal);
    return set;
}

void replaceChild(pid_t from, pid_t to)
{
    const EndingHeldBack held;
    const auto slot = std::ranges::find(children, from);
    if (slot == children.end())
        std::abort(); // more children than any of these programs has
    *slot = to;
}

} // namespace

void installEndOnSignal()
{
    struct sigaction action = {};
    action.sa_handler = endNow;
    action.sa_mask = endingSet();
    for (int signal : endingSignals)
        ::sigaction(signal, &action, nullptr);
    const sigset_t set = endingSet();
    ::sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

void rememberChild(pid_t child)
{
    replaceChild(0, child);
}

void forgetChild(pid_t child)
{
    replaceChild(child, 0);
}

void rememberTemporary(const char *path)
{
    const EndingHeldBack held;
    temporaryPath = path;
}

void forgetTemporary()
{
    rememberTemporary(nullptr);
}

EndingHeldBack::EndingHeldBack()
{
    const sigset_t set = endingSet();
    ::sigprocmask(SIG_BLOCK, &set, &m_before);
}

EndingHeldBack::~EndingHeldBack()
{
    ::sigprocmask(SIG_SETMASK, &m_before, nullptr);
}

} // namespace standin
