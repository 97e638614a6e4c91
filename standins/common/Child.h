#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace standin
{

// What to start. No shell, no search path: the distribution's own programs are what the command
// lines were measured with, so a name is looked for in /usr/bin and /bin only.
struct Command {
    std::string program; // a name without a folder
    std::string package; // what to install when it is missing
    std::vector<std::string> arguments = {};

    int input = -1; // -1: /dev/null
    int output = -1; // -1: where its errors go
    int errors = -1; // -1: our standard error
    std::vector<int> passed = {}; // descriptors that the child keeps, under the same numbers

    // A line with this in it gives no reason: it is never among the last words. Empty: none.
    std::string hollowWords = {};

    enum class Lifetime {
        EndsWithUs, // killed when we end, however we end
        // In a session of its own, goes on without us: what it shows belongs to the person, so it
        // keeps the locale, and it does not hold our standard error open.
        Detached,
    } lifetime = Lifetime::EndsWithUs;
};

// How a child ended.
struct ChildEnd {
    int status = -1; // -1: killed by a signal
    int signal = 0; // 0: exited

    bool succeeded() const { return status == 0; }
    std::string text() const; // "status 3", "signal 9"
};

// Full path of a program; fails with status 69 and the package's name when it is not installed.
std::string findProgram(const std::string &name, const std::string &package);

// One running child with LC_ALL=C.UTF-8, so that its words can be compared. The destructor kills
// and reaps it unless wait() was called or it is detached.
class Child
{
public:
    explicit Child(const Command &command);
    ~Child();
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    // Waits until the child has ended. To be called once.
    ChildEnd wait();

    // False after the given time without an end; the child goes on and wait() can still be called.
    bool waitFor(int milliseconds);

    void kill();

private:
    pid_t m_pid = -1;
    bool m_detached = false;
};

} // namespace standin
