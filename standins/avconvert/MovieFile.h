#pragma once

#include <optional>

namespace standin
{

// Length in seconds that an MPEG-4 file states (ISO/IEC 14496-12), or nothing when it is not whole:
// its boxes do not add up to its size, or the one that describes the streams is missing. Looked up
// here, as starting ffprobe once more would cost more than everything else in this program.
std::optional<double> movieSeconds(int descriptor);

} // namespace standin
