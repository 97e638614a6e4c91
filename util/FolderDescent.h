#pragma once

#include "FileDescriptor.h"
#include "FolderAccess.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

/// Some sub-folders of one folder that wait to be entered.
struct FolderBatch {
    FileDescriptor folder;
    std::vector<char> names; ///< Each ended by a NUL.
};

/// The way from a top folder down to the one being worked on, and the sub-folders that still wait
/// on every level of it. Needs no path and no recursion, so depth costs some bytes a level: only
/// the innermost folders stay open, an outer one is opened again through ".." and must then prove
/// to be the folder that it was. One thread at a time.
class FolderDescent
{
public:
    explicit FolderDescent(FolderBatch batch);

    int folder() const { return m_levels.back().folder.get(); }
    bool atTop() const { return m_levels.size() == 1; }

    /// Lets a sub-folder of the innermost folder wait. Only before its first nextSubfolder().
    void addSubfolder(const char *name);
    /// Takes one that waits in the innermost folder; null when none does. Valid until the next call
    /// that is not const.
    const char *nextSubfolder();
    /// Makes the folder that bears the name taken last the innermost one.
    void enter(FileDescriptor folder);
    /// Goes back to the outer folder and gives the name of the one just left, valid as above. Null
    /// when the way back is lost because somebody moved a folder; the descent is of no use then.
    const char *leave();

    /// Gives away about half of what waits nearest to the top; none where little waits.
    std::optional<FolderBatch> split();

private:
    struct Level {
        FileDescriptor folder;
        std::optional<FolderAccess::Identity> identity; ///< Known once the folder is closed.
        std::size_t ownName; ///< Where in m_names, in the part of the outer level.
        std::size_t begin; ///< What waits is m_names from next to end.
        std::size_t next;
        std::size_t end;
    };

    void closeOuter();

    std::vector<char> m_names;
    std::vector<Level> m_levels;
    std::size_t m_taken = 0;
};

/// Lets several threads walk one tree: who has much left to do gives a part of it to who has
/// nothing. Each thread calls take() until it gives nothing, which is when all are done.
class FolderShare
{
public:
    /// Runs work(first) here and, on up to helpers other threads, work() on what is given away;
    /// returns when everything is done. Where the system refuses a thread, fewer do the work.
    static void run(unsigned helpers, FolderDescent &first,
                    const std::function<void(FolderShare &, FolderDescent &)> &work);

    /// Gives a part of the descent away if another thread waits for work; costs next to nothing if
    /// none does.
    void offer(FolderDescent &descent)
    {
        if (m_wanted.load(std::memory_order_relaxed) > 0)
            give(descent);
    }

private:
    void give(FolderDescent &descent);
    std::optional<FolderBatch> take();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<FolderBatch> m_batches;
    std::atomic<int> m_wanted = 0; ///< Those who wait less the batches that lie ready.
    int m_busy = 0;
};
