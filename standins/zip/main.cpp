// Packs the current folder into an archive, with the arguments, the contents and the statuses of
// `zip -r`. An archive that exists already is what `zip` updates.

#include "FolderPacker.h"
#include "Program.h"
#include "ZipStatus.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>
#include <optional>

using namespace standin;

namespace
{

constexpr auto usage = "zip -r ARCHIVE . -0|-1|-9 -q";

std::optional<Level> levelOf(const std::string &argument)
{
    if (argument == "-0")
        return Level::Store;
    if (argument == "-1")
        return Level::Fastest;
    return argument == "-9" ? std::optional(Level::Smallest) : std::nullopt;
}

// As zip names it.
std::string archiveName(const std::string &argument)
{
    const auto leaf = argument.rfind('/') + 1; // 0 without a slash
    return argument.find('.', leaf) == std::string::npos ? argument + ".zip" : argument;
}

bool exists(const std::string &path)
{
    struct stat status;
    return ::lstat(path.c_str(), &status) == 0;
}

// In our place: its status, its words and its end are then those of the whole run.
[[noreturn]] void update(const std::string &path, const std::string &level)
{
    const std::string archive = path.starts_with('-') ? "./" + path : path;
    for (int signal : {SIGPIPE, SIGXFSZ}) // which are ignored here, and would stay so
        std::signal(signal, SIG_DFL);
    ::execl("/usr/bin/zip", "zip", "-r", archive.c_str(), ".", level.c_str(), "-q", nullptr);
    failAs(CannotCreate, path,
           "It exists, and zip, which could update it, cannot be started: "
               + std::string(std::strerror(errno)));
}

void pack(const Arguments &arguments, archive::Report &report)
{
    Progress progress;
    if (arguments.size() != 5 || arguments[0] != "-r" || arguments[1].empty() || arguments[2] != "."
        || arguments[4] != "-q")
        throw WrongUsage();
    const auto level = levelOf(arguments[3]);
    if (!level)
        throw WrongUsage();
    const std::string path = archiveName(arguments[1]);
    if (exists(path))
        update(path, arguments[3]);
    try {
        packCurrentFolder(path, *level, report, progress);
        progress.finish();
    } catch (const std::bad_alloc &) {
        failAs(NoMemory, path, "Not enough memory");
    }
}

} // namespace

int main(int argc, char **argv)
{
    archive::Report report("zip");
    const int status = runProgram("zip", usage, argc, argv, [&report](const Arguments &arguments) {
        pack(arguments, report);
    });
    report.finish();
    return status == Success ? report.status() : status;
}
