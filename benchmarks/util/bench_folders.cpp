// Compares measuring and removing folders with "du -slb" and "rm -rf" on the same trees, in turns
// and in the same run. Every figure is a median minus the cost of an empty folder. The exit status
// is 1 if a figure is over its limit.
//   bench_folders [--million] [--calls] [TREE]
// --million: also a million files; --calls: also counts system calls with strace; TREE: only trees
// with TREE in their name
// Small trees are in TMPDIR, mostly on a disk, large ones in /dev/shm, which takes up to 6 GB.
// Clock time counts only on an idle machine with two cores. In one flat folder nearly all
// the time is spent in the system: if even the bare calls cost more than the limit, a figure within
// a twentieth of theirs is excused.

#include "FolderRemoval.h"
#include "FolderSize.h"
#include "ProcessCost.h"
#include "Row.h"
#include "SizeFloor.h"
#include "Trees.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <thread>

namespace
{

using Costs = std::vector<ProcessCost>;

struct Limits {
    double processor = 0;
    double wall = 0; ///< 0 if more than one thread cannot help.
    bool isFlat = false; ///< One folder has everything, so the bare calls can be measured, too.
};

struct Tree {
    const char *name;
    std::function<void(const std::string &)> make;
    int sizeRounds;
    int removalRounds;
    Limits size;
    Limits removal;
};

class FolderBench
{
public:
    FolderBench(std::string folder, std::string only)
        : m_folder(std::move(folder)), m_only(std::move(only))
    {
        Trees::makeFlat(m_folder + "/empty", 0);
        double load = 0;
        m_quiet =
            getloadavg(&load, 1) == 1 && load < 0.5 && std::thread::hardware_concurrency() >= 2;
    }

    void compareSize(const char *name, const std::string &path, int rounds, const Limits &limits);
    void compareRemoval(const Tree &tree);
    void run(const Tree &tree);
    void removalMemory(int files);
    void countCalls();
    void limitMemory(const char *name, double megabytes, double limit);
    double sizeMemory() const { return m_sizeMemory; }
    bool passed() const { return m_passed; }

private:
    void report(const std::string &work, const Costs &ours, const Costs &peer, const Costs &floor,
                const Limits &limits);
    void print(const Row &row) { m_passed = !row.print() || m_passed; }
    std::string floorExcuse(double figure, const Limits &limits, const Costs &floor,
                            double peer) const;

    bool isWanted(const std::string &name) const { return name.find(m_only) != name.npos; }

