#pragma once

#include <functional>
#include <string>
#include <vector>

namespace standin
{

/// The arguments after the program's name, byte for byte.
using Arguments = std::vector<std::string>;

/// The frame of main(): opens descriptors 0 to 2 if they are closed, makes a broken pipe and a size
/// limit come back as errors instead of signals, ends cleanly on TERM, INT and HUP, runs `work` and
/// turns what it throws into one line on standard error and an exit status.
/// `usage` is what follows "usage: ", the program's name included.
int runProgram(const char *name, const char *usage, int argc, char **argv,
               const std::function<void(const Arguments &)> &work);

} // namespace standin
