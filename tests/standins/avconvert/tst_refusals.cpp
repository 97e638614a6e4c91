// Proves that a conversion which cannot be done gives its reason in one line, leaves an older
// output byte for byte and nothing else, and reads no file but its source.
#include "SampleMedia.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class TestRefusals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString video =
            m_media.make(u"good.mp4"_s, u"-f lavfi -i testsrc2=s=160x120:d=4 SOUND"_s);
        const QString avi =
            m_media.make(u"good.avi"_s, u"-f lavfi -i testsrc2=s=160x120:d=4 SOUND"_s);
        const QString early =
            m_media.make(u"early.mp4"_s, u"-i %1 -c copy -movflags +faststart"_s.arg(video));
        m_media.cut(video, 0.5, u"half.mp4"_s);
        m_media.cut(avi, 0.5, u"half.avi"_s);
        m_media.cut(early, 0.5, u"halfearly.mp4"_s);
        writeFile(m_media.path(u"text.avi"_s), "This is no video.\n");
        // What the lists name is a fifo: whoever opens it waits, and so is seen.
        const QString bait = m_media.path(u"fifo.mp4"_s);
        QCOMPARE(::mkfifo(qPrintable(bait), 0600), 0);
        writeFile(m_media.path(u"playlist.avi"_s),
                  "#EXTM3U\n#EXT-X-TARGETDURATION:4\n#EXTINF:4,\nfile://" + bait.toUtf8()
                      + "\n#EXT-X-ENDLIST\n");
        writeFile(m_media.path(u"list.mp4"_s), "ffconcat version 1.0\nfile fifo.mp4\n");
        m_media.make(u"picture.mp4"_s, u"-f lavfi -i color=red -frames:v 1 -f image2 -c:v png"_s);
        QCOMPARE(::link(qPrintable(video), qPrintable(m_media.path(u"hard.mp4"_s))), 0);
        QVERIFY(QFile::link(u"good.mp4"_s, m_media.path(u"soft.mp4"_s)));
        writeFile(m_media.path(u"out.m4v"_s), "older");
    }

    void leavesTheOlderFile()
    {
        for (const auto &[source, words] :
             {std::pair(u"none.mp4"_s, "No such file or directory"),
              std::pair(u"."_s, "Is a directory"), std::pair(u"fifo.mp4"_s, "Not a regular file"),
              std::pair(u"text.avi"_s, "Not a readable video"),
              std::pair(u"picture.mp4"_s, "Not a readable video"),
              std::pair(u"playlist.avi"_s, "Not a readable video"),
              std::pair(u"list.mp4"_s, "Not a readable video"),
              std::pair(u"half.mp4"_s, "Not a readable video"),
              std::pair(u"halfearly.mp4"_s, "ends in the middle"),
              std::pair(u"half.avi"_s, "ends in the middle")}) {
            for (const QString &preset : {u"Preset640x480"_s, u"PresetPassthrough"_s}) {
                checkRefused(preset, m_media.path(source), m_media.path(u"out.m4v"_s), words);
                QCOMPARE(contentOf(m_media.path(u"out.m4v"_s)), "older");
            }
        }
    }

    void refusesTheSourceAsOutput()
    {
        const QByteArray before = contentOf(m_media.path(u"good.mp4"_s));
        for (const QString &output : {u"good.mp4"_s, u"hard.mp4"_s, u"soft.mp4"_s}) {
            checkRefused(u"Preset640x480"_s, m_media.path(u"good.mp4"_s), m_media.path(output),
                         "/" + output.toUtf8() + ": Source and output are the same file");
            QVERIFY(contentOf(m_media.path(u"good.mp4"_s)) == before);
        }
    }

private:
    void checkRefused(const QString &preset, const QString &source, const QString &output,
                      const QByteArray &words)
    {
        const QStringList before = m_media.names();
        const RunResult result = convert(preset, source, output);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(words), result.errors.constData());
        QVERIFY(result.errors.startsWith("avconvert: "));
        QCOMPARE(result.errorLines().size(), 1);
        QCOMPARE(m_media.names(), before);
    }

    SampleMedia m_media;
};

QTEST_GUILESS_MAIN(TestRefusals)
#include "tst_refusals.moc"
