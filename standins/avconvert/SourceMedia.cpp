#include "SourceMedia.h"

#include "Failure.h"
#include "RunToEnd.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace standin
{

namespace
{

using Fields = std::map<std::string, std::string, std::less<>>;

template <typename Number>
Number numberIn(const Fields &fields, std::string_view name)
{
    Number value{};
    if (const auto field = fields.find(name); field != fields.end()) {
        const std::string &text = field->second; // "N/A" leaves 0
        std::from_chars(text.data(), text.data() + text.size(), value);
    }
    return value;
}

std::string textIn(const Fields &fields, std::string_view name)
{
    const auto field = fields.find(name);
    return field == fields.end() ? std::string() : field->second;
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const auto end = std::min(text.find(separator), text.size());
        parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

Fields fieldsOf(std::string_view line)
{
    Fields fields;
    for (std::string_view part : split(line, '|')) {
        const auto equals = part.find('=');
        if (equals != std::string_view::npos)
            fields.emplace(part.substr(0, equals), part.substr(equals + 1));
    }
    return fields;
}

MediaStream streamFrom(const Fields &fields)
{
    MediaStream stream;
    stream.index = numberIn<int>(fields, "index");
    stream.type = textIn(fields, "codec_type");
    stream.codec = textIn(fields, "codec_name");
    stream.isCover = numberIn<int>(fields, "disposition:attached_pic") == 1;
    stream.isComplete = numberIn<int>(fields, "width") > 0 || numberIn<int>(fields, "channels") > 0;
    stream.isReordered = numberIn<int>(fields, "has_b_frames") > 0;
    stream.seconds = numberIn<double>(fields, "duration");
    return stream;
}

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::ranges::find(names, name) != names.end();
}

} // namespace

std::vector<std::string> readingOptions()
{
    return {"-protocol_whitelist", "file", "-format_whitelist", "mov,mpeg,mpegvideo,mpegts,avi"};
}

Media parseMedia(std::string_view text)
{
    Media media;
    for (std::string_view line : split(text, '\n')) {
        const Fields fields = fieldsOf(line);
        if (line.starts_with("stream|")) {
            MediaStream stream = streamFrom(fields);
            // A broadcast file lists its streams once more under each programme.
            if (std::ranges::find(media.streams, stream.index, &MediaStream::index)
                == media.streams.end())
                media.streams.push_back(std::move(stream));
        } else if (line.starts_with("format|")) {
            media.format = textIn(fields, "format_name");
            media.seconds = numberIn<double>(fields, "duration");
        }
    }
    return media;
}

Media lookInto(const std::string &path)
{
    const std::string address = "file:" + path;
    Command probe{.program = "ffprobe", .package = "ffmpeg", .arguments = {"-v", "error"}};
    const auto reading = readingOptions();
    probe.arguments.insert(probe.arguments.end(), reading.begin(), reading.end());
    const std::string entries =
        "stream=index,codec_type,codec_name,width,channels,has_b_frames,duration"
        ":stream_disposition=attached_pic:format=format_name,duration";
    for (const std::string &argument : {std::string("-show_entries"), entries, std::string("-of"),
                                        std::string("compact"), std::string("-i"), address})
        probe.arguments.push_back(argument);
    std::string text;
    const Finished finished = runToEnd(probe, [&text](std::string_view bytes) { text += bytes; });
    if (!finished.succeeded()) {
        const bool named = finished.lastWords.starts_with(address + ": ");
        const std::string words =
            named ? finished.lastWords.substr(address.size() + 2) : finished.lastWords;
        fail(path, "Not a readable video (" + words + ")");
    }
    return parseMedia(text);
}

const MediaStream *Media::firstVideo() const
{
    const auto found = std::ranges::find_if(streams, [](const MediaStream &stream) {
        return stream.type == "video" && !stream.isCover && stream.isComplete;
    });
    return found == streams.end() ? nullptr : &*found;
}

const MediaStream *Media::firstCover() const
{
    const auto found = std::ranges::find_if(streams, [](const MediaStream &stream) {
        return stream.isCover && isOneOf(stream.codec, {"mjpeg", "png"});
    });
    return found == streams.end() ? nullptr : &*found;
}

std::vector<const MediaStream *> Media::audio() const
{
    std::vector<const MediaStream *> found;
    for (const MediaStream &stream : streams) {
        if (stream.type == "audio" && stream.isComplete)
            found.push_back(&stream);
    }
    return found;
}

// Subtitles that are pictures make ffmpeg fail when text is asked for.
std::vector<const MediaStream *> Media::textSubtitles() const
{
    std::vector<const MediaStream *> found;
    for (const MediaStream &stream : streams) {
        if (stream.type == "subtitle"
            && isOneOf(stream.codec, {"mov_text", "subrip", "ass", "webvtt", "text"}))
            found.push_back(&stream);
    }
    return found;
}

} // namespace standin
