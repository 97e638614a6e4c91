#pragma once

/// Appends everything from one open file's position on to another; in the kernel where the file
/// systems allow it. Returns 0 or the `errno` of the failure. Blocks; may be called on any thread.
int copyBytes(int from, int to);
