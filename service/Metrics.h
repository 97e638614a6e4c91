#pragma once

#include "Status.h"

#include <array>
#include <atomic>
#include <chrono>

/// Counts requests, for whoever watches the service. Any thread.
class Metrics
{
public:
    void count(std::string_view operation, Status status, std::chrono::nanoseconds duration);
    std::string text(int connections) const; ///< In the text form of Prometheus.

private:
    static constexpr std::array<std::string_view, 5> operations = {"INSERT", "UPDATE", "DELETE",
                                                                   "SELECT", "-"};
    std::array<std::array<std::atomic<long long>, 7>, operations.size()> m_counts{};
    std::atomic<long long> m_nanoseconds = 0;
};
