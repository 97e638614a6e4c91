#include "FolderPacker.h"

#include "ArchiveWriter.h"
#include "Budget.h"
#include "FolderWalk.h"
#include "NewArchive.h"
#include "Packer.h"
#include "ProcessorThreads.h"
#include "TurnQueue.h"
#include "TurnSource.h"
#include "ZipStatus.h"

#include <malloc.h>

#include <utility>

namespace
{

constexpr std::size_t megabyte = 1 << 20;

// What all turns in progress may take: 64 MB and 48 MB for each thread are the limit for the whole
// program, less the thread's own buffers and what the directory and the program itself need.
std::size_t memoryForTurns(unsigned threads)
{
    constexpr std::size_t own = 20 * megabyte;
    constexpr std::size_t eachThread = 48 * megabyte - 4 * megabyte;
    return 64 * megabyte - own + threads * eachThread;
}

// What there is to pack. It must not take so many descriptors that the packing itself has too few.
std::uint64_t contentSize(const std::stop_token &stop)
{
    constexpr std::size_t maxLevels = 100;
    archive::Report report("zip", archive::Report::Lines::Hidden);
    FolderWalk walk(report, maxLevels);
    std::uint64_t size = 0;
    while (const auto item = walk.next()) {
        if (item->folder)
            size += static_cast<std::uint64_t>(item->status.st_size);
        if (stop.stop_requested())
            break;
    }
    return stop.stop_requested() || report.status() != 0 ? 0 : size; // not all of it: no total
}

} // namespace

void packCurrentFolder(const std::string &target, Level level, archive::Report &report,
                       standin::Progress &progress)
{
    ::mallopt(M_MMAP_THRESHOLD, 128 * 1024); // fixed, so that larger buffers go back at once
    FolderWalk walk(report);
    Budget budget(memoryForTurns(archive::processorCount()));
    TurnSource source(walk, budget, report);
    NewArchive archive(target);
    walk.passOver(archive.status());
    ArchiveWriter writer(archive);
    TurnQueue queue(writer, budget);

    const auto counting = progress.countBeside(contentSize);
    archive::onAllProcessors(
        [&] {
            Packer packer(level, report);
            while (auto turn = source.next(packer.input())) {
                const auto [number, reserved] = std::pair(turn->number, turn->reserved);
                PackedTurn packed = packer.pack(std::move(*turn));
                progress.add(packed.size);
                queue.put(number, std::move(packed), reserved);
            }
        },
        [&budget] { budget.close(); });

    if (writer.entryCount() > 0)
        writer.publish();
    else if (report.status() == 0)
        failAs(NothingToDo, ".", "Nothing to do");
}
