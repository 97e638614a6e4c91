#include "Report.h"

#include "Failure.h"

#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace archive
{

namespace
{

constexpr int maxLines = 200;
constexpr std::size_t maxNameLength = 500; // on both sides of what is left out

std::string shortened(std::string_view name)
{
    if (name.empty())
        return "(no name)";
    if (name.size() <= 2 * maxNameLength)
        return std::string(name);
    return std::string(name.substr(0, maxNameLength)) + "..."
        + std::string(name.substr(name.size() - maxNameLength));
}

} // namespace

void Report::print(const std::string &text) const
{
    if (!m_areShown)
        return;
    const std::string line = standin::printable(m_program + ": " + text) + '\n';
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

void Report::leftOut(int status, std::string_view name, std::string_view reason)
{
    const std::scoped_lock lock(m_mutex);
    m_status = std::max(m_status, status);
    if (++m_lines <= maxLines)
        print(shortened(name) + ": " + std::string(reason));
}

void Report::leftOut(int status, std::string_view name, int error)
{
    leftOut(status, name, std::strerror(error));
}

void Report::finish()
{
    const std::scoped_lock lock(m_mutex);
    if (m_lines > maxLines)
        print("and " + std::to_string(m_lines - maxLines) + " more");
    m_lines = 0;
}

int Report::status() const
{
    const std::scoped_lock lock(m_mutex);
    return m_status;
}

} // namespace archive
