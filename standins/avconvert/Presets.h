#pragma once

#include <string_view>

namespace standin
{

/// How the picture is encoded.
enum class VideoCodec {
    H264,
    Hevc,
    Copy, ///< as it is in the source, as far as an MPEG-4 file can hold it
};

/// What a preset name of macOS's avconvert means here. The result is always an MPEG-4 file
/// with AAC sound; sizes are upper bounds, nothing is enlarged, and a portrait picture gets the box
/// turned.
struct Preset {
    std::string_view name;
    VideoCodec codec = VideoCodec::H264;
    int boxWidth = 0; ///< pixels; 0: as the source
    int boxHeight = 0;
    int crf = 20; ///< constant rate factor of x264 or x265, lower is better
    int audioKilobits = 160; ///< kilobits per second
    int audioChannels = 2; ///< more are mixed down to two, or one is mixed from them
    int videoKilobits = 0; ///< upper bound, a second; 0: none
    int framesPerSecond = 0; ///< upper bound; 0: none
    std::string_view profile = "high"; ///< H.264 only
    std::string_view level = {}; ///< empty: what the picture needs
};

/// Null for an unknown name. Names are compared exactly.
const Preset *findPreset(std::string_view name);

} // namespace standin
