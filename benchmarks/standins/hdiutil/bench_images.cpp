// Compares making an image with the plain tool on the same folder, in turns and in the same run: an
// HFS Plus image with "cp -r", a hybrid image with the same call of xorriso. Figures are medians of
// the rounds' ratios. The exit status is 1 if a figure is over its limit. Uses 2 GB below TMPDIR
// for about half a minute.

#include "HybridImage.h"
#include "ProcessCost.h"
#include "Turns.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

namespace fs = std::filesystem;

namespace
{

using Command = std::vector<std::string>;

class ImageBench
{
public:
    ImageBench() : m_folder(fs::temp_directory_path() / ("images-" + std::to_string(::getpid())))
    {
        fs::create_directories(m_folder);
    }
    ~ImageBench() { fs::remove_all(m_folder); }
    ImageBench(const ImageBench &) = delete;
    ImageBench &operator=(const ImageBench &) = delete;

    void compareHfs();
    void compareHybrid();
    void limitMemory();
    bool passed() const { return m_passed; }

private:
    std::string path(const char *name) const { return m_folder / name; }
    std::string largeFolder() const;
    Command image(bool isHfs, const std::string &source) const;
    ProcessCost costOf(const Command &command) const;
    void compare(const char *name, double limit, const Command &ours, const Command &peer);

    fs::path m_folder;
    bool m_passed = false;
};

// 500 MB that no lower layer can compress.
std::string ImageBench::largeFolder() const
{
    const fs::path folder = m_folder / "large";
    if (fs::exists(folder))
        return folder;
    fs::create_directories(folder);
    std::mt19937_64 random(1); // NOLINT: the same every time
    std::vector<std::uint64_t> content(10'000'000 / sizeof(std::uint64_t));
    for (int i = 0; i < 50; ++i) {
        std::generate(content.begin(), content.end(), random);
        std::ofstream(folder / std::to_string(i), std::ios::binary)
            .write(reinterpret_cast<const char *>(content.data()), 10'000'000);
    }
    return folder;
}

Command ImageBench::image(bool isHfs, const std::string &source) const
{
    Command command{TOOLVANE_HDIUTIL, "makehybrid"};
    if (isHfs)
        command.emplace_back("-hfs");
    for (const auto &word : {std::string("-o"), path("ours"), std::string("-default-volume-name"),
                             std::string("Bench"), std::string("-ov"), std::string("-quiet")})
        command.push_back(word);
    command.push_back(source);
    return command;
}

// Starts when everything of an earlier run is on the disk.
ProcessCost ImageBench::costOf(const Command &command) const
{
    fs::remove_all(m_folder / "ours");
    fs::remove_all(m_folder / "peer");
    ::sync();
    return ProcessCost::ofProgram(command);
}

void ImageBench::compare(const char *name, double limit, const Command &ours, const Command &peer)
{
    const auto turns = Turns<ProcessCost>::taken(
        7, [&] { return costOf(ours); }, [&] { return costOf(peer); });
    const Row row{.work = name,
                  .figure = turns.ratio([](const ProcessCost &cost) { return cost.wall; }),
                  .limit = limit,
                  .detail = against(ProcessCost::median(turns.ours).wall,
                                    ProcessCost::median(turns.peers).wall, "s")};
    m_passed = !row.print() || m_passed;
}

void ImageBench::compareHfs()
{
    const auto source = largeFolder();
    compare("HFS+ image of 500 MB beside cp -r", 1.3, image(true, source),
            {"cp", "-r", source, path("peer")});
}

void ImageBench::compareHybrid()
{
    const auto source = largeFolder();
    Command bare = hybridArguments(source, "Bench", {path("ours"), path("none")}, 0);
    std::ranges::replace(bare, "stdio:/dev/fd/0", "stdio:" + path("peer"));
    const Command shell{"sh", "-c", "exec \"$@\" 2>/dev/null", "sh", "xorriso"}; // it greets
    bare.insert(bare.begin(), shell.begin(), shell.end());
    compare("hybrid image of 500 MB beside xorriso", 1.1, image(false, source), bare);
}

void ImageBench::limitMemory()
{
    for (int i = 0; i < 100; ++i) {
        const fs::path folder = m_folder / "many" / std::to_string(i);
        fs::create_directories(folder);
        std::ofstream(folder / "file 0") << i;
        for (int link = 1; link < 200; ++link)
            fs::create_hard_link(folder / "file 0", folder / ("file " + std::to_string(link)));
    }
    const Row row{.work = "HFS+ image of 20,000 files, memory",
                  .figure = costOf(image(true, path("many"))).memory,
                  .limit = 40,
                  .unit = "MB"};
    m_passed = !row.print() || m_passed;
}

} // namespace

int main()
{
    ImageBench bench;
    bench.compareHfs();
    bench.compareHybrid();
    bench.limitMemory();
    return bench.passed() ? 1 : 0;
}
