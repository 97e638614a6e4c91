// A run of a command ends in exactly one of five ways, and always through the event loop.

#include "PageAction.h"
#include "ProgramPath.h"
#include "RunnerTest.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <stdexcept>

using namespace Qt::StringLiterals;
using End = CommandResult::End;

static QCoro::Task<> runTwice(CommandRunner *runner, JobList *jobs, Command command,
                              JobDescription description, std::vector<bool> *listed)
{
    co_await runner->run(command, description);
    listed->push_back(!jobs->isEmpty());
    co_await runner->run(command, description);
    listed->push_back(!jobs->isEmpty());
}

static QCoro::Task<> fail(CommandRunner *runner, Command command, JobDescription description)
{
    co_await runner->run(command, description);
    throw std::runtime_error("no such\nthing");
}

class CommandEnds : public RunnerTest
{
    Q_OBJECT

private Q_SLOTS:
    void exits()
    {
        QVERIFY(runToEnd(behaviour({u"exit"_s, u"0"_s})).succeeded());
        QTest::ignoreMessage(QtWarningMsg, TOOLVANE_BEHAVIOUR_PROGRAM ": exited with status 12");
        const CommandResult failed = runToEnd(behaviour({u"exit"_s, u"12"_s}));
        QCOMPARE(failed.end(), End::Exited);
        QCOMPARE(failed.exitStatus(), 12);
        QVERIFY(!failed.succeeded());
        QVERIFY(!m_runner.isRunning());
    }

    void crashIsNoSuccess()
    {
        const CommandResult result = runToEnd(behaviour({u"crash"_s}));
        QCOMPARE(result.end(), End::Killed);
        QVERIFY(!result.succeeded());
        QCOMPARE(result.description(), u"killed by signal %1"_s.arg(SIGABRT));
    }

    void couldNotStart_data()
    {
        QTest::addColumn<Command>("command");
        QFile plainFile(path(u"not-executable"_s));
        QVERIFY(plainFile.open(QIODevice::WriteOnly));
        const QString program = behaviour({}).launchPath;
        const QString nullInside = "/tmp"_L1 + QChar(u'\0') + "/x"_L1;
        QTest::newRow("missing") << Command{u"/nonexistent/zip"_s, {}};
        QTest::newRow("no path") << Command{QString(), {}};
        QTest::newRow("not executable") << Command{plainFile.fileName(), {}};
        QTest::newRow("a folder") << Command{m_folder.path(), {}};
        QTest::newRow("200 kB argument") << Command{program, {QString(200 * 1024, u'a')}};
        QTest::newRow("argument cut short") << Command{program, {u"exit"_s, nullInside}};
    }

    void couldNotStart()
    {
        QFETCH(Command, command);
        const QFuture<CommandResult> future = m_runner.run(command, description());
        QVERIFY(!future.isFinished());
        QTRY_VERIFY(future.isFinished());
        QCOMPARE(future.result().end(), End::CouldNotStart);
        QVERIFY(!future.result().couldStart());
        QVERIFY2(!future.result().description().contains(u'\n'),
                 qPrintable(future.result().description()));
        QTRY_VERIFY(m_jobs.isEmpty());
    }
    // The user's folder vanished: the page reports a failure, instead of treating it like a program
    // that is not installed. Nothing runs in the wrong folder.
    void missingWorkingDirectoryIsAFailedRun()
    {
        Command command = behaviour({u"report"_s, path(u"wrong-folder"_s)});
        for (const QString &folder : {u"gone"_s, u"not\na folder"_s, u""_s}) {
            command.workingDirectory = folder.isEmpty() ? folder : path(folder);
            const CommandResult result = runToEnd(command);
            QCOMPARE(result.end(), End::Exited);
            QCOMPARE(result.exitStatus(), 66);
        }
        QVERIFY(!QFile::exists(path(u"wrong-folder"_s)));
    }

