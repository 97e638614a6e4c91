#pragma once

#include "OutputFile.h"

#include <string>

// Packs an open folder, called `source` in messages, into a plain HFS Plus image. One warning line
// says when items were left out.
void writeHfsImage(standin::FileDescriptor folder, const std::string &source,
                   const std::string &volumeName, const standin::OutputFile &output);
