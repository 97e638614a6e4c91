#pragma once

// Makes the kernel refuse, for this process and for good, what older kernels and plain file systems
// do not have: renaming without replacing, files without a name, copying in the kernel.

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstddef>

inline bool pretendOldSystem()
{
    constexpr auto refuse = [](unsigned error) { return SECCOMP_RET_ERRNO | error; };
    constexpr unsigned nameless = O_TMPFILE & ~unsigned(O_DIRECTORY);
    sock_filter program[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 6, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_copy_file_range, 5, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_sendfile, 4, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 4),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, nameless, 0, 2),
        BPF_STMT(BPF_RET | BPF_K, refuse(EOPNOTSUPP)),
        BPF_STMT(BPF_RET | BPF_K, refuse(ENOSYS)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter = {sizeof program / sizeof *program, program};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}
