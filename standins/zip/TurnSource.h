#pragma once

#include "Budget.h"
#include "FolderWalk.h"
#include "Report.h"
#include "Turn.h"

#include <mutex>
#include <optional>

/// Hands out the work in the order of the archive, to one thread at a time.
class TurnSource
{
public:
    /// Files up to this size are packed whole.
    static constexpr std::uint64_t maxWholeSize = 40 << 20;
    /// Up to this size a worker packs in buffers that it keeps.
    static constexpr std::size_t maxSmallSize = LargeFile::pieceSize;

    TurnSource(FolderWalk &walk, Budget &budget, archive::Report &report)
        : m_walk(walk), m_budget(budget), m_report(report)
    {
    }

    /// None when all is handed out or the budget is closed. A piece of a large file is read into
    /// the buffer: pieces follow each other, so nobody else could read meanwhile. Waits while too
    /// much memory is in use.
    std::optional<Turn> next(Buffer &buffer);

private:
    std::optional<Turn> find();
    std::shared_ptr<LargeFile> open(FoundItem &item);

    FolderWalk &m_walk;
    Budget &m_budget;
    archive::Report &m_report;
    std::mutex m_mutex;
    std::uint64_t m_count = 0;
    std::shared_ptr<LargeFile> m_large; ///< whose pieces are handed out
};

/// The file, if it can be opened and is a regular one still; its status is then the newest. Never
/// waits. Not open with errno otherwise.
standin::FileDescriptor openFile(FoundItem &item);
