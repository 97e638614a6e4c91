// Proves that a run which cannot succeed says why in one line, ends with the right status and
// leaves everything as it was: the older image, and nothing beside it.

#include "ImageTrial.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

// Takes from root what lets it ignore the modes of files.
QStringList obeyingModes()
{
    if (::geteuid() != 0)
        return {};
    return {u"setpriv"_s, u"--bounding-set=-all"_s, u"--inh-caps=-all"_s};
}

// A shell in a mount namespace of its own; $1 is the folder of the trial, the rest the command.
QStringList withMounts(const QString &script, const ImageTrial &trial)
{
    return {u"unshare"_s,
            u"-rm"_s,
            u"sh"_s,
            u"-c"_s,
            u"folder=$1; shift; "_s + script,
            u"sh"_s,
            QString::fromLocal8Bit(trial.path("."))};
}

bool mayMount()
{
    return ImageTrial::run({u"unshare"_s, u"-rm"_s, u"true"_s}).status == 0;
}

// Makes whoever opens a file wait, and tells when that has happened.
class OpeningBlocked
{
public:
    explicit OpeningBlocked(const QByteArray &path)
        : m_file(::open(path.constData(), O_RDWR | O_CLOEXEC))
    {
        s_count = 0;
        std::signal(SIGIO, [](int) { s_count = 1; });
        m_isActive = ::fcntl(m_file, F_SETLEASE, F_WRLCK) == 0;
    }
    ~OpeningBlocked()
    {
        ::close(m_file);
        std::signal(SIGIO, SIG_IGN);
    }
    Q_DISABLE_COPY_MOVE(OpeningBlocked)

    bool isActive() const { return m_isActive; }
    static bool hasHappened() { return s_count != 0; }

private:
    static inline volatile std::sig_atomic_t s_count = 0;
    int m_file;
    bool m_isActive;
};

} // namespace

class ImageFailureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongArguments_data();
    void wrongArguments();
    void impossible_data();
    void impossible();
    void noXorriso();
    void fullDisk_data() { formats(); }
    void fullDisk();
    void endedFromOutside_data();
    void endedFromOutside();

private:
    static void formats();
};

void ImageFailureTest::formats()
{
    QTest::addColumn<bool>("isHfs");
    QTest::newRow("HFS Plus") << true;
    QTest::newRow("hybrid") << false;
}

void ImageFailureTest::wrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto right = ImageTrial::command(true, u"/no/image"_s, u"V"_s, u"/no/source"_s).mid(1);
    QTest::newRow("none") << QStringList();
    QTest::newRow("one less") << right.mid(0, 8);
    QTest::newRow("one more") << right + QStringList{u"more"_s};
    auto other = right;
    other.swapItemsAt(6, 7);
    QTest::newRow("other order") << other;
    other = right;
    other[0] = u"create"_s;
    QTest::newRow("other verb") << other;
    other = right;
    other[1] = u"-iso"_s;
    QTest::newRow("other format") << other;
}

void ImageFailureTest::wrongArguments()
{
    QFETCH(QStringList, arguments);
    const auto program = ImageTrial::command(true, {}, {}, {}).mid(0, 1);
    const auto end = ImageTrial::run(program + arguments);
    QCOMPARE(end.status, 64);
    QVERIFY(end.errors.startsWith("usage: hdiutil makehybrid") && end.errors.count('\n') == 1);
}

void ImageFailureTest::impossible_data()
{
    QTest::addColumn<QString>("preparation"); // a shell script that runs in the trial's folder
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char *what, const QString &preparation, const char *reason) {
        QTest::newRow(what) << preparation << QByteArray(reason);
    };
    row("no source", u"rm -r source"_s, "/source: No such file or directory\n");
    row("source is a file", u"rm -r source; touch source"_s, "/source: Not a directory\n");
    row("source is a fifo", u"rm -r source; mkfifo source"_s, "/source: Not a directory\n");
    row("target is a folder", u"rm image; mkdir image"_s, "/image: Is a directory\n");
    row("target is a fifo", u"rm image; mkfifo image"_s, "/image: Not a regular file\n");
    row("folder without writing", u"chmod 555 ."_s, ": Permission denied\n");
    row("file that may not be read", u"chmod 0 source/sub/file"_s, "sub/file");
    row("folder that may not be read", u"chmod 0 source/sub"_s, "sub");
}

