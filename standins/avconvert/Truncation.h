#pragma once

#include "SourceMedia.h"

#include <string>

namespace standin
{

// ffmpeg takes an input that stops in the middle for a shorter one and ends with status 0, so both
// sides of the work are looked at.

// Before it: fails when an AVI file has less than 95 % of the bytes that its header announces (for
// these ffprobe lowers the length without a word). Other files pass.
void requireAnnouncedSize(const std::string &path);

// After it: fails when the result is shorter than the streams that were taken from the source, by
// more than a second and 5 %. `path` is the source's, for the message.
void requireAnnouncedLength(const Media &source, double resultSeconds, const std::string &path);

} // namespace standin
