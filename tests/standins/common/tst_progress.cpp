// Proves that a program says how far it is on the pipe that it was given, and on nothing else, and
// that no reader, slow or gone, holds it up or ends it.
#include "Progress.h"
#include "RunToEnd.h"
#include "StandinRun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;
using namespace standin;

namespace
{

using Lines = QList<std::pair<quint64, quint64>>;

// A pipe whose writable end a child inherits, named in the environment.
struct ProgressPipe {
    ProgressPipe() : inherited(::dup(pipe.writeEnd.number()))
    {
        pipe.writeEnd.close();
        qputenv("TOOLVANE_PROGRESS_FD", QByteArray::number(inherited.number()));
    }
    ~ProgressPipe() { qunsetenv("TOOLVANE_PROGRESS_FD"); }

    // All that was written, once nobody can write any more.
    QByteArray rest()
    {
        inherited.close();
        QFile file;
        return file.open(pipe.readEnd.number(), QIODevice::ReadOnly) ? file.readAll()
                                                                     : QByteArray();
    }

    Pipe pipe;
    FileDescriptor inherited;
};

Lines linesIn(const QByteArray &text)
{
    Lines lines;
    for (const QByteArray &line : text.chopped(text.isEmpty() ? 0 : 1).split('\n')) {
        const qsizetype blank = line.indexOf(' ');
        lines.append({line.left(blank).toULongLong(), line.mid(blank + 1).toULongLong()});
        const auto [done, total] = lines.last();
        if (line != QByteArray::number(done) + ' ' + QByteArray::number(total) || total == 0)
            QTest::qFail(("no progress: " + line).constData(), __FILE__, __LINE__);
    }
    return lines;
}

// Never back, never beyond the total, and all of it at the end.
void requirePlausible(const Lines &lines)
{
    QVERIFY(!lines.isEmpty());
    quint64 before = 0;
    for (const auto &[done, total] : lines) {
        QVERIFY2(before <= done && done <= total, QByteArray::number(done).constData());
        QCOMPARE(total, lines.last().second);
        before = done;
    }
    QCOMPARE(before, lines.last().second);
}

} // namespace

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        std::signal(SIGPIPE, SIG_IGN); // as in every program that has a progress
        writeFile(m_dir.filePath(u"source"_s), {});
    }

    void tellsFromSeveralThreads()
    {
        ProgressPipe reader;
        const auto start = std::chrono::steady_clock::now();
        {
            Progress progress;
            QVERIFY(progress.isWanted() && !qEnvironmentVariableIsSet("TOOLVANE_PROGRESS_FD"));
            progress.add(100); // before the total is known: counted, not told
            progress.setTotal(1'000'000);
            const auto work = [&progress] {
                for (int i = 0; i < 600; ++i) {
                    progress.add(1000);
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
                }
            };
            std::jthread first(work);
            work(); // 1,200,100 bytes by both: more than there are
            first.join();
            progress.finish();
        }
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        const Lines lines = linesIn(reader.rest());
        requirePlausible(lines);
        QVERIFY2(lines.size() >= 3 && double(lines.size()) <= 2 + 8 * seconds.count(),
                 QByteArray::number(lines.size()).constData());
    }

    void childrenGetNothing()
    {
        const ProgressPipe reader;
        Progress progress;
        QVERIFY(progress.isWanted());
        Command command{.program = "sh", .package = "dash"};
        command.arguments = {"-c", "ls /proc/$$/fd; env; grep SigIgn /proc/$$/status"};
        std::string told;
        runToEnd(command, [&told](std::string_view bytes) { told += bytes; });
        const auto text = QByteArray::fromStdString(told);
        QVERIFY2(text.startsWith("0\n1\n2\n") && !text.contains("PROGRESS"), text.constData());
        const auto ignored =
            text.mid(text.lastIndexOf("SigIgn:") + 7).trimmed().toULongLong({}, 16);
        QCOMPARE(ignored & (1U << (SIGPIPE - 1)), 0U);
    }

    void usesNothingButAPipe()
    {
        QFile file(m_dir.filePath(u"source"_s));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const Pipe pipe;
        for (const QByteArray &number :
             {QByteArray::number(file.handle()), QByteArray::number(pipe.readEnd.number()), "-1"_ba,
              "99999999999"_ba, "987"_ba, ""_ba,
              QByteArray::number(pipe.writeEnd.number()) + 'x'}) {
            qputenv("TOOLVANE_PROGRESS_FD", number);
            Progress progress;
            QVERIFY2(!progress.isWanted(), number.constData());
            QVERIFY(!qEnvironmentVariableIsSet("TOOLVANE_PROGRESS_FD"));
            progress.setTotal(1);
            progress.add(1);
            progress.finish();
        }
        QCOMPARE(file.size(), 0);
        QVERIFY(::fcntl(pipe.readEnd.number(), F_GETFD) >= 0); // not ours to close
    }

    void readersHoldNothingUp()
    {
        ProgressPipe reader;
        Progress progress;
        reader.pipe.readEnd.close();
        progress.setTotal(10);
        progress.add(1);
        progress.finish(); // and the program is still there
    }

    void everyProgramTells_data()
    {
        QTest::addColumn<QString>("preparation"); // a script that gets the output's path
        QTest::addColumn<QStringList>("program");
        QTest::addColumn<QString>("result"); // of what is made in the place of "out"
        const QString folder = u"mkdir in && head -c 30000000 /dev/urandom > in/a && mkdir in/sub"
                               " && seq 100000 > in/sub/b"_s;
        const QStringList image{u"-o"_s,     u"out"_s, u"-default-volume-name"_s, u"V"_s, u"-ov"_s,
                                u"-quiet"_s, u"in"_s};
        QTest::newRow("HFS Plus image")
            << folder << (QStringList{u"hdiutil"_s, u"makehybrid"_s, u"-hfs"_s} + image)
            << u"out"_s;
        QTest::newRow("hybrid image")
            << folder << (QStringList{u"hdiutil"_s, u"makehybrid"_s} + image) << u"out"_s;
        QTest::newRow("video")
            << u"ffmpeg -v error -f lavfi -i testsrc2=s=320x240:d=5 -f mpegts in.mpg"_s
            << QStringList{u"avconvert"_s, u"--preset"_s, u"PresetHighestQuality"_s,
                           u"--source"_s,  u"in.mpg"_s,   u"--output"_s,
                           u"out"_s,       u"-q"_s}
            << u"out"_s;
        QTest::newRow("speech") << u":"_s
                                << QStringList{u"say"_s,
                                               u"Nine green bottles, all of them. "_s.repeated(200),
                                               u"--voice=English (America)"_s, u"--rate=175"_s,
                                               u"--output-file=out"_s}
                                << u"out"_s;
        QTest::newRow("packing") << u"seq 5600000 > numbers; mkfifo fifo; ln -s numbers link"_s
                                 << QStringList{u"zip"_s, u"-r"_s, u"out/a.zip"_s,
                                                u"."_s,   u"-9"_s, u"-q"_s}
                                 << u"out/a.zip"_s;
        QTest::newRow("unpacking")
            << folder + u" && zip -qr in.zip in"_s
            << QStringList{u"unzip"_s, u"-q"_s, u"in.zip"_s, u"-d"_s, u"out"_s} << u"out/in/a"_s;
    }

    // With a reader that takes all, with one whose pipe is full, and with none.
    void everyProgramTells()
    {
        QFETCH(QString, preparation);
        QFETCH(QStringList, program);
        const QTemporaryDir folder;
        QCOMPARE(runIn(folder, {u"sh"_s, u"-c"_s, preparation}).errors, QByteArray());
        program[0] = standinPath(program[0]);
        QCOMPARE(make(folder, program), 0);
        const QByteArray result = resultIn(folder);
        QVERIFY(!result.isEmpty());
        {
            ProgressPipe reader;
            QCOMPARE(make(folder, program), 0);
            const Lines lines = linesIn(reader.rest());
            requirePlausible(lines);
            if (QByteArray(QTest::currentDataTag()).endsWith("packing")) // long before the end, too
                QVERIFY(lines.size() > 1);
        }
        sameResult(folder, result);
        {
            ProgressPipe reader;
            QVERIFY(::fcntl(reader.inherited.number(), F_SETPIPE_SZ, 4096) > 0);
            const QByteArray filling(4096, 'x');
            QCOMPARE(::write(reader.inherited.number(), filling.constData(), 4096), 4096);
            QCOMPARE(make(folder, program), 0);
            QCOMPARE(::fcntl(reader.inherited.number(), F_GETFL) & O_NONBLOCK, 0);
            QCOMPARE(reader.rest(), filling);
        }
        {
            ProgressPipe reader;
            reader.pipe.readEnd.close();
            QCOMPARE(make(folder, program), 0);
        }
        sameResult(folder, result);
    }

private:
    static RunResult runIn(const QTemporaryDir &folder, const QStringList &program)
    {
        return runProgram(u"env"_s, QStringList{u"-C"_s, folder.path()} + program);
    }

    static int make(const QTemporaryDir &folder, const QStringList &program)
    {
        QFETCH(QString, result);
        const QString out = folder.filePath(u"out"_s);
        QFile::remove(out);
        QDir(out).removeRecursively();
        if (result.endsWith(u".zip"_s))
            QDir().mkdir(out);
        return runIn(folder, program).status;
    }
    static QByteArray resultIn(const QTemporaryDir &folder)
    {
        QFETCH(QString, result);
        return contentOf(folder.filePath(result));
    }

    // Some write the time of day, or that of the last access.
    static void sameResult(const QTemporaryDir &folder, const QByteArray &expected)
    {
        const QByteArray result = resultIn(folder);
        QCOMPARE(result.size(), expected.size());
        const QByteArray row = QTest::currentDataTag();
        if (row != "hybrid image" && row != "packing")
            QVERIFY(result == expected);
    }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestProgress)
#include "tst_progress.moc"
