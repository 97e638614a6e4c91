#pragma once

#include <stop_token>

/// Appends everything from one open file's position on to another; in the kernel where the file
/// systems allow it. Returns 0 or the `errno` of the failure, ECANCELED when it was told to stop
/// before the end. Blocks; may be called on any thread.
int copyBytes(int from, int to, const std::stop_token &stop = {});
