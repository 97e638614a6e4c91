#include "OtherProgram.h"

#include "Child.h"
#include "LinkTargets.h"
#include "UnzipStatus.h"

#include <algorithm>

namespace
{

constexpr int noTerminal = 5; // unzip's, if it could not ask for a password

bool isKnown(const Contents::Entry &entry)
{
    return entry.method == 0 || entry.method == 8;
}

bool isHarmless(const ArchiveFile &file, const Contents &contents, const Destination &destination,
                archive::Report &report)
{
    LinkTargets targets(destination);
    EntryData data(file);
    for (const Contents::Entry &entry : contents.entries) {
        if (entry.kind == Contents::Kind::Link)
            targets.add(entry.path);
    }
    return std::ranges::all_of(contents.entries, [&](const Contents::Entry &entry) {
        if (entry.kind != Contents::Kind::Link)
            return !destination.isLink(entry.path);
        return isKnown(entry) && targets.read(data, entry, report);
    });
}

} // namespace

int unpackWithOtherProgram(const ArchiveFile &file, const Contents &contents,
                           const Destination &destination, const std::string &folder,
                           archive::Report &report)
{
    if (report.status() != 0 || !isHarmless(file, contents, destination, report))
        failAs(Damaged, file.path,
               "It needs another program, which could be led out of the folder");
    const UnzipStatus reason = contents.isEncrypted ? PasswordNeeded : MethodUnknown;
    try {
        standin::Child unzip(
            {.program = "unzip",
             .package = "unzip",
             .arguments = {"-q", "/proc/self/fd/" + std::to_string(file.descriptor), "-d", folder},
             .passed = {file.descriptor}});
        const standin::ChildEnd end = unzip.wait();
        const int status = end.status == noTerminal || end.signal != 0 ? reason : end.status;
        if (status != 0) // it is silent about some
            report.leftOut(status, file.path, "unzip did not unpack all of it");
        return status;
    } catch (const standin::Failure &failure) {
        failAs(reason, file.path, failure.what());
    }
}
