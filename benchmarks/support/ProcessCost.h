#pragma once

#include <functional>
#include <string>
#include <vector>

/// What one piece of work cost in a process of its own.
struct ProcessCost {
    double processor = 0; ///< Seconds of all threads, user and system time.
    double wall = 0; ///< Seconds of clock time.
    double memory = 0; ///< Peak memory in MB.

    ProcessCost operator-(const ProcessCost &other) const
    {
        return {processor - other.processor, wall - other.wall, memory - other.memory};
    }

    /// Of a forked copy of this process that does the work. Ends the program if the work returns
    /// false.
    static ProcessCost ofWork(const std::function<bool()> &work);
    /// Of a program; its output is discarded. Ends this program if it fails.
    static ProcessCost ofProgram(const std::vector<std::string> &command);
    /// The median of each figure separately.
    static ProcessCost median(const std::vector<ProcessCost> &costs);
};
