#include "FolderDescent.h"

#include <fcntl.h>

#include <cstring>
#include <system_error>
#include <thread>

namespace
{
// Deep enough for nearly every real tree, and four workers stay far below 256 descriptors.
constexpr std::size_t maxOpenFolders = 16;
} // namespace

FolderDescent::FolderDescent(FolderBatch batch) : m_names(std::move(batch.names))
{
    m_levels.push_back(Level{.folder = std::move(batch.folder),
                             .identity = {},
                             .ownName = 0,
                             .begin = 0,
                             .next = 0,
                             .end = m_names.size()});
}

void FolderDescent::addSubfolder(const char *name)
{
    m_names.insert(m_names.end(), name, name + std::strlen(name) + 1);
    m_levels.back().end = m_names.size();
}

const char *FolderDescent::nextSubfolder()
{
    Level &level = m_levels.back();
    if (level.next == level.end)
        return nullptr;
    m_taken = level.next;
    const char *const name = m_names.data() + m_taken;
    level.next += std::strlen(name) + 1;
    return name;
}

void FolderDescent::enter(FileDescriptor folder)
{
    const std::size_t here = m_names.size();
    m_levels.push_back(Level{.folder = std::move(folder),
                             .identity = {},
                             .ownName = m_taken,
                             .begin = here,
                             .next = here,
                             .end = here});
    closeOuter();
}

void FolderDescent::closeOuter()
{
    if (m_levels.size() <= maxOpenFolders)
        return;
    Level &outer = m_levels[m_levels.size() - 1 - maxOpenFolders];
    if (!outer.folder)
        return;
    outer.identity = FolderAccess::identity(outer.folder.get());
    outer.folder.close();
}

const char *FolderDescent::leave()
{
    const Level left = std::move(m_levels.back());
    m_levels.pop_back();
    m_names.resize(left.begin);
    Level &level = m_levels.back();
    if (!level.folder) {
        level.folder = FolderAccess::openFolder(left.folder.get(), "..");
        if (!level.folder || !level.identity
            || FolderAccess::identity(level.folder.get()) != level.identity)
            return nullptr;
    }
    return m_names.data() + left.ownName;
}

std::optional<FolderBatch> FolderDescent::split()
{
    for (Level &level : m_levels) {
        if (!level.folder || level.next == level.end)
            continue;
        const char *const names = m_names.data();
        // The end of the name that holds the last byte of the first half.
        const std::size_t middle = level.next + (level.end - level.next) / 2 - 1;
        std::size_t cut = middle + std::strlen(names + middle) + 1;
        const bool innermost = &level == &m_levels.back();
        if (cut == level.end && !innermost)
            cut = level.next;
        if (cut == level.end)
            continue;
        FileDescriptor folder(::fcntl(level.folder.get(), F_DUPFD_CLOEXEC, 0));
        if (!folder)
            return std::nullopt;
        FolderBatch batch{.folder = std::move(folder),
                          .names = std::vector<char>(names + cut, names + level.end)};
        level.end = cut;
        return batch;
    }
    return std::nullopt;
}

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

void FolderShare::give(FolderDescent &descent)
{
    std::optional<FolderBatch> batch = descent.split();
    if (!batch)
        return;
    {
        const std::scoped_lock lock(m_mutex);
        m_batches.push_back(std::move(*batch));
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
