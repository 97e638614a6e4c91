#include "Log.h"

#include <unistd.h>

#include <array>
#include <chrono>
#include <ctime>
#include <string>

namespace
{

/// "2026-11-23T10:43:25.057Z ". The seconds are kept: there are many lines in one.
std::string now()
{
    using namespace std::chrono;
    thread_local std::time_t last = -1;
    thread_local std::array<char, 24> text{};
    const auto time = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(time);
    if (seconds != last) {
        std::tm parts{};
        gmtime_r(&seconds, &parts);
        std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S.", &parts);
        last = seconds;
    }
    const auto milli = duration_cast<milliseconds>(time.time_since_epoch()).count() % 1000;
    return text.data() + std::to_string(1000 + milli).substr(1) + "Z ";
}

} // namespace

void logLine(std::string_view text)
{
    const std::string line = now().append(text).append("\n");
    // One call, so that lines of several threads do not mix. What cannot be written is lost.
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
}
