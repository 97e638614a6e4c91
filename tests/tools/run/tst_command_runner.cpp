// A run of a command ends in exactly one of five ways, through the event loop, and leaves no
// process behind. That pages which go take their runs along is tested with the pages.

#include "CommandRunner.h"
#include "Files.h"
#include "JobList.h"
#include "ProgressPipe.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;
using End = CommandResult::End;

namespace
{

/// One that has ended and is only not reaped yet does not run.
bool processRuns(const QByteArray &pid)
{
    QFile status(u"/proc/%1/stat"_s.arg(QString::fromLatin1(pid.trimmed())));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = status.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

class CommandRunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_runner = std::make_unique<CommandRunner>(m_jobs);
    }
    void cleanup()
    {
        m_runner.reset();
        QTRY_VERIFY(m_jobs.isEmpty());
    }

    void endsByItself()
    {
        QVERIFY(runToEnd(behaviour({u"exit"_s, u"0"_s})).succeeded());
        QCOMPARE(runToEnd(behaviour({u"exit"_s, u"12"_s})).description(),
                 u"exited with status 12"_s);
        QCOMPARE(runToEnd(behaviour({u"crash"_s})).end, End::Killed);
    }

    void couldNotStart()
    {
        const QString program = behaviour({}).launchPath;
        const QString nullInside = "/tmp"_L1 + QChar(u'\0') + "/x"_L1;
        for (const Command &command :
             {Command{u"/nonexistent/program"_s, {}}, Command{QString(), {}},
              Command{u"/etc/passwd"_s, {}}, Command{program, {QString(200 * 1024, u'a')}},
              Command{program, {u"exit"_s, nullInside}}}) {
            const QFuture<CommandResult> future = m_runner->run(command, m_jobs.begin(description));
            QVERIFY(!future.isFinished());
            QTRY_VERIFY(future.isFinished());
            QVERIFY2(!future.result().couldStart(), qPrintable(command.launchPath));
            QVERIFY(!future.result().description().contains(u'\n'));
        }
    }

    // The user's folder vanished: the page reports a failure, instead of treating it like a program
    // that is not installed. Nothing runs in the wrong folder.
    void missingWorkingDirectoryIsAFailedRun()
    {
        Command command = behaviour({u"report"_s, path(u"pid"_s)});
        for (const QString &folder : {path(u"not\na folder"_s), QString()}) {
            command.workingDirectory = folder;
            QCOMPARE(runToEnd(command).description(), u"exited with status 66"_s);
        }
        QVERIFY(!told());
    }

