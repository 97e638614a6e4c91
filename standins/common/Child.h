#pragma once

#include "FileDescriptor.h"

#include <sys/types.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace standin
{

/// What to start, without a shell. The command lines were tried with the distribution's own
/// programs, so a program is looked for in /usr/bin and /bin only, never in PATH.
struct Command {
    std::string program; ///< a name without a folder
    std::string package; ///< what to install if it is missing
    std::vector<std::string> arguments = {}; ///< bytes, as a file's name need not be UTF-8

    int input = -1; ///< descriptor; -1: /dev/null
    int output = -1; ///< descriptor; -1: where its errors go
    int errors = -1; ///< descriptor; -1: our standard error
    std::vector<int> passed = {}; ///< descriptors that the child keeps, under the same numbers

    /// Gets each line of its errors as it comes, for runToEnd(), and tells whether the line may be
    /// the last words: whether it could give the reason of a failure. Empty: each may.
    std::function<bool(std::string_view line)> isReason = {};

    enum class Lifetime {
        EndsWithUs, ///< killed when we end, however we end
        /// In a session of its own, goes on without us: what it shows belongs to the person, so it
        /// keeps the locale, and it does not hold our standard error open.
        Detached,
    } lifetime = Lifetime::EndsWithUs;
};

/// How a child ended.
struct ChildEnd {
    int status = -1; ///< -1: killed by a signal
    int signal = 0; ///< 0: exited

    bool succeeded() const { return status == 0; }
    std::string text() const; ///< "status 3", "signal 9"
};

/// Full path of a program. Fails with status 69 and the package's name if it is not installed.
std::string findProgram(const std::string &name, const std::string &package);

/// Both ends of a new pipe, closed on exec. The constructor fails if the system has no more
/// descriptors.
struct Pipe {
    Pipe();

    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// One running child with LC_ALL=C.UTF-8, so that its words can be compared. The destructor kills
/// and reaps it unless wait() was called or it is detached.
class Child
{
public:
    /// Starts it. Fails if the program is not installed or cannot be forked; a program that cannot
    /// be executed ends with status 127 and a line on its standard error.
    explicit Child(const Command &command);
    ~Child();
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    /// Waits until the child has ended. To be called once.
    ChildEnd wait();

    /// False if the child has not ended after that time; it goes on and wait() can still be called.
    bool waitFor(int milliseconds);

    /// Ends it at once. It still has to be reaped, by wait() or the destructor.
    void kill();

private:
    pid_t m_pid = -1;
    bool m_detached = false;
};

} // namespace standin
