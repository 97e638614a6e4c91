#include "Metrics.h"

#include <algorithm>

void Metrics::count(std::string_view operation, Status status, std::chrono::nanoseconds duration)
{
    const auto known = std::ranges::find(operations, operation);
    const auto row =
        known == operations.end() ? operations.size() - 1 : std::size_t(known - operations.begin());
    ++m_counts[row][std::size_t(status)];
    m_nanoseconds += duration.count();
}

std::string Metrics::text(int connections) const
{
    std::string lines = "# HELP toolvane_records_requests_total Answered requests.\n"
                        "# TYPE toolvane_records_requests_total counter\n";
    long long sum = 0;
    for (std::size_t row = 0; row < operations.size(); ++row) {
        for (std::size_t status = 0; status < m_counts[row].size(); ++status) {
            const long long count = m_counts[row][status];
            sum += count;
            lines.append("toolvane_records_requests_total{operation=\"").append(operations[row]);
            lines.append("\",status=\"" + std::to_string(status) + "\"} ");
            lines.append(std::to_string(count) + "\n");
        }
    }
    lines += "# HELP toolvane_records_request_seconds Time from a request's headers to its reply.\n"
             "# TYPE toolvane_records_request_seconds summary\n"
             "toolvane_records_request_seconds_sum "
        + std::to_string(double(m_nanoseconds) * 1e-9) + "\ntoolvane_records_request_seconds_count "
        + std::to_string(sum)
        + "\n# HELP toolvane_records_connections Open connections.\n"
          "# TYPE toolvane_records_connections gauge\ntoolvane_records_connections "
        + std::to_string(connections) + "\n";
    return lines;
}
