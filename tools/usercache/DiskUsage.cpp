#include "DiskUsage.h"

#include "MiscTool.h"

#include <limits>

DiskUsage DiskUsage::now()
{
    return {.total = MiscTool::getDiskTotalSize().value_or(0),
            .free = MiscTool::getDiskAvailableSize().value_or(0)};
}

int DiskUsage::usedPercentage() const
{
    if (total <= 0)
        return 0;
    const std::int64_t used = total - free;
    // Beyond 92 petabytes the product would overflow; there the total divides by 100 well enough.
    const bool fits = used <= std::numeric_limits<std::int64_t>::max() / 100;
    return static_cast<int>(fits ? used * 100 / total : used / (total / 100));
}
