// Unpacks the archive that is named, and no other. The system's unzip does the work, but it reads
// an archive's name as a pattern ("photos[1].zip" unpacks "photos1.zip" if that stands beside it),
// and where "x.zip" is missing or broken it takes "x.zip.zip". So it gets the open file itself.

#include "Checks.h"
#include "Child.h"
#include "Failure.h"
#include "FileDescriptor.h"
#include "Program.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

using namespace standin;

namespace
{

void unpack(const std::string &archive, const std::string &folder)
{
    requireRegularFile(archive);
    const std::string unzip = findProgram("unzip", "unzip");
    const FileDescriptor file(::open(archive.c_str(), O_RDONLY)); // which unzip keeps open
    if (!file.isOpen())
        failWithError(archive, errno);
    const std::string opened = "/proc/self/fd/" + std::to_string(file.number());
    // In our place: its status, its words and its end are then those of the whole run.
    ::execl(unzip.c_str(), unzip.c_str(), "-q", opened.c_str(), "-d", folder.c_str(), nullptr);
    failWithError(unzip, errno);
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram("unzip", "unzip -q ARCHIVE -d FOLDER", argc, argv,
                      [](const Arguments &arguments) {
                          if (arguments.size() != 4 || arguments[0] != "-q" || arguments[2] != "-d")
                              throw WrongUsage();
                          unpack(arguments[1], arguments[3]);
                      });
}
