// Converts one video into an MPEG-4 file with ffmpeg, taking the arguments of macOS's avconvert.

#include "Checks.h"
#include "ConversionArguments.h"
#include "Failure.h"
#include "OutputFile.h"
#include "Program.h"
#include "Progress.h"
#include "RunToEnd.h"
#include "Truncation.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <optional>

using namespace standin;

namespace
{

struct Job {
    const Preset *preset;
    std::string source;
    std::string output;
};

Job jobFrom(const Arguments &arguments)
{
    if (arguments.size() != 7 || arguments[0] != "--preset" || arguments[2] != "--source"
        || arguments[4] != "--output" || arguments[6] != "-q")
        throw WrongUsage();
    const Preset *preset = findPreset(arguments[1]);
    if (!preset)
        throw Failure(UsageWrong, arguments[1] + ": Unknown preset");
    return {preset, arguments[3], arguments[5]};
}

// What most files contain.
Media usualMedia()
{
    Media media;
    media.streams = {{.index = 0, .type = "video", .codec = "h264", .isComplete = true},
                     {.index = 1, .type = "audio", .codec = "aac", .isComplete = true}};
    return media;
}

Media requireMedia(const std::string &path)
{
    requireAnnouncedSize(path);
    Media media = lookInto(path);
    if (media.firstVideo() == nullptr && media.audio().empty())
        fail(path, "Holds neither picture nor sound");
    return media;
}

// ffmpeg says how much of the time it has written; the source's bytes are taken to be spread evenly
// over it.
void takeProgress(std::string_view line, double seconds, Progress &progress)
{
    constexpr std::string_view key = "out_time_us=";
    std::int64_t microseconds = 0;
    if (!line.starts_with(key) || seconds <= 0)
        return;
    line.remove_prefix(key.size());
    std::from_chars(line.data(), line.data() + line.size(), microseconds);
    const double part = std::clamp(static_cast<double>(microseconds) / 1e6 / seconds, 0.0, 1.0);
    progress.setDone(static_cast<std::uint64_t>(part * static_cast<double>(progress.total())));
}

// The encoder starts before ffprobe has reported what the file contains: starting either takes as
// long as converting some seconds of a small video. If the guess was wrong it starts once more.
Media encode(const Preset &preset, const std::string &source, const OutputFile &output,
             Progress &progress)
{
    Command command{.program = "ffmpeg", .package = "ffmpeg", .passed = {output.descriptor()}};
    command.arguments = conversionArguments(preset, usualMedia(), source, output.descriptorPath());
    std::optional<CapturedChild> encoder(std::in_place, command);
    Media media = requireMedia(source);
    auto arguments = conversionArguments(preset, media, source, output.descriptorPath());
    if (command.arguments != arguments) {
        command.arguments = std::move(arguments);
        encoder.emplace(command);
    }
    LineSplitter lines([&](std::string_view line) { takeProgress(line, media.seconds, progress); });
    const Finished finished =
        encoder->finish([&lines](std::string_view bytes) { lines.add(bytes); });
    if (!finished.succeeded())
        output.failWithWords(source, finished.lastWords);
    return media;
}

void convert(const Job &job)
{
    Progress progress;
    requireRegularFile(job.source);
    requireDifferentFiles(job.source, job.output);
    const std::string source = resolved(job.source);
    OutputFile output(job.output);
    std::error_code isGone;
    if (const auto size = std::filesystem::file_size(source, isGone); !isGone)
        progress.setTotal(size);
    const Media media = encode(*job.preset, source, output, progress);
    const auto seconds = movieSeconds(output.descriptor());
    if (!seconds)
        output.failWithWords(job.output, "Was not written to its end");
    requireAnnouncedLength(media, *seconds, source);
    output.commit();
    progress.finish();
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram("avconvert", "avconvert --preset NAME --source FILE --output FILE -q", argc,
                      argv, [](const Arguments &arguments) { convert(jobFrom(arguments)); });
}
