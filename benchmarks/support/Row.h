#pragma once

#include <string>
#include <vector>

/// One line of the table that all benchmarks print together.
struct Row {
    std::string work; ///< What was measured.
    double figure = 0;
    double limit = 0; ///< The figure may be at most this.
    std::string unit = "times"; ///< Of both; "times" is a ratio to a peer in the same run.
    std::string detail = {}; ///< What the figure was made of, such as "3.1 ms against 3.0 ms".
    std::string excuse = {}; ///< Why a figure above its limit does not count here; mostly empty.

    /// Prints the line. False if the figure is above its limit and nothing excuses it.
    bool print() const;
};

/// "12.3 ms against 11.9 ms".
std::string against(double ours, double theirs, const char *unit);

/// The middle value, the upper one of two. There must be at least one.
double median(std::vector<double> values);
