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

/// Sub-folders of one folder that have not been entered yet.
struct FolderBatch {
    FileDescriptor folder;
    std::vector<char> names; ///< Each ended by a NUL.
};

/// The way from a top folder down to the one being worked on, and the sub-folders that still wait
/// on every level of it. Needs no path and no recursion, so depth costs only some bytes a level.
/// Only the innermost folders stay open; an outer one is opened again through "..", and its
/// identity is compared with the one that it had. One thread at a time.
class FolderDescent
{
public:
    explicit FolderDescent(FolderBatch batch);

    int folder() const { return m_levels.back().folder.get(); }
    bool atTop() const { return m_levels.size() == 1; }

    /// Adds a waiting sub-folder to the innermost folder. Only before its first nextSubfolder().
    void addSubfolder(const char *name);
    /// Takes one that waits in the innermost folder; null if none does. Valid until the next call
    /// that is not const.
    const char *nextSubfolder();
    /// Makes the folder of the name taken last the innermost one.
    void enter(FileDescriptor folder);
    /// Goes back to the outer folder and returns the name of the one just left, valid as above.
    /// Null if the way back is lost because a folder was moved; the descent cannot be used any
    /// more.
    const char *leave();

    /// Gives away about half of what waits nearest to the top; none if too little waits.
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

/// Lets several threads walk one tree: a thread with much left to do gives a part of it to one that
/// has nothing.
class FolderShare
{
public:
    /// Runs work(first) here and, on up to helpers other threads, work() on what is given away;
    /// returns when everything is done. If the system refuses a thread, fewer do the work.
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
    std::optional<FolderBatch> take(); ///< Waits; none when all threads are done.

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<FolderBatch> m_batches;
    std::atomic<int> m_wanted = 0; ///< Waiting threads minus batches that are ready.
    int m_busy = 0;
};
