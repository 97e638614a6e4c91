#include "StandinRatio.h"

#include "ProcessCost.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

constexpr double largestMegabytes = 20;

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

bool report(const char *name, double value, double limit, const char *unit)
{
    const bool isOk = value <= limit;
    std::printf("%-40s %6.2f of at most %5.2f %-5s  %s\n", name, value, limit, unit,
                isOk ? "ok" : "PASSED");
    std::fflush(stdout);
    return isOk;
}

// Grows only, so the last look before the end is the peak.
double peakOf(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string word;
    double kibibytes = 0;
    while (status >> word) {
        if (word == "VmHWM:")
            status >> kibibytes;
    }
    return kibibytes / 1024;
}

// Each writes a new file: replacing one makes some file systems flush it for a careless program.
ProcessCost costOf(const Command &command)
{
    for (const auto &entry : std::filesystem::directory_iterator(workFolder())) {
        if (entry.path().stem() == "result")
            std::filesystem::remove(entry.path());
    }
    return ProcessCost::ofProgram(command);
}

} // namespace

bool isWithin(const char *name, double limit, int rounds, const Command &ours, const Command &peer)
{
    std::vector<ProcessCost> ourCosts;
    std::vector<ProcessCost> peerCosts;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const bool oursFirst = round % 2 == 0;
        const auto first = costOf(oursFirst ? ours : peer);
        const auto second = costOf(oursFirst ? peer : ours);
        ourCosts.push_back(oursFirst ? first : second);
        peerCosts.push_back(oursFirst ? second : first);
        ratios.push_back(ourCosts.back().processor / peerCosts.back().processor);
    }
    const auto our = ProcessCost::median(ourCosts);
    const auto other = ProcessCost::median(peerCosts);
    const bool isOk = report(name, median(ratios), limit, "times");
    std::printf("    %.3f s against %.3f s, processor %.3f s against %.3f s\n", our.wall,
                other.wall, our.processor, other.processor);
    return isOk;
}

bool isSmall(const char *name, const Command &command)
{
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        std::exit(2);
    double megabytes = 0;
    while (waitpid(child, nullptr, WNOHANG) == 0) {
        megabytes = std::max(megabytes, peakOf(child));
        usleep(500);
    }
    return report(name, megabytes, largestMegabytes, "MB") && megabytes > 0;
}

const std::string &workFolder()
{
    struct Folder {
        std::string path = std::filesystem::temp_directory_path() / "standin-bench-XXXXXX";
        Folder()
        {
            if (!mkdtemp(path.data()))
                std::exit(2);
        }
        ~Folder() { std::filesystem::remove_all(path); }
    };
    static const Folder folder;
    return folder.path;
}
