// Unpacks the archive that is named, and no other, on all processors and only into its folder.

#include "Checks.h"
#include "Contents.h"
#include "Destination.h"
#include "OtherProgram.h"
#include "Program.h"
#include "Unpacker.h"
#include "UnzipStatus.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>

#include <cerrno>
#include <limits>
#include <new>

using namespace standin;

namespace
{

// What its files say that they will take, held to the largest number.
std::uint64_t sizeOf(const Contents &contents)
{
    std::uint64_t sum = 0;
    for (const Contents::Entry &entry : contents.entries)
        sum += std::min(entry.size, std::numeric_limits<std::uint64_t>::max() - sum);
    return sum;
}

int unpack(const ArchiveFile &file, const std::string &folder, archive::Report &report,
           Progress &progress)
{
    const Contents contents = Contents::read(file, report);
    if (contents.entries.empty() && report.status() == 0)
        report.leftOut(SomethingLeftOut, file.path, "The archive is empty");
    Destination destination(folder);
    progress.setTotal(sizeOf(contents));
    if (sizeOf(contents) > destination.room())
        failAs(NoRoom, folder, "No space left on device for what the archive holds");
    if (contents.isEncrypted || contents.hasUnknownMethod)
        return unpackWithOtherProgram(file, contents, destination, folder, report);
    Unpacker(file, contents, destination, report, progress).unpack();
    progress.finish();
    return report.status();
}

int unpack(const std::string &archive, const std::string &folder, archive::Report &report)
{
    Progress progress;
    ::mallopt(M_MMAP_THRESHOLD, 128 * 1024); // fixed, so that larger buffers go back at once
    requireRegularFile(archive);
    const FileDescriptor file(::open(archive.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        failWithError(archive, errno);
    try {
        return unpack({file.number(), static_cast<std::uint64_t>(status.st_size), archive}, folder,
                      report, progress);
    } catch (const std::bad_alloc &) {
        failAs(NoMemory, archive, "Not enough memory");
    }
}

} // namespace

int main(int argc, char **argv)
{
    archive::Report report("unzip");
    int result = Success;
    const auto work = [&](const Arguments &arguments) {
        if (arguments.size() != 4 || arguments[0] != "-q" || arguments[2] != "-d")
            throw WrongUsage();
        result = unpack(arguments[1], arguments[3], report);
    };
    const int status = runProgram("unzip", "unzip -q ARCHIVE -d FOLDER", argc, argv, work);
    report.finish();
    return status == Success ? result : status;
}
