#include "Player.h"

#include "Failure.h"
#include "RunToEnd.h"

namespace standin
{

namespace
{

bool soundServerAnswers()
try {
    const Command question{
        .program = "pactl", .package = "pulseaudio-utils", .arguments = {"info"}};
    return runToEnd(
               question, [](std::string_view) {}, std::chrono::seconds(3))
        .succeeded();
} catch (const Failure &) { // not installed: no server of ours to talk to
    return false;
}

} // namespace

Command playerCommand(int samples, int samplesPerSecond)
{
    const std::string rate = std::to_string(samplesPerSecond);
    if (soundServerAnswers()) {
        return {.program = "paplay",
                .package = "pulseaudio-utils",
                .arguments = {"--raw", "--rate=" + rate, "--channels=1", "--format=s16le"},
                .input = samples};
    }
    return {.program = "aplay",
            .package = "alsa-utils",
            .arguments = {"-q", "-t", "raw", "-f", "S16_LE", "-r", rate, "-c", "1", "-"},
            .input = samples};
}

} // namespace standin
