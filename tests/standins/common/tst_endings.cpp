// Proves that a stand-in program which is ended in the middle, or runs out of room, leaves the
// older file, nothing beside it and no running child.
#include "ImageTrial.h"
#include "SampleMedia.h"

#include <QTest>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

volatile std::sig_atomic_t s_isOpened = 0;

} // namespace

class TestEndings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Long enough that the encoder cannot be through when the test sees it run.
        const QString clip =
            m_media.make(u"clip.avi"_s, u"-f lavfi -i mptestsrc=r=25:d=2 -s 352x288 -c:v mpeg4"_s);
        m_media.make(u"long.avi"_s, u"-stream_loop 90 -i %1 -c copy"_s.arg(clip));
        m_media.make(u"noise.avi"_s, u"VIDEO -vf noise=alls=60:allf=t -c:v mpeg4 -q:v 2"_s);
        QVERIFY(QDir().mkpath(m_media.path(u"images"_s)) && QDir().mkpath(m_folder));
        writeFile(m_media.path(u"images/a"_s), QByteArray(1'000'000, 'x'));
        writeFile(m_blocker, "y");
    }
    void init() { writeFile(m_target, "older"); }

    void endedFromOutside_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<int>("signal");
        const QStringList video = movie(u"PresetHEVCHighestQuality"_s, u"long.avi"_s);
        QTest::newRow("movie, TERM") << video << SIGTERM;
        QTest::newRow("movie, KILL") << video << SIGKILL;
        QTest::newRow("HFS Plus, TERM") << image(true) << SIGTERM;
        QTest::newRow("HFS Plus, KILL") << image(true) << SIGKILL;
        QTest::newRow("hybrid, TERM") << image(false) << SIGTERM;
        QTest::newRow("hybrid, KILL") << image(false) << SIGKILL;
    }
    // The middle: the encoder works, or the last file of an image's source is about to be opened;
    // whoever does that has to wait until the lease ends.
    void endedFromOutside()
    {
        QFETCH(QStringList, command);
        QFETCH(int, signal);
        const int blocker = ::open(qPrintable(m_blocker), O_RDWR | O_CLOEXEC);
        const auto closeBlocker = qScopeGuard([blocker] { ::close(blocker); });
        s_isOpened = 0;
        std::signal(SIGIO, [](int) { s_isOpened = 1; });
        if (::fcntl(blocker, F_SETLEASE, F_WRLCK) != 0)
            QSKIP("no leases on this file system");
        QProcess process;
        process.setProcessEnvironment(plainEnvironment());
        process.start(command.first(), command.mid(1));
        const qint64 number = process.processId();
        QTRY_VERIFY_WITH_TIMEOUT(s_isOpened || isEncoding(number), 30000);
        const QList<int> children = childrenOf(number);
        QCOMPARE(children.isEmpty(), command.contains(u"-hfs"_s));
        ::kill(static_cast<pid_t>(number), signal);
        QVERIFY(process.waitForFinished());
        if (signal == SIGKILL)
            QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        else
            QCOMPARE(process.exitCode(), 128 + signal);
        for (const int child : children) // after KILL the kernel ends them, in its own time
            QTRY_VERIFY_WITH_TIMEOUT(!isRunning(child), signal == SIGKILL ? 5000 : 0);
        QCOMPARE(process.readAllStandardError(), QByteArray());
        QCOMPARE(entriesOf(m_folder), QStringList{u"out"_s});
        QCOMPARE(contentOf(m_target), "older");
    }

    void fullDisk_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<QByteArray>("words");
        const auto row = [](const char *name, const QStringList &command, const char *words) {
            QTest::newRow(name) << command << QByteArray(words);
        };
        row("encoded", movie(u"PresetHEVCHighestQuality"_s, u"noise.avi"_s), "No space left");
        row("copied", movie(u"PresetPassthrough"_s, u"noise.avi"_s), "No space left");
        row("HFS Plus", image(true), "No space left");
        row("hybrid", image(false), "exceeds free space");
        row("speech",
            {standinPath(u"say"_s), u"Ninety-nine bottles. "_s.repeated(50), u"--voice=German"_s,
             u"--rate=175"_s, u"--output-file="_s + m_target},
            "No space left");
    }
    void fullDisk()
    {
        QFETCH(QStringList, command);
        QFETCH(QByteArray, words);
        const RunResult result =
            onDisk(u"\"$@\"; echo $?; ls -A \"$0\"; cat \"$0/out\""_s, command);
        QCOMPARE(result.output, "1\nout\nolder");
        QVERIFY2(result.errors.contains(words), result.errors.constData());
        QCOMPARE(result.errorLines().size(), 1);
    }

    void impossibleImage_data()
    {
        QTest::addColumn<QString>("preparation"); // a shell script that runs in the trial's folder
        QTest::addColumn<QByteArray>("reason");
        const auto row = [](const char *what, const QString &preparation, const char *reason) {
            QTest::newRow(what) << preparation << QByteArray(reason);
        };
        row("no source", u"rm -r source"_s, "/source: No such file or directory\n");
        row("source is a fifo", u"rm -r source; mkfifo source"_s, "/source: Not a directory\n");
        row("folder without writing", u"chmod 555 ."_s, ": Permission denied\n");
        row("file that may not be read", u"chmod 0 source/sub/file"_s, "sub/file");
        row("folder that may not be read", u"chmod 0 source/sub"_s, "sub");
    }
    void impossibleImage()
    {
        QFETCH(QString, preparation);
        QFETCH(QByteArray, reason);
        // Takes from root what lets it ignore the modes of files.
        const QStringList obeyingModes{u"setpriv"_s, u"--bounding-set=-all"_s,
                                       u"--inh-caps=-all"_s};
        for (const bool isHfs : {true, false}) {
            const ImageTrial trial;
            trial.makeFile("source/sub/file", "x");
            trial.makeFile("image", "older");
            const QStringList before = trial.entries();
            QCOMPARE(runProgram(u"sh"_s,
                                {u"-c"_s, u"cd \"$0\" && "_s + preparation,
                                 QString::fromLocal8Bit(trial.path("."))})
                         .status,
                     0);
            const auto end =
                trial.makeImage(isHfs, u"V"_s, ::geteuid() == 0 ? obeyingModes : QStringList());
            QCOMPARE(end.status, 1);
            QVERIFY2(end.errors.startsWith("hdiutil: ") && end.errors.contains(reason),
                     end.errors.constData());
            QCOMPARE(end.errorLines().size(), 1);
            QVERIFY(trial.entries() == before || trial.entries() == QStringList{u"image"_s});
            QCOMPARE(contentOf(trial.image()), "older");
        }
    }

    void readOnlyDisk()
    {
        const RunResult result =
            onDisk(u"mount -o remount,ro \"$0\"; \"$@\"; echo $?; ls -A \"$0\"; cat \"$0/out\""_s,
                   image(true));
        QCOMPARE(result.output, "1\nout\nolder");
        QVERIFY2(result.errors.endsWith("Read-only file system\n"), result.errors.constData());
    }

