#include "FolderSize.h"

#include "FolderAccess.h"
#include "FolderDescent.h"

#include <fcntl.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace
{

constexpr std::size_t entriesBlock = 64 * 1024;

// Adds up the innermost folder's entries and adds its sub-folders to those that wait.
std::uint64_t sizeOfEntries(FolderDescent &descent, FolderEntries &entries,
                            const std::stop_token &stop)
{
    std::uint64_t sum = 0;
    const int folder = descent.folder();
    do {
        if (stop.stop_requested() || !entries.read(folder))
            return sum;
        entries.forEach([&](const FolderEntries::Entry &listed, std::size_t) {
            const auto entry = FolderAccess::entry(folder, listed.name);
            if (!entry)
                return;
            sum += entry->size;
            if (entry->isFolder)
                descent.addSubfolder(listed.name);
        });
    } while (!entries.atEnd());
    return sum;
}

std::uint64_t sizeOfWaiting(FolderDescent &descent, FolderEntries &entries, FolderShare &share,
                            const std::stop_token &stop)
{
    std::uint64_t sum = 0;
    for (;;) {
        while (const char *name = descent.nextSubfolder()) {
            if (stop.stop_requested())
                return sum;
            FileDescriptor folder = FolderAccess::openFolder(descent.folder(), name);
            if (!folder)
                continue;
            descent.enter(std::move(folder));
            sum += sizeOfEntries(descent, entries, stop);
            share.offer(descent);
        }
        if (descent.atTop() || !descent.leave())
            return sum;
    }
}

} // namespace

std::int64_t folderSize(const QByteArray &path, const std::stop_token &stop)
{
    if (path.contains('\0'))
        return 0;
    FileDescriptor top(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!top)
        return 0;
    FolderDescent descent({.folder = std::move(top), .names = {}});
    FolderEntries topEntries(entriesBlock);
    std::atomic<std::uint64_t> sum = sizeOfEntries(descent, topEntries, stop);
    const unsigned helpers = std::clamp(std::thread::hardware_concurrency(), 1u, 4u) - 1;
    FolderShare::run(helpers, descent, [&sum, &stop](FolderShare &share, FolderDescent &part) {
        FolderEntries entries(entriesBlock);
        sum += sizeOfWaiting(part, entries, share, stop);
    });
    return static_cast<std::int64_t>(sum.load());
}
