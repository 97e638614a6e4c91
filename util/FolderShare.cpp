#include "FolderShare.h"

#include <system_error>
#include <thread>

void FolderShare::run(unsigned helpers, FolderDescent &first,
                      const std::function<void(FolderShare &, FolderDescent &)> &work)
{
    FolderShare share;
    const auto serve = [&share, &work] {
        while (std::optional<FolderBatch> batch = share.take()) {
            FolderDescent descent(std::move(*batch));
            work(share, descent);
        }
    };
    share.m_busy = static_cast<int>(helpers) + 1;
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < helpers; ++i) {
        try {
            threads.emplace_back(serve);
        } catch (const std::system_error &) {
            const std::scoped_lock lock(share.m_mutex);
            --share.m_busy;
        }
    }
    work(share, first);
    serve();
}

void FolderShare::give(FolderBatch batch)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_batches.push_back(std::move(batch));
        --m_wanted;
    }
    m_changed.notify_one();
}

std::optional<FolderBatch> FolderShare::take()
{
    std::unique_lock lock(m_mutex);
    --m_busy;
    ++m_wanted;
    if (m_busy == 0 && m_batches.empty())
        m_changed.notify_all();
    m_changed.wait(lock, [this] { return !m_batches.empty() || m_busy == 0; });
    if (m_batches.empty())
        return std::nullopt;
    FolderBatch batch = std::move(m_batches.back());
    m_batches.pop_back();
    ++m_busy;
    return batch;
}
