// Proves that each title of the page's list leads to a preset that works, and that no other name
// does.
#include "SampleMedia.h"

#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

class TestPresets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsWithEachOfTheList_data()
    {
        QTest::addColumn<QString>("preset");
        QFile file(u"" TOOLVANE_SOURCE_DIR "/resources/presets/avconvert.plist"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader reader(&file);
        QString title;
        while (reader.readNext() != QXmlStreamReader::EndDocument) {
            QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
            if (reader.isStartElement() && reader.name() == u"key"_s)
                title = reader.readElementText();
            else if (reader.isStartElement() && reader.name() == u"string"_s)
                QTest::newRow(qPrintable(title)) << reader.readElementText();
        }
    }
    void convertsWithEachOfTheList()
    {
        QFETCH(QString, preset);
        const QString title = QString::fromUtf8(QTest::currentDataTag());
        const QString output = m_media.path(preset + u".m4v"_s);
        const RunResult result = convert(preset, source(), output);
        QVERIFY2(result.status == 0, result.errors.constData());
        const QJsonObject media = probe(output);
        QVERIFY(qAbs(secondsOf(media) - 2) < 0.2);
        QCOMPARE(streamsOf(media, u"audio"_s).size(), 1);
        const QList<QJsonObject> videos = streamsOf(media, u"video"_s);
        QCOMPARE(videos.size(), 1);
        const QString codec = videos[0][u"codec_name"].toString();
        if (preset == u"PresetPassthrough"_s)
            QCOMPARE(codec, u"mpeg2video"_s);
        else
            QCOMPARE(codec, title.contains(u"HEVC"_s) ? u"hevc"_s : u"h264"_s);
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

    void refusesOtherNames()
    {
        for (const QString &name : {u"Preset1x1"_s, u"preset640x480"_s, QString()}) {
            const RunResult result = convert(name, source(), m_media.path(u"none.m4v"_s));
            QCOMPARE(result.status, 64);
            QCOMPARE(result.errorLines().size(), 1);
        }
    }

private:
    QString source()
    {
        const QString path = m_media.path(u"source.mpg"_s);
        return QFile::exists(path)
            ? path
            : m_media.make(u"source.mpg"_s, u"VIDEO SOUND -c:v mpeg2video -c:a mp2"_s);
    }

    SampleMedia m_media;
};

QTEST_GUILESS_MAIN(TestPresets)
#include "tst_presets.moc"