    void arguments()
    {
        const QString folder = path(u"a b'\"\n-\U0001F600"_s + QString(200, u'n'));
        QVERIFY(QDir().mkdir(folder));
        const QStringList odd{
            QString(), u"-rf"_s, u"--"_s, u"a b"_s,         u"$HOME;`id`"_s,
            u"x\ny"_s, u"\""_s,  u"'*"_s, u"\U0001F600ä"_s, QString(100'000, u'l')};
        Command command = behaviour(QStringList{u"report"_s, path(u"report"_s)} + odd);
        command.workingDirectory = folder;
        // What a child must not inherit from the application.
        std::signal(SIGPIPE, SIG_IGN);
        sigset_t blocked;
        sigemptyset(&blocked);
        sigaddset(&blocked, SIGUSR1);
        pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
        QVERIFY(runToEnd(command).succeeded());

        QByteArray expected =
            QFile::encodeName(folder) + "\nstdin at its end\nleads a session\nplain signals\n";
        for (const QString &argument : odd)
            expected += argument.toUtf8() + '\0';
        QCOMPARE(content(u"report"_s), expected);
    }

    // A window that waits for the last job must not quit between a command and what follows it.
    void nextJobFollowsWithoutAGap()
    {
        QTRY_VERIFY(m_jobs.isEmpty());
        QCoreApplication::processEvents(); // what earlier tests left behind
        QSignalSpy allEnded(&m_jobs, &JobList::allEnded);
        std::vector<bool> listed;
        const Command command = behaviour({u"exit"_s, u"0"_s});
        startPageAction(this, runTwice(&m_runner, &m_jobs, command, description(), &listed));
        QTRY_COMPARE(listed, (std::vector{true, true}));
        QTRY_COMPARE(allEnded.size(), 1);
    }

    void twoRunsAtOnce()
    {
        const auto sleeping = m_runner.run(behaviour({u"sleep"_s, path(u"pid"_s)}), description());
        QCOMPARE(runToEnd(behaviour({u"exit"_s, u"5"_s})).exitStatus(), 5);
        QVERIFY(m_runner.isRunning());
        QVERIFY(!sleeping.isFinished());
        m_runner.stop();
        QTRY_COMPARE(sleeping.isFinished(), true);
        QCOMPARE(sleeping.result().end(), End::Cancelled);
    }

    void exceptionIsLogged()
    {
        QTest::ignoreMessage(QtWarningMsg, "CommandEnds: action abandoned: no such thing");
        startPageAction(this, fail(&m_runner, behaviour({u"exit"_s, u"0"_s}), description()));
        QTRY_VERIFY(m_jobs.isEmpty());
        QTest::failOnWarning(QRegularExpression(u"."_s));
    }

    void ownProgramsRunInPlace()
    {
        QCOMPARE(ownProgramsFolder(), QStringLiteral(TOOLVANE_BUILD_DIR "/libexec/toolvane"));
        QVERIFY(QDir(m_folder.path()).mkpath(u"own/folder"_s));
        const QString own = path(u"own"_s);
        QVERIFY(QFile::copy(u"/bin/true"_s, own + u"/hdiutil"_s));
        QVERIFY(QFile(own + u"/data"_s).open(QIODevice::WriteOnly));
        QCOMPARE(programPath(u"/usr/bin/hdiutil"_s, own), own + u"/hdiutil"_s);
        for (const QString &given : {u"/usr/bin/zip"_s, u"/usr/bin/data"_s, u"/usr/bin/folder"_s,
                                     u"/usr/bin/"_s, QString()})
            QCOMPARE(programPath(given, own), given);
        QCOMPARE(programPath(u"/usr/bin/hdiutil"_s, path(u"gone"_s)), u"/usr/bin/hdiutil"_s);
    }

private:
    CommandResult runToEnd(const Command &command)
    {
        const QFuture<CommandResult> future = m_runner.run(command, description());
        [&] { QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 20000); }();
        return future.isFinished() ? future.result() : CommandResult::couldNotStart(u"never"_s);
    }

    JobList m_jobs;
    CommandRunner m_runner{m_jobs};
};

QTEST_GUILESS_MAIN(CommandEnds)
#include "tst_command_ends.moc"
