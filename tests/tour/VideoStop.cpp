#include "Stops.h"
#include "Tour.h"

#include <QWidget>

using namespace Qt::StringLiterals;

void visitVideo(Tour &tour)
{
    const QDir samples = tour.samples();
    const QString video = samples.filePath(u"walk.mp4"_s);
    const QString result = samples.filePath(u"walk.m4v"_s);
    tour.check(tour.witness(u"ffmpeg"_s,
                            {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                             u"testsrc2=size=1280x720:rate=25:duration=3"_s, u"-f"_s, u"lavfi"_s,
                             u"-i"_s, u"sine=duration=3"_s, u"-shortest"_s, video})
                   == 0,
               u"a sample video was made"_s);
    QWidget *page = tour.openTool(u"AVConvertViewController"_s);
    tour.picture(u"video-empty"_s);
    tour.type(page, "sourceField", video);
    tour.choose(page, "outputFormatPopUp", 2);
    tour.type(page, "outputField", result);
    tour.picture(u"video-filled"_s);
    tour.pressUntilMessage(page, "convertButton", u"video-done"_s, qtTrId("Convert is completed."));
    QByteArray streams;
    tour.witness(u"ffprobe"_s,
                 {u"-v"_s, u"error"_s, u"-show_entries"_s, u"stream=codec_name"_s, result},
                 &streams);
    tour.check(streams.contains("h264") && streams.contains("aac"), u"it holds H.264 and AAC"_s);
    QByteArray complaints;
    tour.witness(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-i"_s, result, u"-f"_s, u"null"_s, u"-"_s},
                 &complaints);
    tour.check(complaints.isEmpty(), u"it plays to the last frame"_s);
}
