// Proves that every kind of source becomes, with each preset of the page's list, a file that plays
// everywhere, in the right size and whole, by what ffprobe says and by decoding it to its end.
#include "SampleMedia.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class TestResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts()
    {
        const QString h264 = u"Preset640x480"_s;
        const QString copy = u"PresetPassthrough"_s;
        // Portrait: the box is turned.
        checkConversion(u"-x.mp4"_s, u"-f lavfi -i testsrc2=s=100x320:d=2"_s, u"PresetLowQuality"_s,
                        70, "h264");
        checkConversion(u"100%d.mp4"_s, u"VIDEO -vf setsar=4/3"_s, h264, 212, "h264");
        // Ten bit, an odd size.
        checkConversion(u"new\nline.mp4"_s,
                        u"-f lavfi -i testsrc2=s=161x121:d=2 -c:v libx264 -pix_fmt yuv444p10le"_s,
                        h264, 160, "h264");
        checkConversion(u"http:.m4v"_s, u"SOUND"_s, h264, 0, "aac");
        // A broadcast with 5.1.
        checkConversion(u"it's [1] #2?.mpg"_s,
                        u"VIDEO SOUND -ac 6 -c:v mpeg2video -c:a ac3 -f mpegts"_s, h264, 160,
                        "h264 aac");
        checkConversion(
            u"text.mp4"_s,
            u"VIDEO -f srt -i data:text/plain,1%0A00:00:00,000%20-->%2000:00:01,000%0Ahi%0A -c:s mov_text"_s,
            h264, 160, "h264 mov_text");

        // Copied, all of it or what can be.
        checkConversion(u"copy.mp4"_s, u"VIDEO SOUND -c:v libx265 -x265-params log-level=error"_s,
                        copy, 160, "hevc aac");
        checkConversion(u"pcm.avi"_s, u"VIDEO SOUND -c:v mpeg4 -bf 2 -c:a pcm_s16le"_s, copy, 160,
                        "mpeg4 aac");
        checkConversion(u"msmpeg.avi"_s, u"VIDEO SOUND -c:v msmpeg4 -c:a mp3"_s, copy, 160,
                        "h264 mp3");
        // Pictures without times.
        checkConversion(u"h264.avi"_s, u"VIDEO -c:v libx264 -bf 2"_s, copy, 160, "h264");
    }

    void keepsWhatElseIsInTheFile()
    {
        const QString cover =
            m_media.make(u"cover.png"_s, u"-f lavfi -i color=red:s=32x32 -frames:v 1"_s);
        const QString source =
            m_media.make(u"rich.mp4"_s,
                         u"VIDEO SOUND SOUND -i %1 -map 0 -map 1 -map 2 -map 3 -c:v:1 copy "
                         u"-disposition:v:1 attached_pic "
                         "-metadata title=Z\u00fcrich -metadata creation_time=2020-02-03T04:05:06Z "
                         "-metadata:s:a:1 language=deu"_s.arg(cover));
        const QString output = m_media.path(u"rich.m4v"_s);
        const RunResult result = convert(u"Preset640x480"_s, source, output);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(codecsOf(output), "h264 aac aac png");
        const QByteArray tags =
            probe(output, u"format_tags=title,creation_time:stream_tags=language"_s);
        for (const char *tag : {"Z\u00fcrich", "2020-02-03T04:05:06", "deu"})
            QVERIFY2(tags.contains(tag), tags.constData());
    }

    void convertsWithEachOfTheList()
    {
        const QByteArray list =
            contentOf(u"" TOOLVANE_SOURCE_DIR "/resources/presets/avconvert.plist"_s);
        static const QRegularExpression entry(u"<key>(.*)</key>\\s*<string>(.*)</string>"_s);
        auto entries = entry.globalMatch(QString::fromUtf8(list));
        QVERIFY(entries.hasNext());
        while (entries.hasNext()) {
            const auto match = entries.next();
            const bool isHevc = match.captured(1).contains(u"HEVC");
            const QString preset = match.captured(2);
            const QString output = m_media.path(preset + u".m4v"_s);
            const RunResult result = convert(preset, source(), output);
            QVERIFY2(result.status == 0, qPrintable(preset + QLatin1String(result.errors)));
            const bool isCopied = preset == u"PresetPassthrough"_s;
            const char *encoded = isHevc ? "hevc aac" : "h264 aac";
            QCOMPARE(codecsOf(output), isCopied ? "mpeg2video mp3" : encoded);
            checkPlaysEverywhere(output, !isCopied);
        }
    }

    void limitsWhatOlderDevicesCannotDecode()
    {
        const QString output = m_media.path(u"device.m4v"_s);
        QCOMPARE(convert(u"PresetAppleM4VCellular"_s, source(), output).status, 0);
        QCOMPARE(probe(output, u"stream=profile,r_frame_rate"_s, u"v"_s),
                 "Constrained Baseline,15/1");
        QVERIFY(probe(output, u"stream=level"_s, u"v"_s).toInt() <= 11);
        QCOMPARE(probe(output, u"stream=channels"_s, u"a"_s), "1");
    }

private:
    QString source() const
    {
        const QString path = m_media.path(u"source.mpg"_s);
        return QFile::exists(path)
            ? path
            : m_media.make(u"source.mpg"_s, u"VIDEO SOUND -c:v mpeg2video -c:a mp2"_s);
    }

    // A width of 0: no picture.
    void checkConversion(const QString &name, const QString &making, const QString &preset,
                         int width, const QByteArray &codecs)
    {
        const QString source = m_media.make(name, making);
        const QString output = m_media.path(u"out %d:'.m4v"_s);
        const RunResult result = convert(preset, source, output);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(result.output + result.errors, QByteArray());
        QCOMPARE(codecsOf(output), codecs);
        QCOMPARE(probe(output, u"stream=width"_s, u"v"_s).toInt(), width);
        QCOMPARE(complaintsAbout(output), QByteArray());
        checkPlaysEverywhere(output, preset != u"PresetPassthrough"_s);
    }

    static QByteArray codecsOf(const QString &path)
    {
        return probe(path, u"stream=codec_name"_s).replace(',', "").simplified();
    }

    static void checkPlaysEverywhere(const QString &path, bool encoded)
    {
        QVERIFY(qAbs(probe(path, u"format=duration"_s).toDouble() - 2) < 0.2);
        const QByteArray video = probe(
            path, u"stream=codec_name,codec_tag_string,sample_aspect_ratio,pix_fmt"_s, u"v"_s);
        if (video.startsWith("h264") || video.startsWith("hevc"))
            QCOMPARE(video.mid(5, 4), video.startsWith("hevc") ? "hvc1" : "avc1");
        if (encoded && !video.isEmpty())
            QVERIFY2(video.endsWith(",1:1,yuv420p"), video.constData());
        if (encoded)
            QVERIFY(probe(path, u"stream=channels"_s, u"a"_s).toInt() <= 2);
        const QByteArray content = contentOf(path);
        QVERIFY2(content.indexOf("moov") < content.indexOf("mdat"), "no fast start");
        QVERIFY(runProgram(u"file"_s, {u"-b"_s, path}).output.startsWith("ISO Media"));
    }

    SampleMedia m_media;
};

QTEST_GUILESS_MAIN(TestResults)
#include "tst_results.moc"
