#include "FolderEmptier.h"

#include "FolderAccess.h"
#include "FolderDescent.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <optional>
#include <vector>

namespace
{

// How much of one folder is read ahead: enough for 100,000 ordinary names at once.
constexpr std::size_t entriesBlock = 4 * 1024 * 1024;

// From this many entries on, removing them in the order of their inodes is faster on a disk.
constexpr std::size_t manyEntries = 10'000;

// One thread's part of the work.
class Emptier
{
public:
    Emptier(const std::stop_token &stop, FreedBytes freed) : m_stop(stop), m_freed(freed) { }

    void removeEntries(FolderDescent &descent);
    void removeWaiting(FolderDescent &descent, FolderShare &share);
    const FolderRemovalResult &result() const { return m_result; }

private:
    struct Place {
        std::uint64_t inode;
        std::size_t position;
    };

    void removeEntry(FolderDescent &descent, const FolderEntries::Entry &entry);
    void enterOrRemove(FolderDescent &descent, const char *name);
    bool removeItem(int parent, const char *name, int flags);
    void sortPlaces(int folder);

    const std::stop_token &m_stop;
    FreedBytes m_freed;
    FolderRemovalResult m_result;
    FolderEntries m_entries{entriesBlock};
    std::vector<Place> m_places;
};

bool isNotEmpty(int error)
{
    return error == ENOTEMPTY || error == EEXIST;
}

// Three errors are not counted: a folder that is not empty holds an item that was counted already,
// an item that has gone meanwhile needs no removal, and a folder in place of a file is emptied as a
// folder later.
bool isRefusal(int error)
{
    return !isNotEmpty(error) && error != ENOENT && error != EISDIR;
}

void Emptier::removeEntries(FolderDescent &descent)
{
    do {
        if (!m_entries.read(descent.folder())) {
            if (isRefusal(errno))
                m_result.refuse(errno);
            return;
        }
        m_places.clear();
        m_entries.forEach([this](const FolderEntries::Entry &entry, std::size_t position) {
            m_places.push_back({.inode = entry.inode, .position = position});
        });
        sortPlaces(descent.folder());
        for (const Place &place : m_places) {
            if (m_stop.stop_requested())
                return;
            removeEntry(descent, m_entries.entryAt(place.position));
        }
    } while (!m_entries.atEnd());
}

void Emptier::sortPlaces(int folder)
{
    if (m_places.size() > manyEntries && FolderAccess::isOnDisk(folder))
        std::ranges::sort(m_places, {}, &Place::inode);
}

void Emptier::removeEntry(FolderDescent &descent, const FolderEntries::Entry &entry)
{
    if (entry.isFolder || (!removeItem(descent.folder(), entry.name, 0) && errno == EISDIR))
        descent.addSubfolder(entry.name);
}

// False with errno set if the item stays.
bool Emptier::removeItem(int parent, const char *name, int flags)
{
    const auto entry =
        m_freed == FreedBytes::Count ? FolderAccess::entry(parent, name) : std::nullopt;
    if (::unlinkat(parent, name, flags) == 0) {
        m_result.gone(entry ? entry->freed : 0);
        return true;
    }
    const int error = errno;
    if (isRefusal(error))
        m_result.refuse(error);
    errno = error;
    return false;
}

void Emptier::enterOrRemove(FolderDescent &descent, const char *name)
{
    FileDescriptor folder = FolderAccess::openFolderOfSameMount(descent.folder(), name);
    if (folder) {
        descent.enter(std::move(folder));
        removeEntries(descent);
        return;
    }
    switch (errno) {
    case ENOENT:
        break;
    case ENOTDIR: // Exchanged for something else since it was listed.
    case ELOOP:
        removeItem(descent.folder(), name, 0);
        break;
    case EACCES: // Cannot be read, but may be empty.
        if (!removeItem(descent.folder(), name, AT_REMOVEDIR) && isNotEmpty(errno))
            m_result.refuse(EACCES);
        break;
    default:
        m_result.refuse(errno);
    }
}

void Emptier::removeWaiting(FolderDescent &descent, FolderShare &share)
{
    for (;;) {
        while (const char *name = descent.nextSubfolder()) {
            if (m_stop.stop_requested())
                return;
            enterOrRemove(descent, name);
            share.offer(descent);
        }
        if (descent.atTop())
            return;
        const char *const left = descent.leave();
        if (!left)
            return;
        removeItem(descent.folder(), left, AT_REMOVEDIR);
    }
}

} // namespace

FolderRemovalResult emptyFolder(FileDescriptor folder, unsigned helpers,
                                const std::stop_token &stop, FreedBytes freed)
{
    FolderDescent descent({.folder = std::move(folder), .names = {}});
    Emptier first(stop, freed);
    first.removeEntries(descent);
    FolderRemovalResult total = first.result();
    std::mutex mutex;
    FolderShare::run(helpers, descent, [&](FolderShare &share, FolderDescent &part) {
        Emptier emptier(stop, freed);
        emptier.removeWaiting(part, share);
        const std::scoped_lock lock(mutex);
        total.add(emptier.result());
    });
    return total;
}
