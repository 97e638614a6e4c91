#include "TurnQueue.h"

#include <algorithm>
#include <utility>

namespace
{

// Memory of the result's own, no more than it needs.
void keep(PackedTurn &packed)
{
    if (packed.kept.size() > 0 || packed.bytes.empty())
        return;
    packed.kept = Buffer(packed.bytes.size());
    std::ranges::copy(packed.bytes, packed.kept.data());
    packed.bytes = {packed.kept.data(), packed.bytes.size()};
}

} // namespace

bool TurnQueue::isTurnOf(std::uint64_t number)
{
    const std::scoped_lock lock(m_mutex);
    return number == m_next;
}

void TurnQueue::write(const Waiting &turn)
{
    m_writer.add(turn.packed);
    m_budget.giveBack(turn.reserved);
}

// Numbers are given once, so nobody else comes with the one that is being written.
void TurnQueue::put(std::uint64_t number, PackedTurn packed, std::size_t reserved)
{
    if (!isTurnOf(number)) {
        keep(packed);
        const std::size_t kept = packed.bytes.size() + packed.item.name.size() + turnOverhead;
        if (kept < reserved)
            m_budget.giveBack(reserved - std::exchange(reserved, kept));
    }
    std::unique_lock lock(m_mutex);
    Waiting turn{std::move(packed), reserved};
    if (number != m_next) {
        m_waiting.emplace(number, std::move(turn));
        return;
    }
    for (;;) {
        lock.unlock();
        write(turn);
        lock.lock();
        const auto following = m_waiting.find(++m_next);
        if (following == m_waiting.end())
            return;
        turn = std::move(following->second);
        m_waiting.erase(following);
    }
}
