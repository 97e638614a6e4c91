// Compares packing and unpacking with the system's programs on the same tree, in turns and in the
// same run, with warm caches and on two processors. The tree is made from files of every build
// machine. All of it is in /dev/shm, so that no disk is measured: 8 GB of memory, ten minutes.
// Clock time counts only on a machine with two cores and no other load. The exit status is 1 if a
// figure is over its limit.
//   bench_archives [WORD]   only rows with the word in their name

#include "ProcessCost.h"
#include "Row.h"
#include "Turns.h"

#include <sched.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

namespace fs = std::filesystem;

namespace
{

using Command = std::vector<std::string>;

constexpr double megabyte = 1e6;

void shell(const std::string &script)
{
    if (std::system(script.c_str()) != 0) {
        std::fprintf(stderr, "cannot prepare: %s\n", script.c_str());
        std::exit(2);
    }
}

bool isQuiet()
{
    double load = 0;
    return getloadavg(&load, 1) == 1 && load < 0.5 && std::thread::hardware_concurrency() >= 2;
}

// The memory limits are for two processors.
void useTwoProcessors()
{
    cpu_set_t all;
    cpu_set_t two;
    CPU_ZERO(&two);
    sched_getaffinity(0, sizeof all, &all);
    for (std::size_t i = 0; i < CPU_SETSIZE && CPU_COUNT(&two) < 2; ++i) {
        if (CPU_ISSET(i, &all))
            CPU_SET(i, &two);
    }
    sched_setaffinity(0, sizeof two, &two);
}

double anonymousMemory(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string word;
    double kibibytes = 0;
    while (status >> word) {
        if (word == "RssAnon:")
            status >> kibibytes;
    }
    return kibibytes * 1024 / megabyte;
}

// The peak memory of the program itself.
double peakOf(const Command &command)
{
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        std::exit(2);
    double peak = 0;
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        peak = std::max(peak, anonymousMemory(child));
        usleep(500);
    }
    return status == 0 ? peak : HUGE_VAL;
}

class ArchiveBench
{
public:
    explicit ArchiveBench(std::string only) : m_only(std::move(only))
    {
        fs::create_directories(m_folder);
    }
    ~ArchiveBench() { fs::remove_all(m_folder); }
    ArchiveBench(const ArchiveBench &) = delete;
    ArchiveBench &operator=(const ArchiveBench &) = delete;

    void makeTree();
    void comparePacking();
    void comparePeers();
    void compareUnpacking();
    void compareLargeFile();
    void limitMemory();
    bool passed() const { return m_passed; }

private:
    using Costs = Turns<ProcessCost>;

    std::string path(const std::string &name) const { return m_folder / name; }
    static Command pack(const char *program, const std::string &folder, const std::string &archive,
                        const char *level)
    {
        return {"env", "-C", folder, program, "-r", archive, ".", level, "-q"};
    }
    Costs take(int rounds, const Command &ours, const Command &peer) const;
    void processor(const std::string &work, const Costs &costs, double limit);
    void clock(const std::string &work, const Costs &costs, double limit);
    void print(const Row &row) { m_passed = !row.print() || m_passed; }
    bool isWanted(const std::string &name) const { return name.find(m_only) != name.npos; }

    std::string m_only;
    fs::path m_folder = "/dev/shm/archives-" + std::to_string(getpid());
    const bool m_quiet = isQuiet();
    bool m_passed = false;
};

void ArchiveBench::makeTree()
{
    // Files that cannot be read and links that lead nowhere are missing for both sides.
    shell("mkdir -p " + path("tree/program") + "; cd " + path("tree")
          + " && for folder in /usr/include /usr/share/doc; do cp -rL $folder . 2>/dev/null; done; "
            "cp -L $(gcc -print-prog-name=cc1plus) $(ls /usr/lib/*/libicudata.so.?? | head -1) "
            "program/");
    shell("echo \"Tree: $(find " + path("tree")
          + " -type f | wc -l) files, $(du -sm --apparent-size " + path("tree")
          + " | cut -f 1) MB\" >&2");
}

ArchiveBench::Costs ArchiveBench::take(int rounds, const Command &ours, const Command &peer) const
{
    const auto cost = [this](const char *result, const Command &command) {
        fs::remove_all(path(result));
        return ProcessCost::ofProgram(command);
    };
    return Costs::taken(
        rounds,
        [&] {
            fs::remove(path("ours.zip"));
            return cost("ours", ours);
        },
        [&] {
            fs::remove(path("peer.zip"));
            return cost("peer", peer);
        });
}

void ArchiveBench::processor(const std::string &work, const Costs &costs, double limit)
{
    print({.work = work + ", processor",
           .figure = costs.ratio([](const ProcessCost &cost) { return cost.processor; }),
           .limit = limit,
           .detail = against(ProcessCost::median(costs.ours).processor,
                             ProcessCost::median(costs.peers).processor, "s")});
}

void ArchiveBench::clock(const std::string &work, const Costs &costs, double limit)
{
    print({.work = work + ", clock",
           .figure = costs.ratio([](const ProcessCost &cost) { return cost.wall; }),
           .limit = limit,
           .detail = against(ProcessCost::median(costs.ours).wall,
                             ProcessCost::median(costs.peers).wall, "s"),
           .excuse = m_quiet ? "" : "machine busy"});
}

