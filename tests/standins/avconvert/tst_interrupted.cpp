// Proves that a conversion which is ended in the middle, or runs out of room, leaves the older
// file, no other file and no running child.
#include "SampleMedia.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

class TestInterrupted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Long enough that the encoder cannot be through when the test sees it run.
    void initTestCase()
    {
        const QString clip =
            m_media.make(u"clip.avi"_s, u"-f lavfi -i mptestsrc=r=25:d=2 -s 352x288 -c:v mpeg4"_s);
        m_source = m_media.make(u"long.avi"_s, u"-stream_loop 90 -i %1 -c copy"_s.arg(clip));
        writeFile(m_media.path(u"out.m4v"_s), "older");
    }

    void leavesNothing_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("TERM") << SIGTERM;
        QTest::newRow("INT") << SIGINT;
        QTest::newRow("KILL") << SIGKILL;
    }
    void leavesNothing()
    {
        QFETCH(int, signal);
        const QStringList before = m_media.names();
        QProcess process;
        process.setProcessEnvironment(plainEnvironment());
        process.start(standinPath(u"avconvert"_s),
                      {u"--preset"_s, u"PresetHEVCHighestQuality"_s, u"--source"_s, m_source,
                       u"--output"_s, m_media.path(u"out.m4v"_s), u"-q"_s});
        QTRY_VERIFY_WITH_TIMEOUT(encoderOf(process.processId()) != 0, 20000);
        const int encoder = encoderOf(process.processId());
        ::kill(static_cast<pid_t>(process.processId()), signal);
        QVERIFY(process.waitForFinished(5000));
        if (signal == SIGKILL) {
            QTRY_VERIFY(!isRunning(encoder));
        } else {
            QCOMPARE(process.exitCode(), 128 + signal);
            QVERIFY(!isRunning(encoder));
        }
        QCOMPARE(m_media.names(), before);
        QCOMPARE(contentOf(m_media.path(u"out.m4v"_s)), "older");
    }

    void leavesTheOlderFileOnFullDisk_data()
    {
        QTest::addColumn<QString>("preset");
        QTest::newRow("encoded") << u"PresetHEVCHighestQuality"_s;
        QTest::newRow("copied") << u"PresetPassthrough"_s;
    }
    void leavesTheOlderFileOnFullDisk()
    {
        QFETCH(QString, preset);
        const QString source = m_media.make(
            u"noise.avi"_s,
            u"-f lavfi -i testsrc2=s=320x240:d=3 -vf noise=alls=60:allf=t -c:v mpeg4 -q:v 2"_s);
        const QString folder = m_media.path(u"small"_s);
        QVERIFY(QDir().mkpath(folder));
        const RunResult result =
            runOnSmallDisk(folder, 200,
                           u"printf older > \"$0/out.m4v\"\n"
                           "\"$1\" --preset \"$2\" --source \"$3\" --output \"$0/out.m4v\" -q\n"
                           "echo $?; ls -A \"$0\"; cat \"$0/out.m4v\"\n"_s,
                           {standinPath(u"avconvert"_s), preset, source});
        if (result.status == 77)
            QSKIP("mounting a small file system is not permitted here");
        QCOMPARE(result.output, "1\nout.m4v\nolder");
        QCOMPARE(result.errorLines().size(), 1);
        QVERIFY2(result.errors.contains("No space left"), result.errors.constData());
    }

private:
    // The encoder, once it has begun to work; the probe that runs before it is something else.
    static int encoderOf(qint64 process)
    {
        for (int child : childrenOf(process)) {
            if (contentOf(u"/proc/%1/comm"_s.arg(child)).trimmed() == "ffmpeg")
                return child;
        }
        return 0;
    }

    SampleMedia m_media;
    QString m_source;
};

QTEST_GUILESS_MAIN(TestInterrupted)
#include "tst_interrupted.moc"
