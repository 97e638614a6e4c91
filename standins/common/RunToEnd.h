#pragma once

#include "Child.h"
#include "Pipe.h"

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace standin
{

// What a finished child leaves.
struct Finished {
    ChildEnd end;
    std::string lastWords; // the last line of its standard error, or how it ended

    bool succeeded() const { return end.succeeded(); }
};

using OutputSink = std::function<void(std::string_view)>;

inline constexpr std::chrono::milliseconds noLimit{-1};

// A child whose output and errors are read here. Killed when it is destroyed before finish().
class CapturedChild
{
public:
    explicit CapturedChild(Command command);

    // Hands what the child writes to its standard output to the sink piece by piece, keeps the last
    // line of its standard error, and waits for the end. A child that outlives the limit, and any
    // child when the sink throws, is killed. To be called once.
    Finished finish(const OutputSink &sink, std::chrono::milliseconds limit = noLimit);

private:
    std::string m_program;
    std::string m_hollowWords;
    Pipe m_output;
    Pipe m_errors;
    Child m_child;
};

// Starts and finishes in one go.
Finished runToEnd(const Command &command, const OutputSink &sink,
                  std::chrono::milliseconds limit = noLimit);

} // namespace standin
