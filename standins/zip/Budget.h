#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>

/// Memory that all work in progress may have together.
class Budget
{
public:
    explicit Budget(std::size_t limit) : m_limit(limit) { }

    /// Waits until there is enough left; who is alone gets any amount. False once it is closed.
    bool take(std::size_t amount)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock,
                       [&] { return m_isClosed || m_used == 0 || m_used + amount <= m_limit; });
        m_used += amount;
        return !m_isClosed;
    }
    void giveBack(std::size_t amount)
    {
        const std::scoped_lock lock(m_mutex);
        m_used -= amount;
        m_changed.notify_one();
    }
    void close()
    {
        const std::scoped_lock lock(m_mutex);
        m_isClosed = true;
        m_changed.notify_all();
    }

private:
    const std::size_t m_limit;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::size_t m_used = 0;
    bool m_isClosed = false;
};
