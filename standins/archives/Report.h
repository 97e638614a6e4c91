#pragma once

#include <mutex>
#include <string>
#include <string_view>

namespace archive
{

/// What a run leaves out, as lines on standard error, and the exit status that follows from it. For
/// use by several threads.
class Report
{
public:
    /// Hidden ones are for the fuzzer, which would print millions.
    enum class Lines { Shown, Hidden };

    explicit Report(std::string program, Lines lines = Lines::Shown)
        : m_program(std::move(program)), m_areShown(lines == Lines::Shown)
    {
    }

    /// "program: name: reason". Only the first lines are shown, so that a hostile archive cannot
    /// fill a log; finish() says how many more there were.
    void leftOut(int status, std::string_view name, std::string_view reason);
    /// The same with the system's words for an errno value.
    void leftOut(int status, std::string_view name, int error);

    void finish();

    /// The highest of the statuses so far, 0 if nothing was left out.
    int status() const;

private:
    void print(const std::string &text) const;

    const std::string m_program;
    const bool m_areShown;
    mutable std::mutex m_mutex;
    int m_status = 0;
    int m_lines = 0;
};

} // namespace archive
