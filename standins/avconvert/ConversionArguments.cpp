#include "ConversionArguments.h"

#include <algorithm>

namespace standin
{

namespace
{

using List = std::vector<std::string>;

List joined(std::initializer_list<List> parts)
{
    List list;
    for (const List &part : parts)
        list.insert(list.end(), part.begin(), part.end());
    return list;
}

std::string rate(int kilobits)
{
    return std::to_string(kilobits) + "k";
}

List mapping(const Media &media)
{
    List list;
    const auto map = [&list](const MediaStream *stream) {
        if (stream)
            list.insert(list.end(), {"-map", "0:" + std::to_string(stream->index)});
    };
    map(media.firstVideo());
    map(media.firstCover());
    std::ranges::for_each(media.audio(), map);
    std::ranges::for_each(media.textSubtitles(), map);
    return joined({list, {"-dn", "-map_metadata", "0", "-map_chapters", "0"}});
}

// Square pixels with even sides first, as the box counts in those; then down into the box, which is
// turned for a portrait picture. ffmpeg has turned the picture upright before.
std::string filters(const Preset &preset)
{
    std::string chain = "yadif=deint=interlaced,"
                        "scale=w='trunc(iw*sar/2)*2':h='trunc(ih/2)*2',setsar=1,";
    if (preset.boxWidth > 0) {
        const std::string width = std::to_string(preset.boxWidth);
        const std::string height = std::to_string(preset.boxHeight);
        chain += "scale=w='if(gte(iw,ih),min(iw," + width + "),min(iw," + height
            + "))':h='if(gte(iw,ih),min(ih," + height + "),min(ih," + width
            + "))':force_original_aspect_ratio=decrease:force_divisible_by=2,setsar=1,";
    }
    if (preset.framesPerSecond > 0)
        chain += "fps=fps='min(source_fps," + std::to_string(preset.framesPerSecond) + ")',";
    return chain + "format=yuv420p";
}

List codecOptions(const Preset &preset)
{
    // The tags are those that players on every system look for.
    if (preset.codec == VideoCodec::Hevc)
        return {"-c:v:0", "libx265", "-x265-params", "log-level=error", "-tag:v:0", "hvc1"};
    const std::string profile(preset.profile);
    return {"-c:v:0", "libx264", "-profile:v:0", profile, "-tag:v:0", "avc1"};
}

List limits(const Preset &preset)
{
    List list;
    if (!preset.level.empty())
        list = {"-level:v:0", std::string(preset.level)};
    if (preset.videoKilobits == 0)
        return list;
    const std::string buffer = rate(2 * preset.videoKilobits);
    return joined({list, {"-maxrate:v:0", rate(preset.videoKilobits), "-bufsize:v:0", buffer}});
}

List videoEncoding(const Preset &preset)
{
    return joined({{"-filter:v:0", filters(preset), "-fps_mode:v:0", "vfr"},
                   codecOptions(preset),
                   {"-preset", "veryfast", "-crf", std::to_string(preset.crf)},
                   limits(preset)});
}

List audioEncoding(const Preset &preset, const std::string &which)
{
    return {"-c" + which,  "aac",
            "-b" + which,  rate(preset.audioKilobits),
            "-ac" + which, std::to_string(preset.audioChannels),
            "-ar" + which, "44100"};
}

bool canBeHeld(const MediaStream &stream, const Media &media)
{
    // AVI files do not give the time of such a picture, which an MPEG-4 file needs.
    const bool timeIsMissing = media.format == "avi" && stream.isReordered
        && (stream.codec == "h264" || stream.codec == "hevc");
    static constexpr std::string_view codecs[] = {
        "h264", "hevc", "mpeg4", "mpeg2video", "mpeg1video", "mjpeg", "av1",  "vp9",
        "aac",  "mp3",  "mp2",   "ac3",        "eac3",       "alac",  "flac", "opus"};
    return !timeIsMissing && std::ranges::find(codecs, stream.codec) != std::ranges::end(codecs);
}

List videoCopy(const MediaStream &video)
{
    if (video.codec == "hevc")
        return {"-c:v:0", "copy", "-tag:v:0", "hvc1"};
    if (video.codec == "mpeg4") // AVI files pack two pictures into one
        return {"-c:v:0", "copy", "-bsf:v:0", "mpeg4_unpack_bframes"};
    return {"-c:v:0", "copy"};
}

// Copies what an MPEG-4 file can hold. The rest is encoded at the best preset rather than left out:
// a video that lost its sound is not a success.
List passThrough(const Media &media)
{
    const Preset &best = *findPreset("PresetHighestQuality");
    List list;
    if (const MediaStream *video = media.firstVideo())
        list = canBeHeld(*video, media) ? videoCopy(*video) : videoEncoding(best);
    int number = 0;
    for (const MediaStream *stream : media.audio()) {
        const std::string which = ":a:" + std::to_string(number++);
        const List copy{"-c" + which, "copy"};
        list = joined({list, canBeHeld(*stream, media) ? copy : audioEncoding(best, which)});
    }
    return list;
}

List encoding(const Preset &preset, const Media &media)
{
    return joined({media.firstVideo() ? videoEncoding(preset) : List(),
                   media.audio().empty() ? List() : audioEncoding(preset, ":a")});
}

List coverCopy(const Media &media)
{
    if (!media.firstCover())
        return {};
    const std::string which = media.firstVideo() ? ":v:1" : ":v:0";
    return {"-c" + which, "copy", "-disposition" + which, "attached_pic"};
}

} // namespace

List conversionArguments(const Preset &preset, const Media &media, const std::string &source,
                         const std::string &output)
{
    const bool copies = preset.codec == VideoCodec::Copy;
    return joined(
        {{"-v", "error", "-nostdin", "-hide_banner", "-nostats", "-progress", "pipe:1", "-y"},
         readingOptions(),
         {"-fflags", "+genpts", "-i", "file:" + source},
         mapping(media),
         copies ? passThrough(media) : encoding(preset, media),
         coverCopy(media),
         {"-c:s", "mov_text", "-movflags", "+faststart", "-brand", "M4V ", "-f", "mp4"},
         {"file:" + output}});
}

} // namespace standin
