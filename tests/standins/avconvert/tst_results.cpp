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
    void converts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("making");
        QTest::addColumn<QString>("preset");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("codecs");
        const auto row = [](const char *title, const QString &name, const QString &making,
                            const QString &preset, const QString &size, const QString &codecs) {
            QTest::newRow(title) << name << making << preset << size << codecs;
        };
        const QString h264 = u"Preset640x480"_s;
        const QString low = u"PresetLowQuality"_s;
        const QString copy = u"PresetPassthrough"_s;

        row("into the box", u"wide.mp4"_s, u"-f lavfi -i testsrc2=s=320x100:d=2 SOUND"_s, low,
            u"224x70"_s, u"h264 aac"_s);
        row("portrait turns the box", u"tall.mp4"_s, u"-f lavfi -i testsrc2=s=100x320:d=2"_s, low,
            u"70x224"_s, u"h264"_s);
        row("oblong pixels", u"sar.mp4"_s, u"VIDEO -vf setsar=4/3"_s, h264, u"212x120"_s,
            u"h264"_s);
        row("10 bit, odd size", u"odd.mp4"_s,
            u"-f lavfi -i testsrc2=s=161x121:d=2 -c:v libx264 -pix_fmt yuv444p10le"_s, h264,
            u"160x120"_s, u"h264"_s);
        row("sound only", u"sound.m4v"_s, u"SOUND"_s, h264, QString(), u"aac"_s);
        row("broadcast with 5.1", u"ts.mpg"_s,
            u"VIDEO SOUND -ac 6 -c:v mpeg2video -c:a ac3 -f mpegts"_s, h264, u"160x120"_s,
            u"h264 aac"_s);
        row("subtitles", u"text.mp4"_s,
            u"VIDEO -f srt -i data:text/plain,1%0A00:00:00,000%20-->%2000:00:01,000%0Ahi%0A -c:s mov_text"_s,
            h264, u"160x120"_s, u"h264 mov_text"_s);

        row("copied", u"copy.mp4"_s, u"VIDEO SOUND -c:v libx265 -x265-params log-level=error"_s,
            copy, u"160x120"_s, u"hevc aac"_s);
        row("copied but for the sound", u"pcm.avi"_s,
            u"VIDEO SOUND -c:v mpeg4 -bf 2 -c:a pcm_s16le"_s, copy, u"160x120"_s, u"mpeg4 aac"_s);
        row("copied but for the picture", u"msmpeg.avi"_s, u"VIDEO SOUND -c:v msmpeg4 -c:a mp3"_s,
            copy, u"160x120"_s, u"h264 mp3"_s);
        row("pictures without times", u"h264.avi"_s, u"VIDEO -c:v libx264 -bf 2"_s, copy,
            u"160x120"_s, u"h264"_s);
    }
    void converts()
    {
        QFETCH(QString, name);
        QFETCH(QString, making);
        QFETCH(QString, preset);
        QFETCH(QString, size);
        QFETCH(QString, codecs);
        const QString source = m_media.make(name, making);
        const QString output = m_media.path(u"out %d:'.m4v"_s);
        const RunResult result = convert(preset, source, output);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(result.output + result.errors, QByteArray());

        const QJsonObject media = probe(output);
        QCOMPARE(describeCodecs(media), codecs);
        QCOMPARE(describeSize(media), size);
        QVERIFY(qAbs(secondsOf(media) - 2) < 0.2);
        QCOMPARE(complaintsAbout(output), QByteArray());
        checkPlaysEverywhere(media, output, preset != u"PresetPassthrough"_s);
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
        const QJsonObject media = probe(output);
        QCOMPARE(describeCodecs(media), u"h264 png aac aac"_s);
        QCOMPARE(media[u"format"][u"tags"][u"title"].toString(), u"Z\u00fcrich"_s);
        QVERIFY(media[u"format"][u"tags"][u"creation_time"].toString().startsWith(
            u"2020-02-03T04:05:06"_s));
        QCOMPARE(streamsOf(media, u"audio"_s)[1][u"tags"][u"language"].toString(), u"deu"_s);
    }

    void takesAnyFileName()
    {
        const QString plain = m_media.make(u"plain.mp4"_s, u"SOUND"_s);
        for (const QString &name : {u"-x.mp4"_s, u"100%d.mp4"_s, u"new\nline.mp4"_s, u"http:.mp4"_s,
                                    u"it's [1] #2?.mp4"_s}) {
            QVERIFY(QFile::copy(plain, m_media.path(name)));
            const QString output = m_media.path(u"out "_s + name);
            QCOMPARE(convert(u"PresetPassthrough"_s, m_media.path(name), output).status, 0);
            QVERIFY(QFileInfo(output).size() > 1000);
        }
    }

    void convertsWithEachOfTheList_data()
    {
        QTest::addColumn<QString>("preset");
        const QByteArray list =
            contentOf(u"" TOOLVANE_SOURCE_DIR "/resources/presets/avconvert.plist"_s);
        static const QRegularExpression entry(u"<key>(.*)</key>\\s*<string>(.*)</string>"_s);
        auto entries = entry.globalMatch(QString::fromUtf8(list));
        QVERIFY(entries.hasNext());
        while (entries.hasNext()) {
            const auto match = entries.next();
            QTest::newRow(qPrintable(match.captured(1))) << match.captured(2);
        }
    }
    void convertsWithEachOfTheList()
    {
        QFETCH(QString, preset);
        const bool isHevc = QByteArray(QTest::currentDataTag()).contains("HEVC");
        const QString output = m_media.path(preset + u".m4v"_s);
        const RunResult result = convert(preset, source(), output);
        QVERIFY2(result.status == 0, result.errors.constData());
        const QJsonObject media = probe(output);
        QVERIFY(qAbs(secondsOf(media) - 2) < 0.2);
        const bool isCopied = preset == u"PresetPassthrough"_s;
        const QString encoded = isHevc ? u"hevc aac"_s : u"h264 aac"_s;
        QCOMPARE(describeCodecs(media), isCopied ? u"mpeg2video mp3"_s : encoded);
        checkPlaysEverywhere(media, output, !isCopied);
    }

    void limitsWhatOlderDevicesCannotDecode()
    {
        const QString output = m_media.path(u"device.m4v"_s);
        QCOMPARE(convert(u"PresetAppleM4VCellular"_s, source(), output).status, 0);
        const QJsonObject media = probe(output);
        const QJsonObject video = streamsOf(media, u"video"_s).first();
        QVERIFY(video[u"profile"].toString().contains(u"Baseline"_s));
        QVERIFY(video[u"level"].toInt() <= 11);
        QCOMPARE(video[u"r_frame_rate"].toString(), u"15/1"_s);
        QCOMPARE(streamsOf(media, u"audio"_s).first()[u"channels"].toInt(), 1);
    }

    void refusesOtherPresets()
    {
        for (const QString &name : {u"Preset1x1"_s, u"preset640x480"_s, QString()}) {
            const RunResult result = convert(name, source(), m_media.path(u"none.m4v"_s));
            QCOMPARE(result.status, 64);
            QCOMPARE(result.errorLines().size(), 1);
        }
    }

