#include "FolderSize.h"

#include "FolderAccess.h"
#include "FolderDescent.h"

#include <fcntl.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <thread>

namespace
{

constexpr std::size_t entriesBlock = 64 * 1024;

// One measuring, which several threads share.
class Measuring
{
public:
    explicit Measuring(const std::stop_token &stop) : m_stop(stop) { }

    // Adds up the innermost folder's entries and adds its sub-folders to those that wait.
    void addEntries(FolderDescent &descent, FolderEntries &entries);
    void addWaiting(FolderDescent &descent, FolderShare &share);

    FolderMeasurement result() const
    {
        return {.bytes = static_cast<std::int64_t>(m_bytes.load()), .isPartial = m_isPartial};
    }

private:
    // After a failed call: what has gone or changed its kind meanwhile is not missed.
    void noteError()
    {
        if (errno != ENOENT && errno != ENOTDIR && errno != ELOOP)
            m_isPartial = true;
    }

    const std::stop_token &m_stop;
    std::atomic<std::uint64_t> m_bytes = 0;
    std::atomic<bool> m_isPartial = false;
};

void Measuring::addEntries(FolderDescent &descent, FolderEntries &entries)
{
    std::uint64_t sum = 0;
    const int folder = descent.folder();
    do {
        if (m_stop.stop_requested())
            break;
        if (!entries.read(folder)) {
            noteError();
            break;
        }
        entries.forEach([&](const FolderEntries::Entry &listed, std::size_t) {
            const auto entry = FolderAccess::entry(folder, listed.name);
            if (!entry) {
                noteError();
                return;
            }
            sum += entry->size;
            if (entry->isFolder)
                descent.addSubfolder(listed.name);
        });
    } while (!entries.atEnd());
    m_bytes += sum;
}

void Measuring::addWaiting(FolderDescent &descent, FolderShare &share)
{
    FolderEntries entries(entriesBlock);
    for (;;) {
        while (const char *name = descent.nextSubfolder()) {
            if (m_stop.stop_requested())
                return;
            FileDescriptor folder = FolderAccess::openFolder(descent.folder(), name);
            if (!folder) {
                noteError();
                continue;
            }
            descent.enter(std::move(folder));
            addEntries(descent, entries);
            share.offer(descent);
        }
        if (descent.atTop() || !descent.leave())
            return;
    }
}

} // namespace

FolderMeasurement measureFolder(const QByteArray &path, const std::stop_token &stop)
{
    if (path.isEmpty() || path.contains('\0'))
        return {.error = EINVAL};
    FileDescriptor top(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!top)
        return {.error = errno};
    FolderDescent descent({.folder = std::move(top), .names = {}});
    FolderEntries topEntries(entriesBlock);
    Measuring measuring(stop);
    measuring.addEntries(descent, topEntries);
    const unsigned helpers = std::clamp(std::thread::hardware_concurrency(), 1u, 4u) - 1;
    FolderShare::run(helpers, descent, [&measuring](FolderShare &share, FolderDescent &part) {
        measuring.addWaiting(part, share);
    });
    return measuring.result();
}
