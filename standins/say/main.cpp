// Reads a text aloud with espeak-ng or saves the speech, taking the arguments of macOS's say.

#include "AiffWriter.h"
#include "Failure.h"
#include "OutputFile.h"
#include "Program.h"
#include "Progress.h"
#include "RunToEnd.h"
#include "SpeechText.h"
#include "SpokenPart.h"
#include "Synthesiser.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

using namespace standin;

namespace
{

constexpr std::chrono::seconds soundServerTimeout{3};

struct Job {
    std::string text;
    std::string voice;
    std::string rate;
    std::optional<std::string> output;
};

std::string valueOf(const std::string &argument, std::string_view option)
{
    if (!argument.starts_with(option))
        throw WrongUsage();
    return argument.substr(option.size());
}

// The text is the first argument, whatever it begins with.
Job jobFrom(const Arguments &arguments)
{
    if (arguments.size() != 3 && arguments.size() != 4)
        throw WrongUsage();
    Job job{arguments[0], valueOf(arguments[1], "--voice="), valueOf(arguments[2], "--rate="), {}};
    if (arguments.size() == 4)
        job.output = valueOf(arguments[3], "--output-file=");
    return job;
}

void save(Speech speech, const std::string &text, const std::string &target, Progress &progress)
{
    SpokenPart spoken(text);
    speech.phonemes = progress.isWanted() ? spoken.phonemes() : -1;
    progress.setTotal(text.size());
    OutputFile file(target);
    AiffWriter aiff(file);
    std::string header;
    const auto take = [&](std::string_view bytes) {
        const auto missing = std::min(wavHeaderSize - header.size(), bytes.size());
        header += bytes.substr(0, missing);
        aiff.add(bytes.substr(missing));
        if (progress.isWanted())
            progress.setDone(static_cast<std::uint64_t>(spoken.part() * double(text.size())));
    };
    const Finished finished = runToEnd(synthesis(speech), take);
    if (!finished.succeeded())
        fail("espeak-ng", finished.lastWords);
    aiff.finish(sampleRateIn(header));
    file.commit();
    progress.finish();
}

std::string readExactly(int descriptor, std::size_t size)
{
    std::string bytes(size, '\0');
    std::size_t got = 0;
    while (got < size) {
        const auto count = ::read(descriptor, bytes.data() + got, size - got);
        if (count == 0 || (count < 0 && errno != EINTR))
            break;
        got += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    bytes.resize(got);
    return bytes;
}

bool soundServerAnswers()
try {
    const Command question{
        .program = "pactl", .package = "pulseaudio-utils", .arguments = {"info"}};
    return runToEnd(question, discard, soundServerTimeout).succeeded();
} catch (const Failure &) { // not installed: no server of ours to talk to
    return false;
}

// Through the sound server if one answers, else straight to the sound card. Both players end at
// once with a status if there is no device.
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

void play(int samples, int samplesPerSecond)
{
    const Command player = playerCommand(samples, samplesPerSecond);
    const Finished played = runToEnd(player, discard);
    if (!played.succeeded())
        fail(player.program, played.lastWords);
}

// The header is taken off the stream, then the player reads the same pipe: nothing of the sound
// passes through this program.
void readAloud(const Speech &speech)
{
    Pipe samples;
    Command command = synthesis(speech);
    command.output = samples.writeEnd.number();
    Child synthesiser(command);
    samples.writeEnd.close();
    const std::string header = readExactly(samples.readEnd.number(), wavHeaderSize);
    if (!header.empty())
        play(samples.readEnd.number(), sampleRateIn(header));
    if (const ChildEnd end = synthesiser.wait(); !end.succeeded())
        fail("espeak-ng", "Ended with " + end.text());
}

void speak(const Job &job)
{
    Progress progress;
    const auto rate = speakingRate(job.rate);
    if (!rate)
        throw Failure(UsageWrong, job.rate + ": Not a speaking rate");
    const std::string text = speakableText(job.text);
    Speech speech{textFile(text), voiceCode(job.voice), *rate};
    if (job.output)
        save(std::move(speech), text, *job.output, progress);
    else if (!text.empty())
        readAloud(speech);
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram("say", "say TEXT --voice=VOICE --rate=RATE [--output-file=FILE]", argc, argv,
                      [](const Arguments &arguments) { speak(jobFrom(arguments)); });
}
