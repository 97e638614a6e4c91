#pragma once

#include <string>
#include <vector>

// Rows of the benchmarks that compare a stand-in with the tool that does its work.

using Command = std::vector<std::string>; // the first is the program's full path

/// Lets the two take turns and prints the median of the rounds' ratios of processor time, including
/// all children: unlike clock time it does not include other work of the machine. Returns false if
/// the first takes more than `limit` times as much as the other. Files called "result" in the work
/// folder are removed before each run.
bool isWithin(const char *name, double limit, int rounds, const Command &ours, const Command &peer);

/// Prints the peak memory of the program itself, without its children. False if that is more than
/// 20 MB.
bool isSmall(const char *name, const Command &command);

/// A temporary folder for the benchmark, removed at its end.
const std::string &workFolder();
