#pragma once

#include <functional>
#include <string>
#include <vector>

/// What one piece of work cost in a process of its own.
struct ProcessCost {
    double processor = 0; ///< Seconds in the program's and the system's code, of all threads.
    double wall = 0; ///< Seconds by the clock.
    double memory = 0; ///< Most memory at a time, in MB.

    ProcessCost operator-(const ProcessCost &other) const
    {
        return {processor - other.processor, wall - other.wall, memory - other.memory};
    }

    /// Of a copy of this process that does the work; ends the program when the work gives false.
    static ProcessCost ofWork(const std::function<bool()> &work);
    /// Of a program, its output thrown away; ends this program when it fails.
    static ProcessCost ofProgram(const std::vector<std::string> &command);
    /// Each figure's median by itself.
    static ProcessCost median(const std::vector<ProcessCost> &costs);
};
