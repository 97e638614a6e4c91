#pragma once

#include <string>
#include <vector>

// Rows of the benchmarks that measure a stand-in program beside the tool that does its work.

using Command = std::vector<std::string>; // the first is the program's full path

/// Lets the two take turns and prints the median of the rounds' ratios of the processor's time, in
/// the programs and all their children: unlike the clock it does not count the machine's other work.
/// Gives false if the first takes more than `limit` times the other's. Files called "result" in
/// the work folder are removed before each run.
bool isWithin(const char *name, double limit, int rounds, const Command &ours, const Command &peer);

/// Prints the most memory that the program itself has at a time, without its children. False if
/// that is more than 20 MB.
bool isSmall(const char *name, const Command &command);

/// A folder of the benchmark's own, removed at its end.
const std::string &workFolder();
