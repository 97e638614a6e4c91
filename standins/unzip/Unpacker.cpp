#include "Unpacker.h"

#include "EntryName.h"
#include "LinkTargets.h"
#include "ProcessorThreads.h"
#include "System.h"
#include "UnzipStatus.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <functional>
#include <optional>
#include <unordered_set>
#include <utility>

using standin::FileDescriptor;

namespace
{

constexpr std::uint64_t largeSize = 4 << 20; // such files go first, so that none is left at the end
constexpr std::size_t filesAtATime = 16; // neighbours, mostly of one folder

void writeFully(const FileDescriptor &file, std::string_view bytes, const Contents::Entry &entry)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            failAs(NoRoom, entry.path, std::strerror(errno));
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

} // namespace

void Unpacker::leaveOut(const Entry &entry, int error)
{
    if (archive::isLackOfRoom(error))
        failAs(NoRoom, entry.path, std::strerror(error));
    if (error == ELOOP || error == EXDEV)
        m_report.leftOut(SomethingLeftOut, entry.path, "A link in the folder leads elsewhere");
    else
        m_report.leftOut(SomethingLeftOut, entry.path, error);
}

void Unpacker::unpack()
{
    makeFolders();
    unpackFiles();
    makeLinks();
    finishFolders();
}

// What comes first keeps its name: no folder takes that of a file or a link.
void Unpacker::makeFolders()
{
    std::unordered_set<std::string_view> taken;
    EntryData data(m_file);
    const auto ignore = [](std::string_view) {}; // some programs pack no bytes as a few
    for (const Entry &entry : m_contents.entries) {
        const bool isFolder = entry.kind == Contents::Kind::Folder;
        const std::string_view folder = isFolder ? entry.path : entryname::folderOf(entry.path);
        bool isTaken = false;
        for (auto above = folder; !above.empty() && !isTaken; above = entryname::folderOf(above))
            isTaken = taken.contains(above);
        const int error = isTaken ? ENOTDIR : m_destination.makeFolder(std::string(folder));
        if (error != 0) {
            leaveOut(entry, error);
            continue;
        }
        if (!isFolder)
            taken.insert(entry.path);
        else if (entry.size > 0 || !data.readPieces(entry, ignore))
            m_report.leftOut(Damaged, entry.path, "A folder with data");
        auto &list = isFolder ? m_folders : entry.kind == Contents::Kind::Link ? m_links : m_files;
        list.push_back(&entry);
    }
}

std::span<const Contents::Entry *const> Unpacker::takeFiles()
{
    const std::scoped_lock lock(m_mutex);
    const std::size_t begin = m_next;
    const std::size_t count = begin < m_largeCount ? 1 : filesAtATime;
    m_next = std::min(begin + count, m_files.size());
    return std::span(m_files).subspan(begin, m_next - begin);
}

void Unpacker::unpackFiles()
{
    const auto rest = std::stable_partition(
        m_files.begin(), m_files.end(), [](const Entry *file) { return file->size >= largeSize; });
    m_largeCount = static_cast<std::size_t>(rest - m_files.begin());
    const auto work = [this] {
        EntryData data(m_file);
        for (auto files = takeFiles(); !files.empty(); files = takeFiles()) {
            for (const Entry *file : files) {
                if (m_isStopped)
                    return;
                unpackFile(data, *file);
            }
        }
    };
    archive::onAllProcessors(work, [this] { m_isStopped = true; });
}

// A small file is not even made if its data is damaged.
void Unpacker::unpackFile(EntryData &data, const Entry &entry)
{
    std::optional<std::string_view> bytes;
    if (EntryData::isSmall(entry) && !(bytes = data.readWhole(entry))) {
        m_report.leftOut(Damaged, entry.path, "Its data is damaged");
        return;
    }
    const FileDescriptor file = m_destination.createFile(entry.path, entry.mode);
    if (!file.isOpen()) {
        leaveOut(entry, errno);
        return;
    }
    try {
        const auto write = [&](std::string_view part) {
            writeFully(file, part, entry);
            m_progress.add(part.size());
        };
        if (bytes)
            write(*bytes);
        else if (!data.readPieces(entry, write))
            failAs(Damaged, entry.path, "Its data is damaged");
        const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, timespec{entry.time, 0}};
        ::futimens(file.number(), times.data());
    } catch (const standin::Failure &failure) {
        m_destination.removeFile(entry.path);
        if (static_cast<int>(failure.status) != Damaged)
            throw;
        m_report.leftOut(Damaged, entry.path, "Its data is damaged");
    }
}

// All are judged before the first is made: what a link leads through must not depend on the order.
void Unpacker::makeLinks()
{
    LinkTargets targets(m_destination);
    for (const Entry *link : m_links)
        targets.add(link->path);
    std::vector<std::pair<const Entry *, std::string>> inside;
    EntryData data(m_file);
    for (const Entry *link : m_links) {
        if (const auto target = targets.read(data, *link, m_report))
            inside.emplace_back(link, *target);
    }
    for (const auto &[link, target] : inside) {
        if (const int error = m_destination.createLink(link->path, target))
            leaveOut(*link, error);
    }
}

// What lies in a folder comes before the folder, which may be closed then.
void Unpacker::finishFolders()
{
    std::ranges::sort(m_folders, std::greater(), &Entry::path);
    for (const Entry *folder : m_folders) {
        const int error = m_destination.finishFolder(folder->path, folder->mode, folder->time);
        if (error != 0)
            leaveOut(*folder, error);
    }
}
