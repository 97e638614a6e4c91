#include "Child.h"

#include "EndOnSignal.h"
#include "Failure.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

namespace standin
{

namespace
{

constexpr int pipeCapacity = 1 << 20; // bytes

// dup2() leaves close-on-exec set when both numbers are the same.
void place(int from, int to)
{
    if (from == to ? ::fcntl(from, F_SETFD, 0) < 0 : ::dup2(from, to) < 0)
        ::_exit(127);
}

void placeDescriptors(const Command &command)
{
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    const bool detached = command.lifetime == Command::Lifetime::Detached;
    place(command.input >= 0 ? command.input : nothing, STDIN_FILENO);
    if (detached || command.errors >= 0)
        place(detached ? nothing : command.errors, STDERR_FILENO);
    place(command.output >= 0 ? command.output : STDERR_FILENO, STDOUT_FILENO);
    ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC); // ours and what we inherited
    for (int number : command.passed)
        place(number, number);
}

void setEnvironment()
{
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::unsetenv("LANGUAGE");
    ::unsetenv("FFREPORT"); // makes the media programs write a report into the current folder
}

void tieToParent(pid_t parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) // it ended before the line above
        ::_exit(127);
}

void resetSignals()
{
    for (int signal : {SIGTERM, SIGINT, SIGHUP, SIGPIPE})
        std::signal(signal, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void becomeProgram(const Command &command, const char *path, char *const *arguments,
                                pid_t parent)
{
    if (command.lifetime == Command::Lifetime::EndsWithUs) {
        tieToParent(parent);
        setEnvironment();
    } else {
        ::setsid();
    }
    placeDescriptors(command);
    resetSignals();
    ::execv(path, arguments);
    ::dprintf(STDERR_FILENO, "%s: %s\n", path, std::strerror(errno));
    ::_exit(127);
}

std::vector<char *> argumentPointers(std::string &path, std::vector<std::string> &arguments)
{
    std::vector<char *> pointers{path.data()};
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

std::string ChildEnd::text() const
{
    return signal ? "signal " + std::to_string(signal) : "status " + std::to_string(status);
}

std::string findProgram(const std::string &name, const std::string &package)
{
    for (const char *folder : {"/usr/bin/", "/bin/"}) {
        std::string path = folder + name;
        if (::access(path.c_str(), X_OK) == 0)
            return path;
    }
    throw Failure(ProgramMissing, name + " is not installed (package " + package + ")");
}

Pipe::Pipe()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        failWithError("pipe", errno);
    readEnd = FileDescriptor(ends[0]);
    writeEnd = FileDescriptor(ends[1]);
    // Room for what comes while we work on what came before; less will do if that is refused.
    ::fcntl(writeEnd.number(), F_SETPIPE_SZ, pipeCapacity);
}

Child::Child(const Command &command) : m_detached(command.lifetime == Command::Lifetime::Detached)
{
    std::string path = findProgram(command.program, command.package);
    std::vector<std::string> arguments = command.arguments;
    const std::vector<char *> pointers = argumentPointers(path, arguments);

    const EndingHeldBack held;
    const pid_t parent = ::getpid();
    m_pid = ::fork();
    if (m_pid < 0)
        failWithError(path, errno);
    if (m_pid == 0)
        becomeProgram(command, path.c_str(), pointers.data(), parent);
    if (!m_detached)
        rememberChild(m_pid);
}

Child::~Child()
{
    if (m_pid < 0 || m_detached)
        return;
    kill();
    wait();
}

void Child::kill()
{
    ::kill(m_pid, SIGKILL);
}

// The end is awaited without reaping; then the child is reaped and forgotten with the ending
// signals blocked. Otherwise their handler could kill a stranger that got the freed process number.
ChildEnd Child::wait()
{
    siginfo_t information;
    while (::waitid(P_PID, static_cast<id_t>(m_pid), &information, WEXITED | WNOWAIT) != 0
           && errno == EINTR) { }
    const EndingHeldBack held;
    int status = 0;
    ::waitpid(m_pid, &status, 0);
    if (!m_detached)
        forgetChild(m_pid);
    m_pid = -1;
    if (WIFSIGNALED(status))
        return {-1, WTERMSIG(status)};
    return {WEXITSTATUS(status), 0};
}

bool Child::waitFor(int milliseconds)
{
    const FileDescriptor handle(static_cast<int>(::syscall(SYS_pidfd_open, m_pid, 0)));
    pollfd event{handle.number(), POLLIN, 0};
    return ::poll(&event, 1, milliseconds) > 0;
}

} // namespace standin
