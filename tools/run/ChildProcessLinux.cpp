#include "ChildProcess.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sysexits.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace
{

// An ignored signal stays ignored through exec, and so does the mask.
void resetSignals()
{
    struct sigaction defaultAction = {};
    defaultAction.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number)
        sigaction(number, &defaultAction, nullptr); // fails harmlessly for KILL and STOP
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

void dieWithParent(pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) // it died before the call above could see it
        _exit(EX_OSERR);
}

void write(const char *text)
{
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, text, std::strlen(text));
}

[[noreturn]] void refuse(const QByteArray &complaint)
{
    const char *reason = strerrordesc_np(errno); // async-signal-safe, unlike strerror
    write(complaint.constData());
    write(reason ? reason : "unknown error");
    write("\n");
    _exit(EX_NOINPUT);
}

// Made before the fork: memory cannot be allocated after it.
QByteArray complaintAbout(QByteArray directory)
{
    const auto isControl = [](char byte) { return (byte >= 0 && byte < ' ') || byte == '\x7f'; };
    std::replace_if(directory.begin(), directory.end(), isControl, '?');
    return "toolvane: cannot enter " + directory + ": ";
}

} // namespace

std::function<void()> childSetup(const std::optional<QByteArray> &workingDirectory,
                                 int passedDescriptor)
{
    return
        [workingDirectory, passedDescriptor,
         complaint = complaintAbout(workingDirectory.value_or(QByteArray())), parent = getpid()] {
            resetSignals();
            setsid();
            dieWithParent(parent);
            if (passedDescriptor > STDERR_FILENO)
                fcntl(passedDescriptor, F_SETFD, 0); // a flag of the child's copy alone
            if (workingDirectory && chdir(workingDirectory->constData()) != 0)
                refuse(complaint);
        };
}

void ProcessGroup::signal(int number) const
{
    if (m_leader > 1) // 0 and 1 would mean our own group, and everybody
        kill(-m_leader, number);
}

bool ProcessGroup::hasMembers() const
{
    return m_leader > 1 && (kill(-m_leader, 0) == 0 || errno == EPERM);
}
