// The cost of starting Toolvane up to the first painted window, compared with a window with one
// label. The exit status is 1 if a figure is over its limit.

#include "ProcessCost.h"
#include "Row.h"

#include <string>
#include <vector>

namespace
{

constexpr int rounds = 25;

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
    const bool fast = Row{.work = "start, processor time",
                          .figure = mine.processor / peer.processor,
                          .limit = 1.6,
                          .detail = against(mine.processor * 1e3, peer.processor * 1e3, "ms")}
                          .print();
    const bool small = Row{.work = "start, memory",
                           .figure = mine.memory / peer.memory,
                           .limit = 1.3,
                           .detail = against(mine.memory, peer.memory, "MB")}
                           .print();
    return fast && small ? 0 : 1;
}
