#pragma once

#include "ArchiveWriter.h"
#include "Budget.h"
#include "Turn.h"

#include <cstdint>
#include <map>
#include <mutex>

/// Puts what the threads have packed into the order of the archive. No thread is there for writing
/// alone: the one that brings the next turn writes it, and whatever waited for it.
class TurnQueue
{
public:
    TurnQueue(ArchiveWriter &writer, Budget &budget) : m_writer(writer), m_budget(budget) { }

    /// Never waits for earlier turns. `reserved` is given back when the turn is written.
    void put(std::uint64_t number, PackedTurn packed, std::size_t reserved);

private:
    struct Waiting {
        PackedTurn packed;
        std::size_t reserved;
    };
    bool isTurnOf(std::uint64_t number);
    void write(const Waiting &turn);

    ArchiveWriter &m_writer;
    Budget &m_budget;
    std::mutex m_mutex;
    std::uint64_t m_next = 0; ///< to be written, or being written
    std::map<std::uint64_t, Waiting> m_waiting;
};
