#include "HybridImage.h"

#include "Checks.h"
#include "Failure.h"
#include "RunToEnd.h"
#include "Utf8.h"

#include <unicode/uchar.h>

#include <filesystem>

namespace
{

constexpr std::size_t longestVolumeName = 32;

std::vector<std::string> excludedPaths(const standin::OutputFile &output)
{
    const std::filesystem::path target = output.target();
    const auto folder =
        standin::resolved(target.has_parent_path() ? target.parent_path().string() : ".");
    std::vector<std::string> paths{folder / target.filename()};
    if (!output.temporaryPath().empty())
        paths.push_back(folder / std::filesystem::path(output.temporaryPath()).filename());
    return paths;
}

} // namespace

std::string hybridVolumeName(std::string_view name)
{
    std::string result;
    while (!name.empty()) {
        const auto character = firstCharacter(name);
        name.remove_prefix(character.bytes.size());
        if (character.code && u_iscntrl(static_cast<UChar32>(*character.code)))
            continue;
        const auto text = character.code ? character.bytes : "_";
        if (result.size() + text.size() > longestVolumeName)
            break;
        result += text;
    }
    return result.empty() ? "Untitled" : result;
}

std::vector<std::string> hybridArguments(const std::string &source, const std::string &volumeName,
                                         const std::vector<std::string> &excluded,
                                         int outputDescriptor)
{
    // -map takes every path as it stands, unlike the command emulations with their '=' and
    // patterns. Without -changes_pending an empty folder gives status 0 and no image. A file that
    // vanishes is filled with zeros and reported as SORRY, hence -return_with. Devices with 512
    // byte sectors find the HFS Plus partition only with that block size in the partition map.
    // clang-format off
    std::vector<std::string> arguments{
        "-no_rc", "-abort_on", "FAILURE", "-return_with", "SORRY", "32", "-report_about", "SORRY",
        "-in_charset", "UTF-8", "-out_charset", "UTF-8",
        "-disk_pattern", "off", "-iso_rr_pattern", "off", "-pathspecs", "off", "-follow", "mount",
        "-hfsplus", "on", "-joliet", "on",
        "-compliance", "iso_9660_level=3:joliet_long_names:joliet_long_paths:joliet_utf16",
        "-boot_image", "any", "apm_block_size=512",
        "-volid", volumeName, "-publisher", "",
        "-outdev", "stdio:/dev/fd/" + std::to_string(outputDescriptor),
        "-not_paths"};
    arguments.insert(arguments.end(), excluded.begin(), excluded.end());
    arguments.insert(arguments.end(), {
        "--", "-map", source, "/", "-uid", "0", "-gid", "0",
        "-find", "/", "-type", "d", "-exec", "chmod", "a+rx", "--",
        "-find", "/", "-type", "f", "-exec", "chmod", "a+r", "--",
        "-changes_pending", "yes", "-commit_eject", "all", "-end"});
    // clang-format on
    return arguments;
}

void writeHybridImage(const std::string &source, const std::string &volumeName,
                      const standin::OutputFile &output)
{
    standin::Command command;
    command.program = "xorriso";
    command.package = "xorriso";
    command.arguments = hybridArguments(standin::resolved(source), hybridVolumeName(volumeName),
                                        excludedPaths(output), output.descriptor());
    command.passed = {output.descriptor()};
    command.hollowWords = "Image write cancelled"; // follows the reason
    const auto finished = standin::runToEnd(command, [](std::string_view) {});
    if (!finished.succeeded())
        output.failWithWords(source, finished.lastWords);
}
