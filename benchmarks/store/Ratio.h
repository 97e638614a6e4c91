#pragma once

#include "Turns.h"

#include <ctime>

/// Compares work of ours with a peer's by the processor's time.
namespace Ratio
{

inline double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// The processor's time, in our code and in the system's: unlike the clock on the wall it does not
/// count the machine's other work, nor waits for the disk, which are the same on both sides.
template <class Work>
double seconds(Work work)
{
    const double begin = processorTime();
    work();
    return processorTime() - begin;
}

/// Prints a row; false if ours takes more than `limit` times the peer's time.
template <class Ours, class Peer>
bool isWithin(const char *name, double limit, int rounds, Ours ours, Peer peer)
{
    const auto turns = Turns<double>::taken(
        rounds, [&] { return seconds(ours); }, [&] { return seconds(peer); });
    return Row{.work = name,
               .figure = turns.ratio([](double time) { return time; }),
               .limit = limit,
               .detail = against(median(turns.ours) * 1e3, median(turns.peers) * 1e3, "ms")}
        .print();
}

} // namespace Ratio
