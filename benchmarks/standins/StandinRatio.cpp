#include "StandinRatio.h"

#include "ProcessCost.h"
#include "Turns.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

constexpr double maxMegabytes = 20;

// It only grows, so the last reading before the end is the peak.
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

// Each writes a new file: some file systems flush a file that replaces another one.
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
    const auto turns = Turns<ProcessCost>::taken(
        rounds, [&] { return costOf(ours); }, [&] { return costOf(peer); });
    return Row{.work = name,
               .figure = turns.ratio([](const ProcessCost &cost) { return cost.processor; }),
               .limit = limit,
               .detail = against(ProcessCost::median(turns.ours).processor,
                                 ProcessCost::median(turns.peers).processor, "s")}
        .print();
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
    const Row row{.work = std::string(name) + ", memory",
                  .figure = megabytes,
                  .limit = maxMegabytes,
                  .unit = "MB"};
    return row.print() && megabytes > 0;
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