void ImageFailureTest::impossible()
{
    QFETCH(QString, preparation);
    QFETCH(QByteArray, reason);
    for (const bool isHfs : {true, false}) {
        const ImageTrial trial;
        trial.makeFile("source/sub/file", "x");
        trial.makeFile("image", "older");
        const auto script = u"cd \"$1\" && "_s + preparation;
        QCOMPARE(ImageTrial::run(
                     {u"sh"_s, u"-c"_s, script, u"sh"_s, QString::fromLocal8Bit(trial.path("."))})
                     .status,
                 0);
        const auto end = trial.makeImage(isHfs, u"V"_s, obeyingModes());
        QCOMPARE(end.status, 1);
        QVERIFY2(end.errors.startsWith("hdiutil: ") && end.errors.contains(reason)
                     && end.errors.count('\n') == 1,
                 end.errors.constData());
        QCOMPARE(trial.leftBehind(), QStringList());
        if (QFile image(trial.image()); reason.startsWith("sub")) {
            QVERIFY(image.open(QIODevice::ReadOnly));
            QCOMPARE(image.readAll(), QByteArray("older"));
        }
    }
}

void ImageFailureTest::noXorriso()
{
    if (!mayMount())
        QSKIP("this user may not mount anything");
    const ImageTrial trial;
    const auto prefix = withMounts(u"mount -t tmpfs none /usr/bin && exec \"$@\""_s, trial);
    const auto end = trial.makeImage(false, u"V"_s, prefix);
    QCOMPARE(end.status, 69);
    QCOMPARE(end.errors, QByteArray("hdiutil: xorriso is not installed (package xorriso)\n"));
    QVERIFY(!QFile::exists(trial.image()));
    QCOMPARE(trial.makeImage(true, u"V"_s, prefix).status, 0);
}

void ImageFailureTest::fullDisk()
{
    if (!mayMount())
        QSKIP("this user may not mount anything");
    QFETCH(bool, isHfs);
    const ImageTrial trial;
    trial.makeFile("source/large", QByteArray(3'000'000, 'x'));
    const auto prefix =
        withMounts(u"mkdir \"$folder/disk\" && mount -t tmpfs -o size=1m none \"$folder/disk\" && "
                   "printf older > \"$folder/disk/image\"; \"$@\"; status=$?; "
                   "cat \"$folder/disk/image\"; ls -A \"$folder/disk\"; exit $status"_s,
                   trial);
    const auto end = ImageTrial::run(
        prefix
        + ImageTrial::command(isHfs, QString::fromLocal8Bit(trial.path("disk/image")), u"V"_s,
                              QString::fromLocal8Bit(trial.path("source"))));
    QCOMPARE(end.status, 1);
    const QByteArray reason = isHfs ? "No space left on device" : "exceeds free space";
    QVERIFY2(end.errors.startsWith("hdiutil: ") && end.errors.endsWith("\nolderimage\n")
                 && end.errors.contains(reason),
             end.errors.constData());
}

void ImageFailureTest::endedFromOutside_data()
{
    QTest::addColumn<bool>("isHfs");
    QTest::addColumn<int>("signal");
    QTest::newRow("HFS Plus, TERM") << true << SIGTERM;
    QTest::newRow("HFS Plus, INT") << true << SIGINT;
    QTest::newRow("HFS Plus, KILL") << true << SIGKILL;
    QTest::newRow("hybrid, TERM") << false << SIGTERM;
    QTest::newRow("hybrid, KILL") << false << SIGKILL;
}

void ImageFailureTest::endedFromOutside()
{
    QFETCH(bool, isHfs);
    QFETCH(int, signal);
    const ImageTrial trial;
    trial.makeFile("source/a", QByteArray(1'000'000, 'x'));
    trial.makeFile("source/b", "y");
    trial.makeFile("image", "older");
    const OpeningBlocked blocked(trial.path("source/b"));
    if (!blocked.isActive())
        QSKIP("no leases on this file system");
    const auto command = ImageTrial::command(isHfs, trial.image(), u"V"_s,
                                             QString::fromLocal8Bit(trial.path("source")));
    QProcess process;
    process.start(command.first(), command.mid(1));
    QTRY_VERIFY_WITH_TIMEOUT(OpeningBlocked::hasHappened(), 30'000);

    QFile children(u"/proc/%1/task/%1/children"_s.arg(process.processId()));
    QVERIFY(children.open(QIODevice::ReadOnly));
    const auto child = QString::fromLatin1(children.readAll()).trimmed();
    QCOMPARE(child.isEmpty(), isHfs);
    ::kill(pid_t(process.processId()), signal);
    QVERIFY(process.waitForFinished());
    if (signal == SIGKILL)
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    else
        QCOMPARE(process.exitCode(), 128 + signal);
    QTRY_VERIFY(child.isEmpty() || !QFile::exists(u"/proc/"_s + child));
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QFile image(trial.image());
    QVERIFY(image.open(QIODevice::ReadOnly));
    QCOMPARE(image.readAll(), QByteArray("older"));
    QCOMPARE(trial.leftBehind(), QStringList());
}

QTEST_GUILESS_MAIN(ImageFailureTest)
#include "ImageFailureTest.moc"
