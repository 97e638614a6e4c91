#pragma once

#include "Deflater.h"
#include "Progress.h"
#include "Report.h"

#include <string>

/// Packs what lies in the current folder into a new archive, on all processors. What cannot be read
/// goes into the report. Fails with NothingToDo if there is nothing to pack.
void packCurrentFolder(const std::string &target, Level level, archive::Report &report,
                       standin::Progress &progress);