private:
    QStringList movie(const QString &preset, const QString &source) const
    {
        return {standinPath(u"avconvert"_s), u"--preset"_s, preset,   u"--source"_s,
                m_media.path(source),        u"--output"_s, m_target, u"-q"_s};
    }
    QStringList image(bool isHfs) const
    {
        return ImageTrial::command(isHfs, m_target, u"V"_s, m_media.path(u"images"_s));
    }

    static bool isEncoding(qint64 process)
    {
        const QList<int> children = childrenOf(process);
        return std::any_of(children.begin(), children.end(), [](int child) {
            return contentOf(u"/proc/%1/comm"_s.arg(child)).trimmed() == "ffmpeg";
        });
    }

    // In a mount namespace of its own where the folder ($0) lies on a disk of 200 KiB.
    RunResult onDisk(const QString &script, const QStringList &command) const
    {
        const auto mount =
            u"mount -t tmpfs -o size=200k tmpfs \"$0\" && printf older > \"$0/out\"\n"_s;
        const QStringList shell{u"--user"_s, u"--map-root-user"_s, u"--mount"_s, u"sh"_s, u"-c"_s};
        return runProgram(u"unshare"_s, shell + QStringList{mount + script, m_folder} + command);
    }

    SampleMedia m_media;
    const QString m_folder = m_media.path(u"place"_s);
    const QString m_target = m_media.path(u"place/out"_s);
    const QString m_blocker = m_media.path(u"images/b"_s);
};

QTEST_GUILESS_MAIN(TestEndings)
#include "tst_endings.moc"
