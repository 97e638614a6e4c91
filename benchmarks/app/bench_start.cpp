// What starting Toolvane costs up to the first painted window, against a window with one label.
// Rows end with the ratio, its limit and "ok" or "PASSED"; the exit status is 1 when one is passed.

#include "ProcessCost.h"

#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int rounds = 25;

bool row(const char *name, const char *remark, double ratio, double limit)
{
    const bool within = ratio <= limit;
    std::printf("%-36s %-44s %6.2f %5.2f %s\n", name, remark, ratio, limit,
                within ? "ok" : "PASSED");
    return within;
}

std::string between(double ours, double theirs, const char *unit)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.1f %s against %.1f %s", ours, unit, theirs, unit);
    return text;
}

} // namespace

int main()
{
    const std::string folder = TOOLVANE_STARTED_PROGRAMS;
    std::vector<ProcessCost> ours;
    std::vector<ProcessCost> theirs;
    for (int round = -1; round < rounds; ++round) { // the first warms the caches
        const ProcessCost minimal = ProcessCost::ofProgram({folder + "/start_minimal"});
        const ProcessCost toolvane = ProcessCost::ofProgram({folder + "/start_toolvane"});
        if (round < 0)
            continue;
        theirs.push_back(minimal);
        ours.push_back(toolvane);
    }
    const ProcessCost mine = ProcessCost::median(ours);
    const ProcessCost peer = ProcessCost::median(theirs);
    const std::string time = between(mine.processor * 1e3, peer.processor * 1e3, "ms");
    const std::string memory = between(mine.memory, peer.memory, "MB");
    const bool fast =
        row("start, processor time", time.c_str(), mine.processor / peer.processor, 1.6);
    const bool small = row("start, memory", memory.c_str(), mine.memory / peer.memory, 1.3);
    return fast && small ? 0 : 1;
}
