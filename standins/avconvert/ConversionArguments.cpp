#include "ConversionArguments.h"

#include <algorithm>

namespace standin
{

namespace
{

using List = std::vector<std::string>;

void append(List &list, const List &more)
{
    list.insert(list.end(), more.begin(), more.end());
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
            append(list, {"-map", "0:" + std::to_string(stream->index)});
    };
    map(media.firstVideo());
    map(media.firstCover());
    for (const MediaStream *stream : media.audio())
        map(stream);
    for (const MediaStream *stream : media.textSubtitles())
        map(stream);
    append(list, {"-dn", "-map_metadata", "0", "-map_chapters", "0"});
    return list;
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

// The tags are those that players on every system look for.
List videoEncoding(const Preset &preset)
{
    List list{"-filter:v:0", filters(preset), "-fps_mode:v:0", "vfr"};
    if (preset.codec == VideoCodec::Hevc)
        append(list, {"-c:v:0", "libx265", "-x265-params", "log-level=error", "-tag:v:0", "hvc1"});
    else
        append(
            list,
            {"-c:v:0", "libx264", "-profile:v:0", std::string(preset.profile), "-tag:v:0", "avc1"});
    append(list, {"-preset", "veryfast", "-crf", std::to_string(preset.crf)});
    if (!preset.level.empty())
        append(list, {"-level:v:0", std::string(preset.level)});
    if (preset.videoKilobits > 0)
        append(list,
               {"-maxrate:v:0", rate(preset.videoKilobits), "-bufsize:v:0",
                rate(2 * preset.videoKilobits)});
    return list;
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
    List list{"-c:v:0", "copy"};
    if (video.codec == "hevc")
        append(list, {"-tag:v:0", "hvc1"});
    if (video.codec == "mpeg4") // AVI files pack two pictures into one
        append(list, {"-bsf:v:0", "mpeg4_unpack_bframes"});
    return list;
}

// Copies what an MPEG-4 file can hold. The rest is encoded at the best preset rather than left out:
// a video that lost its sound is not a success.
List passThrough(const Media &media)
{
    const Preset &best = *findPreset("PresetHighestQuality");
    List list;
    if (const MediaStream *video = media.firstVideo())
        append(list, canBeHeld(*video, media) ? videoCopy(*video) : videoEncoding(best));
    int number = 0;
    for (const MediaStream *stream : media.audio()) {
        const std::string which = ":a:" + std::to_string(number++);
        append(list,
               canBeHeld(*stream, media) ? List{"-c" + which, "copy"} : audioEncoding(best, which));
    }
    return list;
}

List encoding(const Preset &preset, const Media &media)
{
    List list;
    if (media.firstVideo())
        append(list, videoEncoding(preset));
    if (!media.audio().empty())
        append(list, audioEncoding(preset, ":a"));
    return list;
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
    List list{"-v", "error", "-nostdin", "-hide_banner", "-nostats", "-y"};
    append(list, readingOptions());
    append(list, {"-fflags", "+genpts", "-i", "file:" + source});
    append(list, mapping(media));
    append(list, preset.codec == VideoCodec::Copy ? passThrough(media) : encoding(preset, media));
    append(list, coverCopy(media));
    append(list,
           {"-c:s", "mov_text", "-movflags", "+faststart", "-brand", "M4V ", "-f", "mp4",
            "file:" + output});
    return list;
}

} // namespace standin
