#include "HfsImage.h"

#include "Failure.h"
#include "FolderPacker.h"
#include "HfsNames.h"
#include "HfsVolume.h"
#include "ImageFile.h"
#include "SourceFolder.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace
{

Exclusion exclusionOf(const standin::OutputFile &output)
{
    const std::filesystem::path target = output.target();
    const auto folder = target.has_parent_path() ? target.parent_path().string() : ".";
    struct stat status;
    if (::stat(folder.c_str(), &status) != 0)
        standin::failWithError(folder, errno);
    Exclusion exclusion{status.st_dev, status.st_ino, {target.filename().string()}};
    if (!output.temporaryPath().empty())
        exclusion.names.push_back(std::filesystem::path(output.temporaryPath()).filename());
    return exclusion;
}

void warnOfSkipped(const FolderPacker &packer)
{
    if (packer.skipped() == 0)
        return;
    std::fprintf(stderr, "hdiutil: %s: Left out, as neither file, folder nor link (%zu in all)\n",
                 packer.firstSkipped().c_str(), packer.skipped());
}

} // namespace

void writeHfsImage(standin::FileDescriptor folder, const std::string &source,
                   const std::string &volumeName, const standin::OutputFile &output)
{
    const auto status = source::statusOf(folder, source);
    hfs::ImageFile image(output.descriptor(), output.target());
    hfs::Volume volume(image, hfs::volumeName(volumeName), status.st_mode & 0777, status.st_mtime);
    FolderPacker packer(volume, image, exclusionOf(output), source);
    packer.pack(std::move(folder));
    volume.finish();
    warnOfSkipped(packer);
}
