#pragma once

#include <string>

/// Trees of small files for the benchmarks, each below a folder that does not exist yet. Any
/// failure ends the program.
namespace Trees
{

void makeNested(const std::string &top, int files); ///< 20 files and up to 10 folders in each.
void makeFlat(const std::string &top, int files);
void makeChain(const std::string &top, int levels);

} // namespace Trees
