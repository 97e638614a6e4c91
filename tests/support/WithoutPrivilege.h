#pragma once

#include <QtGlobal>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

/// While it exists, file permissions apply to the super user as to everybody else. It changes
/// nothing for other users.
class WithoutPrivilege
{
public:
    WithoutPrivilege()
    {
        syscall(SYS_capget, &m_header, m_before);
        __user_cap_data_struct now[2] = {m_before[0], m_before[1]};
        now[0].effective &= ~((1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH));
        syscall(SYS_capset, &m_header, now);
    }
    ~WithoutPrivilege() { syscall(SYS_capset, &m_header, m_before); }
    Q_DISABLE_COPY_MOVE(WithoutPrivilege)

private:
    __user_cap_header_struct m_header = {.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    __user_cap_data_struct m_before[2] = {};
};
