#pragma once

#include "FileDescriptor.h"

#include <cstdint>
#include <stop_token>

/// What emptying a folder came to.
struct EmptyingTally {
    std::uint64_t removed = 0;
    std::uint64_t refused = 0; ///< Items that stayed, not counting the folders around them.
    int firstError = 0; ///< errno of one of the refusals; 0 without any.

    void add(const EmptyingTally &other);
    void refuse(int error);
};

/// Goes once through everything below an open folder and removes it, without ever following a link
/// or entering what is mounted below. Goes on after what refuses. With helpers, other threads take
/// part; folders around what one of them holds may then stay, empty, for a second call. The folder
/// must not have been read before through this descriptor. Told to stop, it leaves what it has not
/// removed yet.
EmptyingTally emptyFolder(FileDescriptor folder, unsigned helpers, const std::stop_token &stop);
