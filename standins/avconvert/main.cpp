// Converts one video into an MPEG-4 file with ffmpeg, taking the arguments of macOS's avconvert.

#include "Checks.h"
#include "ConversionArguments.h"
#include "Failure.h"
#include "OutputFile.h"
#include "Program.h"
#include "RunToEnd.h"
#include "Truncation.h"

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

void convert(const Job &job)
{
    requireRegularFile(job.source);
    requireDifferentFiles(job.source, job.output);
    const std::string source = resolved(job.source);
    OutputFile output(job.output);

    requireAnnouncedSize(source);
    const Media media = lookInto(source);
    if (!media.firstVideo() && media.audio().empty())
        fail(job.source, "Holds neither picture nor sound");
    const Finished finished = runToEnd(
        {.program = "ffmpeg",
         .package = "ffmpeg",
         .arguments = conversionArguments(*job.preset, media, source, output.descriptorPath()),
         .passed = {output.descriptor()}},
        [](std::string_view) {});
    if (!finished.succeeded())
        fail(job.source, finished.lastWords);
    requireAnnouncedLength(media, lookInto(output.descriptorPath(), output.descriptor()),
                           job.source);
    output.commit();
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram("avconvert", "avconvert --preset NAME --source FILE --output FILE -q", argc,
                      argv, [](const Arguments &arguments) { convert(jobFrom(arguments)); });
}
