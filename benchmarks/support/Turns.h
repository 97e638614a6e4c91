#pragma once

#include "Row.h"

/// The cost of our work and of a peer's in the same run, round by round.
template <class Cost>
struct Turns {
    std::vector<Cost> ours;
    std::vector<Cost> peers;

    /// Lets the two take turns. Each is first in every other round, because the second finds warm
    /// caches. Both are called without arguments and return their cost.
    template <class Ours, class Peer>
    static Turns taken(int rounds, Ours ours, Peer peer)
    {
        Turns turns;
        for (int round = 0; round < rounds; ++round) {
            if (round % 2 == 0)
                turns.ours.push_back(ours());
            turns.peers.push_back(peer());
            if (round % 2 != 0)
                turns.ours.push_back(ours());
        }
        return turns;
    }

    /// The median of the rounds' ratios: other load on the machine affects both sides of a round.
    template <class Figure>
    double ratio(Figure figure) const
    {
        std::vector<double> ratios;
        for (std::size_t i = 0; i < ours.size(); ++i)
            ratios.push_back(figure(ours[i]) / figure(peers[i]));
        return median(std::move(ratios));
    }
};