    std::string m_folder;
    std::string m_only;
    bool m_quiet = false;
    bool m_passed = false;
    double m_sizeMemory = 0;
};

// In a process of its own, like the peers.
const std::string &self()
{
    static const std::string path = std::filesystem::read_symlink("/proc/self/exe");
    return path;
}

ProcessCost sizeCost(const std::string &path)
{
    return ProcessCost::ofProgram({self(), "--size", path});
}

ProcessCost removalCost(const std::string &base, const std::string &name)
{
    return ProcessCost::ofProgram({self(), "--remove", base, name});
}

std::string outputOf(const std::string &command)
{
    std::string text;
    FILE *const pipe = popen(command.c_str(), "r");
    for (int c = 0; pipe && (c = std::getc(pipe)) != EOF;)
        text += char(c);
    if (!pipe || pclose(pipe) != 0)
        throw std::runtime_error(command + " failed");
    return text;
}

void requireSameSum(const std::string &path)
{
    struct stat own = {};
    const long long ours = folderSize(QByteArray::fromStdString(path));
    const long long peer = std::atoll(outputOf("du -slb -- '" + path + "'").c_str());
    if (stat(path.c_str(), &own) != 0 || ours != peer - own.st_size)
        throw std::runtime_error("the sizes of " + path + " differ: " + std::to_string(ours)
                                 + " is not " + std::to_string(peer - own.st_size));
}

// Empty if none applies.
std::string FolderBench::floorExcuse(double figure, const Limits &limits, const Costs &floor,
                                     double peer) const
{
    if (floor.empty())
        return {};
    const double least = ProcessCost::median(floor).processor / peer;
    if (least <= limits.processor || figure > least * 1.05)
        return {};
    char text[40];
    std::snprintf(text, sizeof text, "bare calls: %.2f", least);
    return text;
}

void FolderBench::report(const std::string &work, const Costs &ours, const Costs &peer,
                         const Costs &floor, const Limits &limits)
{
    const ProcessCost our = ProcessCost::median(ours);
    const ProcessCost their = ProcessCost::median(peer);
    const double figure = our.processor / their.processor;
    print({.work = work + ", processor",
           .figure = figure,
           .limit = limits.processor,
           .detail = against(our.processor * 1e3, their.processor * 1e3, "ms"),
           .excuse = floorExcuse(figure, limits, floor, their.processor)});
    if (limits.wall != 0)
        print({.work = work + ", clock",
               .figure = our.wall / their.wall,
               .limit = limits.wall,
               .detail = against(our.wall * 1e3, their.wall * 1e3, "ms"),
               .excuse = m_quiet ? "" : "machine busy"});
}

void FolderBench::compareSize(const char *name, const std::string &path, int rounds,
                              const Limits &limits)
{
    if (!isWanted(name))
        return;
    requireSameSum(path);
    Costs ours, peer, floor;
    const std::string empty = m_folder + "/empty";
    for (int i = 0; i < rounds; ++i) {
        ours.push_back(sizeCost(path) - sizeCost(empty));
        peer.push_back(ProcessCost::ofProgram({"du", "-slb", "--", path})
                       - ProcessCost::ofProgram({"du", "-slb", "--", empty}));
        if (limits.isFlat)
            floor.push_back(ProcessCost::ofWork([&] { return sizeFloor(path) > 0; })
                            - ProcessCost::ofWork([&] { return sizeFloor(empty) == 0; }));
    }
    m_sizeMemory = ProcessCost::median(ours).memory;
    report(std::string("size, ") + name, ours, peer, floor, limits);
}

void FolderBench::compareRemoval(const Tree &tree)
{
    Costs ours, peer;
    const auto make = [&] {
        tree.make(m_folder + "/gone");
        Trees::makeFlat(m_folder + "/nothing", 0);
    };
    for (int i = 0; i < tree.removalRounds; ++i) {
        make();
        const ProcessCost our = removalCost(m_folder, "gone");
        ours.push_back(our - removalCost(m_folder, "nothing"));
        make();
        const ProcessCost their = ProcessCost::ofProgram({"rm", "-rf", "--", m_folder + "/gone"});
        peer.push_back(their - ProcessCost::ofProgram({"rm", "-rf", "--", m_folder + "/nothing"}));
    }
    report(std::string("removal, ") + tree.name, ours, peer, {}, tree.removal);
}

void FolderBench::run(const Tree &tree)
{
    if (!isWanted(tree.name))
        return;
    const std::string path = m_folder + "/tree";
    tree.make(path);
    ::sync(); // data on its way to the disk would keep the second core busy
    compareSize(tree.name, path, tree.sizeRounds, tree.size);
    removalCost(m_folder, "tree");
    compareRemoval(tree);
}

void FolderBench::limitMemory(const char *name, double megabytes, double limit)
{
    print({.work = name, .figure = megabytes, .limit = limit, .unit = "MB"});
}

void FolderBench::removalMemory(int files)
{
    if (!isWanted("memory"))
        return;
    Trees::makeFlat(m_folder + "/gone", files);
    Trees::makeFlat(m_folder + "/nothing", 0);
    const ProcessCost cost = removalCost(m_folder, "gone") - removalCost(m_folder, "nothing");
    limitMemory("removal, 100,000 names, memory", cost.memory, 10);
}

// Both walks and both peers on one tree; strace's own table shows their system calls.
void FolderBench::countCalls()
{
    for (const std::string &command :
         {self() + " --size " + m_folder + "/tree", "du -slb " + m_folder + "/tree",
          self() + " --remove " + m_folder + " tree", "rm -rf " + m_folder + "/tree"}) {
        if (!std::filesystem::exists(m_folder + "/tree"))
            Trees::makeNested(m_folder + "/tree", 10'000);
        const std::string table = outputOf("strace -f -c -U calls,name " + command
                                           + " 2>&1 >/dev/null | sed -n '/total/p'");
        std::printf("system calls of %s: %s", command.substr(0, 60).c_str(), table.c_str());
    }
}

/// A temporary folder for the benchmark, removed at its end.
class ScratchFolder
{
public:
    explicit ScratchFolder(const std::filesystem::path &parent)
        : m_path((parent / "bench.XXXXXX").string())
    {
        if (!mkdtemp(m_path.data()))
            throw std::runtime_error("no folder in " + parent.string());
    }
    ~ScratchFolder() { std::filesystem::remove_all(m_path); }
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    const std::string &path() const { return m_path; }

private:
    std::string m_path;
};

const Limits nestedSize = {.processor = 0.98, .wall = 0.60};
const Limits nestedRemoval = {.processor = 1.0, .wall = 0.70};
const Limits flatSize = {.processor = 0.65, .isFlat = true};
const Limits oneFolderRemoval = {.processor = 1.0};

auto nested(int files)
{
    return [files](const std::string &top) { Trees::makeNested(top, files); };
}

auto flat(int files)
{
    return [files](const std::string &top) { Trees::makeFlat(top, files); };
}

void compareOnDisk(FolderBench &bench)
{
    bench.run({"10,000 nested", nested(10'000), 31, 7, nestedSize, nestedRemoval});
    bench.run({"20,000 flat", flat(20'000), 15, 3, flatSize, oneFolderRemoval});
    const auto chain = [](const std::string &top) { Trees::makeChain(top, 1'000); };
    bench.run({"chain of 1,000", chain, 15, 7, {.processor = 0.98}, oneFolderRemoval});
    bench.compareSize("/usr", "/usr", 5, nestedSize);
    bench.removalMemory(100'000);
}

// Trees that a disk would need minutes to make; once for each round.
void compareInMemory(FolderBench &bench, bool million)
{
    bench.run({"100,000 nested, tmpfs", nested(100'000), 7, 3, nestedSize, nestedRemoval});
    bench.run({"200,000 flat, tmpfs", flat(200'000), 7, 3, flatSize, oneFolderRemoval});
    if (!million)
        return;
    bench.run({"10,000 nested, tmpfs", nested(10'000), 15, 7, nestedSize, nestedRemoval});
    const double few = bench.sizeMemory();
    bench.run({"1,000,000 nested, tmpfs", nested(1'000'000), 3, 1, nestedSize, nestedRemoval});
    bench.limitMemory("size, 1,000,000 more than 10,000, memory", bench.sizeMemory() - few, 2);
}

int benchmarkAll(bool million, bool calls, const std::string &only)
{
    const ScratchFolder disk(std::filesystem::temp_directory_path());
    const ScratchFolder memory("/dev/shm");
    FolderBench onDisk(disk.path(), only);
    compareOnDisk(onDisk);
    FolderBench inMemory(memory.path(), only);
    compareInMemory(inMemory, million);
    if (calls)
        onDisk.countCalls();
    return onDisk.passed() || inMemory.passed() ? 1 : 0;
}

} // namespace

int main(int count, char **words)
{
    const std::vector<std::string> arguments(words + 1, words + count);
    const auto given = [&](const char *option) {
        return std::ranges::count(arguments, option) > 0;
    };
    try {
        if (given("--size") && count == 3)
            return folderSize(words[2]) >= 0 ? 0 : 1;
        if (given("--remove") && count == 4)
            return removeBelow(words[2], words[3]).refused == 0 ? 0 : 1;
        const std::string last = count > 1 ? arguments.back() : "";
        return benchmarkAll(given("--million"), given("--calls"),
                            last.starts_with("--") ? "" : last);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "bench_folders: %s\n", error.what());
        return 2;
    }
}
