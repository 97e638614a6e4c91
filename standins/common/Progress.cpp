#include "Progress.h"

#include "EndOnSignal.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <string>
#include <system_error>

namespace standin
{

namespace
{

constexpr char variable[] = "TOOLVANE_PROGRESS_FD";

// Eight lines a second leave room for the last one, which comes whenever the work is done.
constexpr auto lineInterval = std::chrono::milliseconds(125);
constexpr auto countingDelay = std::chrono::milliseconds(500);

// The number in the environment, which does not keep it; -1: none.
int takeNumber()
{
    const char *text = std::getenv(variable);
    if (text == nullptr)
        return -1;
    int number = -1;
    const char *end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, number);
    const bool isNumber = error == std::errc() && stop == end;
    ::unsetenv(variable);
    return isNumber ? number : -1;
}

bool isWritablePipe(int number)
{
    struct stat status;
    return number > STDERR_FILENO && ::fstat(number, &status) == 0 && S_ISFIFO(status.st_mode)
        && (::fcntl(number, F_GETFL) & O_ACCMODE) != O_RDONLY;
}

// Opened anew, because O_NONBLOCK on the inherited descriptor would hold for all who share it.
FileDescriptor openedAnew(const FileDescriptor &pipe)
{
    const std::string path = "/proc/self/fd/" + std::to_string(pipe.number());
    return FileDescriptor(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
}

} // namespace

Progress::Progress()
{
    const int number = takeNumber();
    if (isWritablePipe(number))
        m_pipe = openedAnew(FileDescriptor(number));
}

std::jthread Progress::countBeside(const Count &count)
{
    if (!isWanted())
        return {};
    const EndingHeldBack held;
    const auto countLater = [this, count](const std::stop_token &stop) {
        std::mutex unused;
        std::unique_lock lock(unused);
        if (std::condition_variable_any().wait_for(lock, stop, countingDelay,
                                                   [&stop] { return stop.stop_requested(); }))
            return;
        try {
            setTotal(count(stop));
        } catch (const std::exception &) { // the work itself is done all the same
        }
    };
    try {
        return std::jthread(countLater);
    } catch (const std::system_error &) { // no more threads
        return {};
    }
}

void Progress::add(std::uint64_t bytes)
{
    if (!isWanted())
        return;
    m_done += bytes;
    report();
}

void Progress::setDone(std::uint64_t bytes)
{
    if (!isWanted())
        return;
    m_done = bytes;
    report();
}

void Progress::report()
{
    const std::uint64_t total = m_total;
    if (total == 0 || Clock::now().time_since_epoch() < m_nextLine.load())
        return;
    const std::unique_lock lock(m_writing, std::try_to_lock);
    if (!lock)
        return; // another thread writes the line that is due
    const auto now = Clock::now().time_since_epoch();
    if (now < m_nextLine.load())
        return;
    m_nextLine = now + lineInterval;
    m_lastDone = std::clamp(m_done.load(), std::min(m_lastDone, total), total);
    write(m_lastDone, total);
}

void Progress::finish()
{
    const std::uint64_t total = m_total > 0 ? m_total : m_done;
    if (isWanted() && total > 0)
        write(total, total);
}

// A line is shorter than what a pipe takes whole or not at all.
void Progress::write(std::uint64_t done, std::uint64_t total)
{
    const std::string line = std::to_string(done) + ' ' + std::to_string(total) + '\n';
    if (::write(m_pipe.number(), line.data(), line.size()) < 0 && errno == EPIPE)
        m_nextLine = Clock::duration::max();
}

} // namespace standin
