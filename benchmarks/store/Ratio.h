#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

/// Compares work of ours with a peer's in the same run. The two take turns, and what counts is the
/// median of the rounds' ratios: what disturbs the machine disturbs both sides of a round.
class Ratio
{
public:
    /// Prints a row; false where ours takes more than `limit` times the peer's time.
    template <class Ours, class Peer>
    static bool isWithin(const char *name, double limit, int rounds, Ours ours, Peer peer)
    {
        std::vector<double> ratios, ourTimes, peerTimes;
        for (int i = 0; i < rounds; ++i) {
            // Each goes first in every other round: the second finds warm caches.
            const bool oursFirst = i % 2 == 0;
            const double first = oursFirst ? seconds(ours) : seconds(peer);
            const double second = oursFirst ? seconds(peer) : seconds(ours);
            ourTimes.push_back(oursFirst ? first : second);
            peerTimes.push_back(oursFirst ? second : first);
            ratios.push_back(ourTimes.back() / peerTimes.back());
        }
        char times[64];
        std::snprintf(times, sizeof times, "%.2f ms against %.2f ms", median(ourTimes) * 1e3,
                      median(peerTimes) * 1e3);
        return report(name, median(ratios), limit, times);
    }

    static bool report(const char *name, double ratio, double limit, const char *remark)
    {
        std::printf("%-48s %5.2f of at most %4.2f  %s  (%s)\n", name, ratio, limit,
                    ratio <= limit ? "ok    " : "PASSED", remark);
        std::fflush(stdout);
        return ratio <= limit;
    }

    /// The processor's time, in our code and in the system's: unlike the clock on the wall it does
    /// not count the machine's other work, nor waits for the disk, which are the same on both
    /// sides.
    template <class Work>
    static double seconds(Work work)
    {
        const double begin = processorTime();
        work();
        return processorTime() - begin;
    }

    static double median(std::vector<double> values)
    {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    }

private:
    static double processorTime()
    {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
    }
};
