#pragma once

#include <cstdint>

/// How full the start-up disk is.
struct DiskUsage {
    std::int64_t total = 0; ///< Bytes; 0 where the disk cannot be asked.
    std::int64_t free = 0;

    static DiskUsage now(); ///< Any thread.

    /// The used share in whole percent, its fraction dropped: 999 used bytes of 1000 are 99. 0 for
    /// a disk without a size.
    int usedPercentage() const;
};
