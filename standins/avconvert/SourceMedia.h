#pragma once

#include <string>
#include <vector>

namespace standin
{

/// What ffprobe reports about one stream of a media file.
struct MediaStream {
    int index = -1; ///< its number in the file
    std::string type; ///< "video", "audio", "subtitle", "data"
    std::string codec;
    bool isCover = false; ///< a still picture that goes with the file
    bool isComplete = false; ///< has a size or a number of channels: can be decoded
    bool isReordered = false; ///< shows its pictures in another order than it stores them
    double seconds = 0; ///< 0: unknown
};

/// What ffprobe reports about a media file.
struct Media {
    std::vector<MediaStream> streams;
    std::string format; ///< ffmpeg's name of the container's reader
    double seconds = 0; ///< 0: unknown

    /// Null if there is none. Pointers stay valid as long as `streams` is not changed.
    const MediaStream *firstVideo() const;
    const MediaStream *firstCover() const; ///< of a kind that an MPEG-4 file can hold
    std::vector<const MediaStream *> audio() const;
    /// Subtitles that are pictures are left out: they make ffmpeg fail if text is wanted.
    std::vector<const MediaStream *> textSubtitles() const;
};

/// The options by which ffprobe and ffmpeg read nothing but the one file: a playlist with the name
/// of a video would otherwise make them open what it names. Both lists are needed: the protocols
/// alone still admit local files. To be given before the input.
std::vector<std::string> readingOptions();

/// Runs ffprobe on a file with an absolute path. Fails with ffprobe's own words for anything that
/// is not a video or sound file.
Media lookInto(const std::string &path);

} // namespace standin
