// Archives come from anywhere: no bytes may crash the readers of their structure, names and data,
// make them take memory beyond their limits, or bring out a name that leads out of the folder.

#include "Contents.h"
#include "EntryData.h"
#include "EntryName.h"
#include "Failure.h"
#include "Report.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

namespace
{

void readData(const ArchiveFile &file, const Contents &contents)
{
    EntryData data(file);
    const auto ignore = [](std::string_view) {};
    for (const Contents::Entry &entry : contents.entries) {
        if (entryname::below(entry.path) != entry.path)
            std::abort();
        if (entry.method != 0 && entry.method != 8)
            continue;
        const bool isWhole = data.readPieces(entry, ignore);
        if (EntryData::isSmall(entry) && data.readWhole(entry).has_value() != isWhole)
            std::abort(); // one of the two is wrong
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const ArchiveFile file{::memfd_create("archive", MFD_CLOEXEC), size, "archive"};
    if (file.descriptor < 0 || ::write(file.descriptor, bytes, size) != ssize_t(size))
        std::abort();
    archive::Report report("fuzz", archive::Report::Lines::Hidden);
    try {
        readData(file, Contents::read(file, report));
    } catch (const standin::Failure &) {
        // What it is for.
    }
    ::close(file.descriptor);
    return 0;
}
