#include "SourceMedia.h"

#include "Failure.h"
#include "RunToEnd.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace standin
{

namespace
{

using namespace Qt::StringLiterals;

// Some numbers come as text; "N/A" is 0.
double secondsIn(const QJsonObject &object)
{
    return object["duration"_L1].toString().toDouble();
}

MediaStream streamFrom(const QJsonObject &object)
{
    MediaStream stream;
    stream.index = object["index"_L1].toInt(-1);
    stream.type = object["codec_type"_L1].toString().toStdString();
    stream.codec = object["codec_name"_L1].toString().toStdString();
    stream.isCover = object["disposition"_L1]["attached_pic"_L1].toInt() == 1;
    stream.isComplete = object["width"_L1].toInt() > 0 || object["channels"_L1].toInt() > 0;
    stream.isReordered = object["has_b_frames"_L1].toInt() > 0;
    stream.seconds = secondsIn(object);
    return stream;
}

// What is missing or of another type in ffprobe's JSON stays as it is in a new Media.
Media parseMedia(const std::string &json)
{
    const QJsonObject root = QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
    const QJsonObject format = root["format"_L1].toObject();
    Media media;
    media.format = format["format_name"_L1].toString().toStdString();
    media.seconds = secondsIn(format);
    for (const QJsonValue stream : root["streams"_L1].toArray())
        media.streams.push_back(streamFrom(stream.toObject()));
    return media;
}

template <typename Predicate>
std::vector<const MediaStream *> streamsThat(const Media &media, Predicate fits)
{
    std::vector<const MediaStream *> found;
    for (const MediaStream &stream : media.streams) {
        if (fits(stream))
            found.push_back(&stream);
    }
    return found;
}

const MediaStream *firstOf(const std::vector<const MediaStream *> &streams)
{
    return streams.empty() ? nullptr : streams.front();
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

Media lookInto(const std::string &path)
{
    const std::string address = "file:" + path;
    Command probe{.program = "ffprobe", .package = "ffmpeg", .arguments = readingOptions()};
    const std::initializer_list<std::string> more{
        "-v",
        "error",
        "-show_entries",
        "stream=index,codec_type,codec_name,width,channels,has_b_frames,duration"
        ":stream_disposition=attached_pic:format=format_name,duration",
        "-of",
        "json",
        "-i",
        address};
    probe.arguments.insert(probe.arguments.end(), more);
    std::string json;
    const Finished finished = runToEnd(probe, [&json](std::string_view bytes) { json += bytes; });
    if (finished.succeeded())
        return parseMedia(json);
    const bool named = finished.lastWords.starts_with(address + ": ");
    const auto words = finished.lastWords.substr(named ? address.size() + 2 : 0);
    fail(path, "Not a readable video (" + words + ")");
}

const MediaStream *Media::firstVideo() const
{
    return firstOf(streamsThat(*this, [](const MediaStream &stream) {
        return stream.type == "video" && !stream.isCover && stream.isComplete;
    }));
}

const MediaStream *Media::firstCover() const
{
    return firstOf(streamsThat(*this, [](const MediaStream &stream) {
        return stream.isCover && isOneOf(stream.codec, {"mjpeg", "png"});
    }));
}

std::vector<const MediaStream *> Media::audio() const
{
    return streamsThat(*this, [](const MediaStream &stream) {
        return stream.type == "audio" && stream.isComplete;
    });
}

std::vector<const MediaStream *> Media::textSubtitles() const
{
    return streamsThat(*this, [](const MediaStream &stream) {
        return stream.type == "subtitle"
            && isOneOf(stream.codec, {"mov_text", "subrip", "ass", "webvtt", "text"});
    });
}

} // namespace standin