private:
    QString source() const
    {
        const QString path = m_media.path(u"source.mpg"_s);
        return QFile::exists(path)
            ? path
            : m_media.make(u"source.mpg"_s, u"VIDEO SOUND -c:v mpeg2video -c:a mp2"_s);
    }

    static QString describeCodecs(const QJsonObject &media)
    {
        QStringList names;
        for (const QString &type : {u"video"_s, u"audio"_s, u"subtitle"_s}) {
            for (const QJsonObject &stream : streamsOf(media, type))
                names << stream[u"codec_name"].toString();
        }
        return names.join(u' ');
    }

    static QString describeSize(const QJsonObject &media)
    {
        const auto videos = streamsOf(media, u"video"_s);
        if (videos.isEmpty())
            return {};
        return u"%1x%2"_s.arg(videos[0][u"width"].toInt()).arg(videos[0][u"height"].toInt());
    }

    static void checkPlaysEverywhere(const QJsonObject &media, const QString &path, bool encoded)
    {
        for (const QJsonObject &video : streamsOf(media, u"video"_s)) {
            const QString codec = video[u"codec_name"].toString();
            const QString tag = codec == u"hevc"_s ? u"hvc1"_s : u"avc1"_s;
            if (codec == u"hevc"_s || codec == u"h264"_s)
                QCOMPARE(video[u"codec_tag_string"].toString(), tag);
            if (encoded)
                QCOMPARE(video[u"pix_fmt"].toString(), u"yuv420p"_s);
            if (encoded)
                QCOMPARE(video[u"sample_aspect_ratio"].toString(), u"1:1"_s);
        }
        if (encoded) {
            for (const QJsonObject &audio : streamsOf(media, u"audio"_s))
                QVERIFY(audio[u"channels"].toInt() <= 2);
        }
        const QByteArray content = contentOf(path);
        QVERIFY2(content.indexOf("moov") < content.indexOf("mdat"), "no fast start");
        QVERIFY(runProgram(u"file"_s, {u"-b"_s, path}).output.startsWith("ISO Media"));
    }

    SampleMedia m_media;
};

QTEST_GUILESS_MAIN(TestResults)
#include "tst_results.moc"
