#pragma once

#include "SourceMedia.h"

#include <optional>
#include <string>

namespace standin
{

// ffmpeg takes an input that stops in the middle for a shorter one and ends with status 0, so
// source and result are both checked.

/// Before the work: fails if an AVI file has less than 95 % of the bytes that its header announces
/// (for these ffprobe lowers the length without a word). Other files pass.
void requireAnnouncedSize(const std::string &path);

/// After it: fails if the result is shorter than the streams that were taken from the source, by
/// more than a second and 5 %. `path` is the source's, for the message.
void requireAnnouncedLength(const Media &source, double resultSeconds, const std::string &path);

/// Length in seconds that an MPEG-4 file states (ISO/IEC 14496-12), or nothing if it is not whole:
/// its boxes do not add up to its size, or the one that describes the streams is missing. Read
/// here, as starting ffprobe once more would cost more than everything else in this program.
std::optional<double> movieSeconds(int descriptor);

} // namespace standin
