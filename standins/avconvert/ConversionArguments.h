#pragma once

#include "Presets.h"
#include "SourceMedia.h"

#include <string>
#include <vector>

namespace standin
{

/// ffmpeg's arguments for one conversion, byte for byte as it is to get them. Starts nothing.
/// `source` is an absolute path, `output` a path that ffmpeg can open for writing and reading.
std::vector<std::string> conversionArguments(const Preset &preset, const Media &media,
                                             const std::string &source, const std::string &output);

} // namespace standin