    void arguments()
    {
        const QString folder = path(u"a b'\"\n-\U0001F600"_s + QString(200, u'n'));
        QVERIFY(QDir().mkdir(folder));
        const QStringList odd{
            QString(), u"-rf"_s, u"--"_s, u"a b"_s,         u"$HOME;`id`"_s,
            u"x\ny"_s, u"\""_s,  u"'*"_s, u"\U0001F600ä"_s, QString(100'000, u'l')};
        Command command = behaviour(QStringList{u"report"_s, path(u"pid"_s)} + odd);
        command.workingDirectory = folder;
        // What a child must not inherit from the application.
        std::signal(SIGPIPE, SIG_IGN);
        sigset_t blocked;
        sigemptyset(&blocked);
        sigaddset(&blocked, SIGUSR1);
        pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
        QVERIFY(runToEnd(command).succeeded());

        QByteArray expected = QFile::encodeName(QFileInfo(folder).canonicalFilePath())
            + "\nstdin at its end\nleads a session\n"
              "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n";
        for (const QString &argument : odd)
            expected += argument.toUtf8() + '\0';
        QCOMPARE(pid(), expected);
    }

    void ownProgramsRunInPlace()
    {
        QCOMPARE(ownProgramsFolder(), QStringLiteral(TOOLVANE_BUILD_DIR "/libexec/toolvane"));
        const QString own = path(u"own"_s);
        QVERIFY(QDir().mkpath(own + u"/folder"_s));
        QVERIFY(QFile::copy(u"/bin/true"_s, own + u"/hdiutil"_s));
        Files::write(own + u"/data"_s, {});
        QCOMPARE(programPath(u"/usr/bin/hdiutil"_s, own), own + u"/hdiutil"_s);
        for (const QString &given : {u"/usr/bin/zip"_s, u"/usr/bin/data"_s, u"/usr/bin/folder"_s,
                                     u"/usr/bin/"_s, QString()})
            QCOMPARE(programPath(given, own), given);
    }

    void ownProgramsReportHowFarTheyAre()
    {
        const QString own = ownProgramsFolder();
        QVERIFY(reportsProgress(own + u"/say"_s));
        for (const QString &other : {u"/usr/bin/zip"_s, own + u"/open"_s, own + u"2/zip"_s})
            QVERIFY2(!reportsProgress(other), qPrintable(other));

        QFile source(path(u"zeros"_s)); // takes no room and some seconds
        QVERIFY(source.open(QIODevice::WriteOnly) && source.resize(qint64(1) << 33));
        const auto descriptors = [] { return QDir(u"/proc/self/fd"_s).entryList().size(); };
        const auto openBefore = descriptors();
        Command zip{u"/usr/bin/zip"_s,
                    {u"-r"_s, path(u"a.zip"_s), u"."_s, u"-9"_s, u"-q"_s},
                    m_folder->path()};
        const auto future = m_runner->run(zip, m_jobs.begin(description));
        QTRY_VERIFY(!m_jobs.isEmpty() && m_jobs.running().front().progress.percent());
        QVERIFY(!future.isFinished());
        m_jobs.stopAll();
        QTRY_VERIFY(m_jobs.isEmpty());
        QTRY_COMPARE(descriptors(), openBefore);
    }

    void otherProgramsGetNoPipe()
    {
        qputenv("TOOLVANE_PROGRESS_FD", "1"); // as the application itself may have been given it
        const auto result =
            runToEnd({u"/bin/sh"_s, {u"-c"_s, u"exit ${TOOLVANE_PROGRESS_FD+1}"_s}});
        qunsetenv("TOOLVANE_PROGRESS_FD");
        QCOMPARE(result.description(), u"exited with status 0"_s);
    }

    void readsHostileProgress_data()
    {
        using Reports = QList<std::pair<quint64, quint64>>;
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<Reports>("reports"); // of which a turn of the event loop makes one
        QTest::newRow("a line") << "3 18446744073709551615\n"_ba
                                << Reports{{3, 18446744073709551615U}};
        QTest::newRow("the last of several") << "3 10\n4 10\n5 1"_ba << Reports{{4, 10}};
        QTest::newRow("no end") << "3 10"_ba << Reports{};
        for (const QByteArray &line :
             {""_ba, "3"_ba, "3 "_ba, " 3 10"_ba, "3  10"_ba, "3 10 "_ba, "-3 10"_ba, "3 +10"_ba,
              "3\t10"_ba, "3 10\r"_ba, "x"_ba, "3 18446744073709551616"_ba, "3 10\0"_ba})
            QTest::addRow("nonsense '%s'", line.toPercentEncoding(" ").constData()) << line + '\n'
                                                                                    << Reports{};
        QTest::newRow("a flood without an end, and a line") << QByteArray(60'000, '1') + "\n5 10\n"
                                                            << Reports{{5, 10}};
    }

    void readsHostileProgress()
    {
        QFETCH(QByteArray, written);
        QList<std::pair<quint64, quint64>> reports;
        ProgressPipe pipe([&](quint64 done, quint64 total) { reports.append({done, total}); });
        QCOMPARE(::write(pipe.writeEnd(), written.constData(), written.size()), written.size());
        pipe.closeWriteEnd();
        QSignalSpy turns(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake);
        QTest::qWait(50);
        QTEST(reports, "reports");
        QVERIFY(turns.size() < 200); // the closed pipe is watched no more
    }

    void aFloodHoldsNothingUp()
    {
        int reports = 0;
        ProgressPipe pipe([&](quint64, quint64) { ++reports; });
        const QByteArray flood = "1 2\n"_ba.repeated(16'000);
        QCOMPARE(::write(pipe.writeEnd(), flood.constData(), flood.size()), flood.size());
        QCoreApplication::processEvents();
        QVERIFY(reports >= 1 && reports < 3);
    }

    void stop()
    {
        const auto early = start(u"sleep"_s);
        m_jobs.stopAll(); // before it runs
        QTRY_VERIFY(early.isFinished() && early.result().end == End::Cancelled);
        for (const auto &[child, needsKill] :
             {std::pair(u"sleep"_s, false), std::pair(u"ignore-term"_s, true),
              std::pair(u"grandchild"_s, true)}) { // which outlives the leader of the group
            QFile::remove(path(u"pid"_s));
            const auto future = start(child);
            QTRY_VERIFY(told());
            QSignalSpy ended(&m_jobs, &JobList::jobEnded);
            QElapsedTimer time;
            time.start();
            m_jobs.stopAll();
            m_jobs.stopAll(); // a second request changes nothing
            QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 10000);
            QCOMPARE(time.elapsed() >= 3000, needsKill);
            QCOMPARE(future.result().end, End::Cancelled);
            QTRY_VERIFY(!processRuns(pid()));
            QTRY_COMPARE(ended.size(), 1);
            QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        }
    }

    // What a command leaves running on purpose, like a file manager, stays.
    void leftoversOfAnOrdinaryRunLive()
    {
        QVERIFY(runToEnd(behaviour({u"grandchild"_s, path(u"pid"_s), u"exit"_s})).succeeded());
        QTRY_VERIFY(told());
        m_runner.reset();
        QVERIFY(processRuns(pid()));
        kill(pid().toInt(), SIGKILL);
    }

    void jobListGone()
    {
        auto jobs = std::make_unique<JobList>();
        m_runner = std::make_unique<CommandRunner>(*jobs);
        const auto future = start(u"ignore-term"_s);
        QTRY_VERIFY(told());
        jobs.reset();
        QVERIFY(future.isFinished() && future.result().end == End::OwnerGone);
        QTRY_VERIFY(!processRuns(pid()));
    }

    void diesWithTheApplication()
    {
        QProcess application;
        application.setProcessChannelMode(QProcess::ForwardedChannels);
        application.start(QStringLiteral(TOOLVANE_PARENT_PROGRAM),
                          {behaviour({}).launchPath, u"ignore-term"_s, path(u"pid"_s)});
        QTRY_VERIFY_WITH_TIMEOUT(told(), 20000);
        QVERIFY(processRuns(pid()));
        application.kill();
        QTRY_COMPARE(application.state(), QProcess::NotRunning);
        QTRY_VERIFY(!processRuns(pid()));
    }

private:
    static Command behaviour(const QStringList &arguments)
    {
        return {QStringLiteral(TOOLVANE_SOURCE_DIR "/tests/tools/run/programs/behaviour.sh"),
                arguments};
    }
    CommandResult runToEnd(const Command &command)
    {
        const QFuture<CommandResult> future = m_runner->run(command, m_jobs.begin(description));
        [&] { QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 20000); }();
        return future.isFinished() ? future.result()
                                   : CommandResult{End::CouldNotStart, 0, u"never"_s};
    }
    QFuture<CommandResult> start(const QString &name)
    {
        return m_runner->run(behaviour({name, path(u"pid"_s)}), m_jobs.begin(description));
    }

    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool told() const { return QFile::exists(path(u"pid"_s)); }
    QByteArray pid() const { return Files::read(path(u"pid"_s)); }

    const JobDescription description{u"TestPage"_s, u"Test"_s};
    JobList m_jobs;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CommandRunner> m_runner;
};

QTEST_GUILESS_MAIN(CommandRunnerTest)
#include "tst_command_runner.moc"
