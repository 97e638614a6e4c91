#pragma once

#include <sys/types.h>

#include <cstdint>
#include <span>

namespace archive
{

/// Raises the limit of open files as far as it goes: a folder stays open for each level.
void allowDeepFolders();

/// What a new file or folder is not allowed. Not for use while other threads make some.
mode_t currentMask();

/// Whether an errno value says that nothing more can be written there.
bool isLackOfRoom(int error);

/// Reads until the bytes are filled or the file ends. The number of bytes, -1 with errno.
ssize_t readFully(int file, std::span<char> bytes, std::uint64_t offset);

} // namespace archive
