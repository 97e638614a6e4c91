#pragma once

// Of HttpConversation.cpp alone: how a coroutine waits for a handler.

#include <boost/asio/async_result.hpp>
#include <boost/asio/awaitable.hpp>
#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/use_awaitable.hpp>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

/// A result that the handler gives on any thread, and the coroutine that may wait for it.
template <class Result>
struct Pending {
    std::mutex mutex;
    std::optional<Result> result;
    std::function<void()> resume; ///< Empty unless the coroutine waits.

    void give(Result given)
    {
        std::unique_lock lock(mutex);
        result = std::move(given);
        const std::function<void()> waiter = std::exchange(resume, {});
        lock.unlock();
        if (waiter)
            waiter();
    }
    void await(std::function<void()> waiter)
    {
        std::unique_lock lock(mutex);
        if (!result) {
            resume = std::move(waiter);
            return;
        }
        lock.unlock();
        waiter();
    }
};

/// Calls `start` with a function that takes a result, and waits for it if it is not there at once.
template <class Result, class Start>
boost::asio::awaitable<Result> answerOf(Start start)
{
    const auto pending = std::make_shared<Pending<Result>>();
    start([pending](Result result) { pending->give(std::move(result)); });
    const bool isThere = [&] {
        const std::lock_guard lock(pending->mutex);
        return pending->result.has_value();
    }();
    if (!isThere) {
        // g++ 12 destroys what stands in an await expression twice: nothing in it may own anything.
        co_await boost::asio::async_initiate<const boost::asio::use_awaitable_t<> &, void()>(
            [&pending](auto handler) {
                const auto shared = std::make_shared<decltype(handler)>(std::move(handler));
                const auto work = boost::asio::make_work_guard(*shared);
                pending->await([shared, work] {
                    boost::asio::post(work.get_executor(), [shared] { (*shared)(); });
                });
            },
            boost::asio::use_awaitable);
    }
    co_return std::move(*pending->result);
}
