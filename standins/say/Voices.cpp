#include "Voices.h"

#include "Failure.h"
#include "RunToEnd.h"

#include <algorithm>
#include <sstream>

namespace standin
{

// A line: priority, language, age/gender, name, file, other languages. The first has the captions.
std::optional<std::string> voiceCode(std::string_view list, std::string_view title)
{
    std::istringstream lines{std::string(list)};
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        std::istringstream columns(line);
        std::string priority;
        std::string language;
        std::string gender;
        std::string name;
        columns >> priority >> language >> gender >> name;
        std::ranges::replace(name, '_', ' ');
        if (name == title && !language.starts_with('-'))
            return language;
    }
    return std::nullopt;
}

std::string requireVoice(std::string_view title)
{
    std::string list;
    const Finished finished =
        runToEnd({.program = "espeak-ng", .package = "espeak-ng", .arguments = {"--voices"}},
                 [&list](std::string_view bytes) { list += bytes; });
    if (!finished.succeeded())
        fail("espeak-ng", finished.lastWords);
    auto code = voiceCode(list, title);
    if (!code)
        throw Failure(UsageWrong, std::string(title) + ": No such voice");
    return *code;
}

} // namespace standin
