#pragma once

#include <sys/types.h>

#include <cerrno>
#include <csignal>

/// The processes that a command started and that stayed in its group. A group's number is not
/// given to anybody else as long as one member is left.
class ProcessGroup
{
public:
    explicit ProcessGroup(pid_t leader = 0) : m_leader(leader) { }

    void signal(int number) const
    {
        if (m_leader > 1)
            ::kill(-m_leader, number);
    }

    /// A member that we may not signal counts as well, and so does one that is not reaped yet.
    bool hasMembers() const
    {
        return m_leader > 1 && (::kill(-m_leader, 0) == 0 || errno == EPERM);
    }

private:
    pid_t m_leader;
};
