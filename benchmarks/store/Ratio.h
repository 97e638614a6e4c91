#pragma once

#include "Turns.h"

#include <ctime>

/// Compares our work with a peer's by processor time.
namespace Ratio
{

inline double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// Processor time, user and system. Unlike clock time it does not include other work of the machine
/// or waiting for the disk, which are the same on both sides.
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
