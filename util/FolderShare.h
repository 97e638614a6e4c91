#pragma once

#include "FolderDescent.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

/// Lets several threads walk one tree: who has much left to do gives a part of it to who has
/// nothing. Each thread calls take() until it gives nothing, which is when all are done.
class FolderShare
{
public:
    /// Runs work(first) here and, on up to helpers other threads, work() on what is given away;
    /// returns when everything is done. Where the system refuses a thread, fewer do the work.
    static void run(unsigned helpers, FolderDescent &first,
                    const std::function<void(FolderShare &, FolderDescent &)> &work);

    /// Whether somebody waits for work; costs next to nothing to ask.
    bool wanted() const { return m_wanted.load(std::memory_order_relaxed) > 0; }
    void give(FolderBatch batch);

private:
    std::optional<FolderBatch> take();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<FolderBatch> m_batches;
    std::atomic<int> m_wanted = 0; ///< Those who wait less the batches that lie ready.
    int m_busy = 0;
};
