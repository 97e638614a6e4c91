#include "ProcessorThreads.h"

#include "EndOnSignal.h"

#include <sched.h>

#include <algorithm>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace archive
{

namespace
{

constexpr unsigned maxThreads = 64;

class FirstException
{
public:
    void keep(const std::function<void()> &stop)
    {
        const std::scoped_lock lock(m_mutex);
        if (m_exception)
            return;
        m_exception = std::current_exception();
        stop();
    }
    void rethrow() const
    {
        if (m_exception)
            std::rethrow_exception(m_exception);
    }

private:
    std::mutex m_mutex;
    std::exception_ptr m_exception;
};

// The new threads inherit that the ending signals are held back.
std::vector<std::jthread> startThreads(unsigned count, const std::function<void()> &work)
{
    const standin::EndingHeldBack held;
    std::vector<std::jthread> threads;
    threads.reserve(count);
    try {
        for (unsigned i = 0; i < count; ++i)
            threads.emplace_back(work);
    } catch (const std::system_error &) {
        // A limit of the user's: those that were started do the work.
    }
    return threads;
}

} // namespace

unsigned processorCount()
{
    cpu_set_t set;
    if (::sched_getaffinity(0, sizeof set, &set) != 0)
        return 1;
    return std::clamp(static_cast<unsigned>(CPU_COUNT(&set)), 1U, maxThreads);
}

void onAllProcessors(const std::function<void()> &work, const std::function<void()> &stop)
{
    FirstException exception;
    const auto guarded = [&] {
        try {
            work();
        } catch (...) {
            exception.keep(stop);
        }
    };
    {
        const auto threads = startThreads(processorCount() - 1, guarded);
        guarded();
    }
    exception.rethrow();
}

} // namespace archive
