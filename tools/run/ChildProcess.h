#pragma once

#include <QByteArray>

#include <sys/types.h>

#include <functional>
#include <optional>

/// What a child process does between fork and exec: default signal mask and dispositions, a session
/// and process group of its own, death with the calling thread, then the working directory. If the
/// directory cannot be entered, the child says so on standard error and exits with status 66
/// (EX_NOINPUT of sysexits.h). A descriptor that is named stays open in the program, under its
/// number; -1 is none. Uses async-signal-safe calls only.
std::function<void()> childSetup(const std::optional<QByteArray> &workingDirectory,
                                 int passedDescriptor);

/// The processes that a command started and that stayed in its group. The kernel gives a group's
/// number to nobody else as long as one member is left.
class ProcessGroup
{
public:
    ProcessGroup() = default; ///< No group: nothing is signalled, and it has no members.
    explicit ProcessGroup(pid_t leader) : m_leader(leader) { }

    void signal(int number) const;
    /// A member that we may not signal counts as well, and so does one that is not reaped yet.
    bool hasMembers() const;

private:
    pid_t m_leader = 0;
};
