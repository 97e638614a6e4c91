// Packs a folder into a disk image, taking the arguments of macOS's hdiutil.

#include "Failure.h"
#include "HfsImage.h"
#include "HybridImage.h"
#include "Program.h"
#include "Progress.h"
#include "SourceFolder.h"

#include <algorithm>

using namespace standin;

namespace
{

// The one order of arguments, null for a value. What is in a value's place is that value, whatever
// it begins with.
constexpr const char *form[] = {"makehybrid", "-o",  nullptr,  "-default-volume-name",
                                nullptr,      "-ov", "-quiet", nullptr};

bool fits(const Arguments &arguments)
{
    return std::ranges::equal(arguments, form, [](const std::string &argument, const char *word) {
        return word == nullptr || argument == word;
    });
}

void makeImage(Arguments arguments)
{
    Progress progress;
    const bool isHfs = arguments.size() > 1 && arguments[1] == "-hfs";
    if (isHfs)
        arguments.erase(arguments.begin() + 1);
    if (!fits(arguments))
        throw WrongUsage();
    const std::string &volumeName = arguments[4];
    const std::string &path = arguments[7];
    FileDescriptor folder = source::openRoot(path);
    OutputFile output(arguments[2]);
    if (isHfs)
        writeHfsImage(std::move(folder), path, volumeName, output, progress);
    else
        writeHybridImage(path, volumeName, output, progress);
    output.commit();
    progress.finish();
}

} // namespace

int main(int argc, char **argv)
{
    const char *usage =
        "hdiutil makehybrid [-hfs] -o IMAGE -default-volume-name NAME -ov -quiet FOLDER";
    return runProgram("hdiutil", usage, argc, argv, makeImage);
}
