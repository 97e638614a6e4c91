#pragma once

#include "OutputFile.h"
#include "Progress.h"

#include <string>

/// Packs an open folder, called `source` in messages, into a plain HFS Plus image. The output
/// itself stays out of it. What cannot be read or written fails; fifos, sockets and devices are
/// left out, and one warning line says so.
void writeHfsImage(standin::FileDescriptor folder, const std::string &source,
                   const std::string &volumeName, const standin::OutputFile &output,
                   standin::Progress &progress);
