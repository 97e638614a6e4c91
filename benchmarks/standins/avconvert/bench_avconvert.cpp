// Compares a conversion with the bare ffmpeg call with the same settings.
#include "ConversionArguments.h"
#include "ProcessCost.h"
#include "StandinRatio.h"

namespace
{

Command ours(const std::string &preset, const std::string &source, const std::string &output)
{
    return {TOOLVANE_AVCONVERT, "--preset", preset, "--source", source, "--output", output, "-q"};
}

Command bare(const std::string &preset, const std::string &source, const std::string &output)
{
    Command line{"/usr/bin/ffmpeg"};
    const auto arguments = standin::conversionArguments(*standin::findPreset(preset),
                                                        standin::lookInto(source), source, output);
    line.insert(line.end(), arguments.begin(), arguments.end());
    return line;
}

} // namespace

int main()
{
    const std::string source = workFolder() + "/source.mp4";
    ProcessCost::ofProgram({"/usr/bin/ffmpeg", "-v", "error", "-nostdin", "-f", "lavfi", "-i",
                            "testsrc2=s=1280x720:d=30", "-f", "lavfi", "-i", "sine=d=30", "-preset",
                            "ultrafast", source});
    bool good = isWithin("30 s of 720p into 640x480", 1.05, 5,
                         ours("Preset640x480", source, workFolder() + "/result.m4v"),
                         bare("Preset640x480", source, workFolder() + "/result.m4v"));
    good &= isSmall("avconvert", ours("PresetMediumQuality", source, workFolder() + "/result.m4v"));
    return good ? 0 : 1;
}
