#include "Presets.h"

#include <algorithm>
#include <array>

namespace standin
{

namespace
{

using enum VideoCodec;

// One line a preset: what a person reads when a size or a rate has to be found or changed.
// clang-format off
constexpr Preset presets[] = {
    {.name = "Preset640x480",            .boxWidth = 640,  .boxHeight = 480},
    {.name = "Preset960x540",            .boxWidth = 960,  .boxHeight = 540},
    {.name = "Preset1280x720",           .boxWidth = 1280, .boxHeight = 720},
    {.name = "Preset1920x1080",          .boxWidth = 1920, .boxHeight = 1080},
    {.name = "Preset3840x2160",          .boxWidth = 3840, .boxHeight = 2160},

    {.name = "PresetHEVC1920x1080",      .codec = Hevc, .boxWidth = 1920, .boxHeight = 1080, .crf = 23},
    {.name = "PresetHEVC3840x2160",      .codec = Hevc, .boxWidth = 3840, .boxHeight = 2160, .crf = 23},
    {.name = "PresetHEVC7680x4320",      .codec = Hevc, .boxWidth = 7680, .boxHeight = 4320, .crf = 23},
    {.name = "PresetHEVCHighestQuality", .codec = Hevc, .crf = 21},

    {.name = "PresetHighestQuality",     .crf = 17, .audioKilobits = 192},
    {.name = "PresetMediumQuality",      .boxWidth = 568, .boxHeight = 320, .crf = 25, .audioKilobits = 96},
    {.name = "PresetLowQuality",         .boxWidth = 224, .boxHeight = 128, .crf = 30, .audioKilobits = 64,
                                         .audioChannels = 1, .framesPerSecond = 15},

    {.name = "PresetAppleM4V480pSD",     .boxWidth = 854,  .boxHeight = 480,  .videoKilobits = 2500},
    {.name = "PresetAppleM4V720pHD",     .boxWidth = 1280, .boxHeight = 720,  .videoKilobits = 5000},
    {.name = "PresetAppleM4V1080pHD",    .boxWidth = 1920, .boxHeight = 1080, .videoKilobits = 9000},

    // For devices that decode no more than these profiles and levels.
    {.name = "PresetAppleM4ViPod",       .boxWidth = 640,  .boxHeight = 480, .videoKilobits = 1500,
                                         .framesPerSecond = 30, .profile = "baseline", .level = "3.0"},
    {.name = "PresetAppleM4VAppleTV",    .boxWidth = 1280, .boxHeight = 720, .videoKilobits = 5000,
                                         .framesPerSecond = 30, .profile = "main", .level = "3.1"},
    {.name = "PresetAppleM4VWiFi",       .boxWidth = 480,  .boxHeight = 360, .audioKilobits = 96, .videoKilobits = 900,
                                         .framesPerSecond = 30, .profile = "baseline", .level = "3.0"},
    {.name = "PresetAppleM4VCellular",   .boxWidth = 176,  .boxHeight = 144, .audioKilobits = 48,
                                         .audioChannels = 1, .videoKilobits = 100, .framesPerSecond = 15,
                                         .profile = "baseline", .level = "1.1"},

    {.name = "PresetPassthrough",        .codec = Copy},
};
// clang-format on

} // namespace

const Preset *findPreset(std::string_view name)
{
    const auto *found = std::ranges::find(presets, name, &Preset::name);
    return found == std::ranges::end(presets) ? nullptr : found;
}

} // namespace standin
