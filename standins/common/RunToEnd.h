#pragma once

#include "Child.h"

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace standin
{

/// What a finished child leaves.
struct Finished {
    ChildEnd end;
    /// The last line of its standard error, at most 1,000 bytes without control characters. If it
    /// wrote none: how it ended.
    std::string lastWords;

    bool succeeded() const { return end.succeeded(); }
};

/// Takes what a child writes, piece by piece.
using OutputSink = std::function<void(std::string_view)>;

/// Waits as long as the child takes.
inline constexpr std::chrono::milliseconds noTimeout{-1};

/// Cuts what a child writes into lines, at line feeds and carriage returns, and hands on the first
/// 1,000 bytes of each that is not empty.
class LineSplitter
{
public:
    explicit LineSplitter(OutputSink take) : m_take(std::move(take)) { }

    void add(std::string_view bytes);
    void finish(); ///< hands on the last line, if it has no end

private:
    OutputSink m_take;
    std::string m_line; // as far as it came
};

/// A child whose output and errors are read here. Killed if it is destroyed before finish().
class CapturedChild
{
public:
    /// Starts it. The descriptors for output and errors in the command are replaced. Fails as Child
    /// does.
    explicit CapturedChild(Command command);

    /// Gives the sink what the child writes to its standard output and waits for the end. A child
    /// that takes longer than the timeout, and any child if the sink throws, is killed. To be
    /// called once.
    Finished finish(const OutputSink &sink, std::chrono::milliseconds timeout = noTimeout);

private:
    std::string m_program;
    std::function<bool(std::string_view)> m_isReason;
    Pipe m_output;
    Pipe m_errors;
    Child m_child;
};

/// Starts a child and finishes it, as CapturedChild does.
Finished runToEnd(const Command &command, const OutputSink &sink,
                  std::chrono::milliseconds timeout = noTimeout);

/// The sink for a child whose standard output has no use.
inline void discard(std::string_view)
{
}

} // namespace standin