void ArchiveBench::comparePacking()
{
    struct Case {
        const char *name, *level;
        int rounds;
        double processor, clock, size; // limits, 0 for none
    };
    for (const Case &limits : {Case{"pack, fastest", "-1", 5, 0.55, 0.40, 1.00},
                               Case{"pack, smallest", "-9", 3, 0.60, 0.35, 1.01},
                               Case{"pack, store", "-0", 7, 0, 0.90, 0}}) {
        if (!isWanted(limits.name))
            continue;
        const auto costs =
            take(limits.rounds, pack(TOOLVANE_ZIP, path("tree"), path("ours.zip"), limits.level),
                 pack("/usr/bin/zip", path("tree"), path("peer.zip"), limits.level));
        if (limits.processor > 0)
            processor(limits.name, costs, limits.processor);
        clock(limits.name, costs, limits.clock);
        const auto ours = double(fs::file_size(path("ours.zip"))) / megabyte;
        const auto peer = double(fs::file_size(path("peer.zip"))) / megabyte;
        if (limits.size > 0)
            print({.work = std::string(limits.name) + ", size",
                   .figure = ours / peer,
                   .limit = limits.size,
                   .detail = against(ours, peer, "MB")});
    }
}

// Each has two processors as well.
void ArchiveBench::comparePeers()
{
    const std::string name = "pack, fastest, beside ";
    if (!isWanted(name))
        return;
    const Command ours = pack(TOOLVANE_ZIP, path("tree"), path("ours.zip"), "-1");
    const Command sevenZip{"env",   "-C",    path("tree"),     "7z", "a", "-tzip", "-mx1",
                           "-bso0", "-mmt2", path("peer.zip"), "."};
    const Command bsdtar{"bsdtar", "-C", path("tree"), "-a", "-cf", path("peer.zip"), "."};
    const Costs one = take(3, ours, sevenZip);
    const Costs other = take(3, ours, bsdtar);
    const bool isFirst =
        ProcessCost::median(one.peers).wall < ProcessCost::median(other.peers).wall;
    clock(name + (isFirst ? "7z -mx1" : "bsdtar"), isFirst ? one : other, 0.60);
}

void ArchiveBench::compareUnpacking()
{
    if (!isWanted("unpack"))
        return;
    fs::remove(path("packed.zip"));
    ProcessCost::ofProgram(pack(TOOLVANE_ZIP, path("tree"), path("packed.zip"), "-1"));
    const auto costs = take(7, {TOOLVANE_UNZIP, "-q", path("packed.zip"), "-d", path("ours")},
                            {"/usr/bin/unzip", "-q", path("packed.zip"), "-d", path("peer")});
    processor("unpack", costs, 0.80);
    clock("unpack", costs, 0.65);
}

void ArchiveBench::compareLargeFile()
{
    if (!isWanted("2 GB"))
        return;
    shell("mkdir -p " + path("large") + "; for i in 1 2 3 4 5 6 7 8; do find " + path("tree")
          + " -type f -exec cat {} +; done 2>/dev/null | head -c 2000000000 >"
          + path("large/file"));
    const auto costs = take(3, pack(TOOLVANE_ZIP, path("large"), path("ours.zip"), "-1"),
                            pack("/usr/bin/zip", path("large"), path("peer.zip"), "-1"));
    clock("pack, one file of 2 GB", costs, 0.60);
    const auto limit = [this](const char *work, const Command &command) {
        print({.work = work, .figure = peakOf(command), .limit = 160, .unit = "MB"});
    };
    fs::remove(path("ours.zip"));
    limit("pack, one file of 2 GB, memory",
          pack(TOOLVANE_ZIP, path("large"), path("ours.zip"), "-9"));
    fs::remove_all(path("large"));
    limit("unpack, one file of 2 GB, memory",
          {TOOLVANE_UNZIP, "-q", path("ours.zip"), "-d", path("large")});
    fs::remove_all(path("large"));
}

void ArchiveBench::limitMemory()
{
    if (!isWanted("100,000"))
        return;
    for (int i = 0; i < 100'000; ++i) {
        const fs::path folder = m_folder / "many" / std::to_string(i / 500);
        if (i % 500 == 0)
            fs::create_directories(folder);
        std::ofstream(folder / ("file number " + std::to_string(i)))
            << "content " << i << ", some more content, content";
    }
    fs::remove(path("ours.zip"));
    print({.work = "pack, 100,000 files, memory",
           .figure = peakOf(pack(TOOLVANE_ZIP, path("many"), path("ours.zip"), "-1")),
           .limit = 160,
           .unit = "MB"});
    print({.work = "unpack, 100,000 files, memory",
           .figure = peakOf({TOOLVANE_UNZIP, "-q", path("ours.zip"), "-d", path("ours")}),
           .limit = 160,
           .unit = "MB"});
}

} // namespace

int main(int argc, char **argv)
{
    useTwoProcessors();
    ArchiveBench bench(argc > 1 ? argv[1] : "");
    bench.makeTree();
    bench.comparePacking();
    bench.comparePeers();
    bench.compareUnpacking();
    bench.compareLargeFile();
    bench.limitMemory();
    return bench.passed() ? 1 : 0;
}
