#pragma once

#include <sys/types.h>

#include <csignal>

namespace standin
{

// What has to go when the program is ended from outside (TERM, INT, HUP). A signal handler does the
// work, so that no loop has to look for a flag and a long system call does not delay it: every
// child is killed and reaped, the temporary file is removed, the program exits with 128 + signal.
// Not thread-safe: these programs have one thread.
void installEndOnSignal();

void rememberChild(pid_t child);
void forgetChild(pid_t child);

// One temporary file at a time; the text must live until forgetTemporary().
void rememberTemporary(const char *path);
void forgetTemporary();

// Holds the ending signals back, so that what was made and what is remembered cannot differ.
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
