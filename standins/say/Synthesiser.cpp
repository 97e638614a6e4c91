#include "Synthesiser.h"

#include "Failure.h"
#include "RunToEnd.h"

#include <QByteArrayList>
#include <QtEndian>

#include <sys/mman.h>

#include <cerrno>

namespace standin
{

namespace
{

constexpr int usualSampleRate = 22050;

std::string listOfVoices()
{
    std::string list;
    const Finished finished =
        runToEnd({.program = "espeak-ng", .package = "espeak-ng", .arguments = {"--voices"}},
                 [&list](std::string_view bytes) { list += bytes; });
    if (!finished.succeeded())
        fail("espeak-ng", finished.lastWords);
    return list;
}

bool isMonoPcm16(std::string_view header)
{
    const auto number = [header](std::size_t offset) {
        return qFromLittleEndian<quint16>(header.data() + offset);
    };
    return header.size() == wavHeaderSize && header.starts_with("RIFF")
        && header.substr(8, 8) == "WAVEfmt " && header.substr(36, 4) == "data" && number(20) == 1
        && number(22) == 1 && number(34) == 16;
}

} // namespace

FileDescriptor textFile(std::string_view text)
{
    FileDescriptor file(::memfd_create("text", MFD_CLOEXEC));
    if (::write(file.number(), text.data(), text.size()) != static_cast<ssize_t>(text.size())
        || ::lseek(file.number(), 0, SEEK_SET) != 0)
        failWithError("text", errno);
    return file;
}

// A line: priority, language, age/gender, name with blanks as underscores, file, other languages.
// The first has the captions.
std::string voiceCode(const std::string &title)
{
    const auto list = QByteArray::fromStdString(listOfVoices());
    for (const QByteArray &line : list.split('\n').mid(1)) {
        QByteArrayList columns = line.simplified().split(' ');
        if (columns.size() > 3 && columns[3].replace('_', ' ').toStdString() == title
            && !columns[1].startsWith('-'))
            return columns[1].toStdString();
    }
    throw Failure(UsageWrong, title + ": No such voice");
}

Command synthesis(const Speech &speech)
{
    Command command{.program = "espeak-ng",
                    .package = "espeak-ng",
                    .arguments = {"-b", "1", "-v", speech.voice, "-s", std::to_string(speech.rate),
                                  "--stdin", "--stdout"},
                    .input = speech.text.number()};
    if (speech.phonemes >= 0) {
        const std::string file = "--phonout=/dev/fd/" + std::to_string(speech.phonemes);
        command.arguments.insert(command.arguments.end(), {"-x", file});
        command.passed = {speech.phonemes};
    }
    return command;
}

int sampleRateIn(std::string_view header)
{
    if (header.empty())
        return usualSampleRate;
    const auto rate = isMonoPcm16(header) ? qFromLittleEndian<quint32>(header.data() + 24) : 0;
    if (rate < 4000 || rate > 192000)
        fail("espeak-ng", "Gives no sound that is understood here");
    return static_cast<int>(rate);
}

} // namespace standin
