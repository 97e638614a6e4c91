#include "Log.h"

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>

namespace
{

std::string now()
{
    using namespace std::chrono;
    const auto time = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(time);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 40> text;
    const std::size_t length =
        std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &parts);
    const auto milli = duration_cast<milliseconds>(time.time_since_epoch()).count() % 1000;
    std::snprintf(text.data() + length, text.size() - length, ".%03dZ ", int(milli));
    return text.data();
}

} // namespace

void logLine(std::string_view text)
{
    const std::string line = now().append(text).append("\n");
    // One call, so that lines of several threads do not mix. What cannot be written is lost.
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
}
