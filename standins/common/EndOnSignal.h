#pragma once

#include <sys/types.h>

#include <csignal>

namespace standin
{

/// Makes TERM, INT and HUP end the program cleanly: a signal handler kills and reaps every
/// remembered child, removes the remembered temporary file and exits with 128 + signal. It needs no
/// loop that looks at a flag, and a long system call does not delay it. Not thread-safe: a second
/// thread is started while the signals are held back, so that it never gets one, and neither starts
/// children nor makes files.
void installEndOnSignal();

/// At most eight children at a time.
void rememberChild(pid_t child);
void forgetChild(pid_t child);

/// One temporary file at a time; the text must live until forgetTemporary().
void rememberTemporary(const char *path);
void forgetTemporary();

/// Blocks the ending signals while it exists, so that a child or file cannot be made without being
/// remembered. Can be nested.
class EndingHeldBack
{
public:
    EndingHeldBack();
    ~EndingHeldBack();
    EndingHeldBack(const EndingHeldBack &) = delete;
    EndingHeldBack &operator=(const EndingHeldBack &) = delete;

private:
    sigset_t m_before;
};

} // namespace standin
