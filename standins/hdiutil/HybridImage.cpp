#include "HybridImage.h"

#include "Checks.h"
#include "RunToEnd.h"

#include <QList>
#include <QString>

#include <unistd.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>

namespace
{

constexpr std::size_t maxVolumeNameSize = 32; // bytes

std::vector<std::string> excludedPaths(const standin::OutputFile &output)
{
    std::vector<std::string> paths = output.names();
    for (std::string &path : paths)
        path = standin::resolved(output.folder()) + '/' + path;
    return paths;
}

bool isControl(char32_t character)
{
    const auto category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Other_Format
        || category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

// xorriso says "Writing:  73728s  24.0%", in sectors of 2048 bytes, and a line later much the same
// with another estimate of the whole: the first one is kept.
void takeProgress(const std::string &line, standin::Progress &progress)
{
    std::uint64_t sectors = 0;
    double percent = 0;
    if (std::sscanf(line.c_str(), "xorriso : UPDATE : Writing: %" SCNu64 "s %lf%%", &sectors,
                    &percent)
            != 2
        || percent <= 0)
        return;
    const double done = static_cast<double>(sectors) * 2048;
    if (progress.total() == 0)
        progress.setTotal(static_cast<std::uint64_t>(done * 100 / percent));
    progress.setDone(static_cast<std::uint64_t>(done));
}

// Beside its errors xorriso says what it does, and last of all that it ends.
bool isReason(std::string_view line)
{
    if (line.find("Image write cancelled") != line.npos) // follows the reason
        return false;
    static constexpr std::string_view severities[] = {
        ": SORRY : ", ": MISHAP : ", ": FAILURE : ", ": FATAL : ", ": ABORT : "};
    return std::ranges::any_of(
        severities, [line](std::string_view severity) { return line.find(severity) != line.npos; });
}

} // namespace

std::string hybridVolumeName(const std::string &name)
{
    std::string result;
    for (const char32_t character : QString::fromStdString(name).toUcs4()) {
        if (isControl(character))
            continue;
        const bool isUtf8 = character != QChar::ReplacementCharacter;
        const auto bytes = isUtf8 ? QString::fromUcs4(&character, 1).toStdString() : "_";
        if (result.size() + bytes.size() > maxVolumeNameSize)
            break;
        result += bytes;
    }
    return result.empty() ? "Untitled" : result;
}

std::vector<std::string> hybridArguments(const std::string &source, const std::string &volumeName,
                                         const std::vector<std::string> &excluded,
                                         int outputDescriptor)
{
    // -map takes every path as it is, unlike the command emulations with their '=' and
    // patterns. Without -changes_pending an empty folder gives status 0 and no image. A file that
    // vanishes is filled with zeros and reported as SORRY, hence -return_with. Devices with 512
    // byte sectors find the HFS Plus partition only with that block size in the partition map.
    // clang-format off
    std::vector<std::string> arguments{
        "-no_rc", "-abort_on", "FAILURE", "-return_with", "SORRY", "32", "-report_about", "UPDATE",
        "-pacifier", "interval=0.2",
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
                      const standin::OutputFile &output, standin::Progress &progress)
{
    standin::Command command{.program = "xorriso", .package = "xorriso"};
    command.arguments = hybridArguments(standin::resolved(source), hybridVolumeName(volumeName),
                                        excludedPaths(output), output.descriptor());
    command.passed = {output.descriptor()};
    command.isReason = [&progress](std::string_view line) {
        takeProgress(std::string(line), progress);
        return isReason(line);
    };
    const auto finished = standin::runToEnd(command, standin::discard);
    if (!finished.succeeded())
        output.failWithWords(source, finished.lastWords);
    if (progress.total() == 0) // it was too quick to say anything
        progress.setTotal(static_cast<std::uint64_t>(::lseek(output.descriptor(), 0, SEEK_END)));
}
