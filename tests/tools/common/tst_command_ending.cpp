// Ending a run leaves no process behind, touches nobody who is gone, and loses no output.

#include "PageAction.h"
#include "RunnerTest.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;
using End = CommandResult::End;

namespace
{

class Page : public QObject
{
public:
    explicit Page(JobList &jobs) : m_runner(jobs) { }

    QCoro::Task<> act(Command command, JobDescription description, std::vector<QString> *seen)
    {
        const QPointer<Page> self(this);
        const CommandResult result = co_await m_runner.run(command, description);
        seen->push_back(result.description());
        if (!self)
            co_return;
        seen->push_back(m_name);
    }

private:
    CommandRunner m_runner;
    QString m_name = u"the page lives"_s; // freed memory when it does not
};

} // namespace

class CommandEnding : public RunnerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_runner = std::make_unique<CommandRunner>(m_jobs); }
    void cleanup()
    {
        m_runner.reset();
        QTRY_VERIFY(m_jobs.isEmpty());
    }

    void stop_data()
    {
        QTest::addColumn<bool>("needsKill");
        QTest::newRow("sleep") << false;
        QTest::newRow("ignore-term") << true;
        QTest::newRow("grandchild") << true; // which outlives the leader of the group
    }

    void stop()
    {
        QFETCH(bool, needsKill);
        const auto future = start(QString::fromLatin1(QTest::currentDataTag()));
        QTRY_VERIFY(told());
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        QElapsedTimer time;
        time.start();
        m_jobs.stopAll();
        m_runner->stop(); // a second request changes nothing
        QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 10000);
        QCOMPARE(time.elapsed() >= 3000, needsKill);
        QCOMPARE(future.result().end(), End::Cancelled);
        QVERIFY(!future.result().succeeded());
        QTRY_VERIFY(!processRuns(content(u"pid"_s)));
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
    }

    void stopBeforeItRuns()
    {
        const auto future = start(u"sleep"_s);
        m_runner->stop();
        QTRY_VERIFY(future.isFinished());
        QCOMPARE(future.result().end(), End::Cancelled);
    }

    // What a command leaves running on purpose, like a file manager, stays.
    void leftoversOfAnOrdinaryRunLive()
    {
        const QString file = path(u"pid"_s);
        QFile::remove(file);
        const auto future =
            m_runner->run(behaviour({u"grandchild"_s, file, u"exit"_s}), description());
        QTRY_VERIFY(future.isFinished());
        QVERIFY(future.result().succeeded());
        QTRY_VERIFY(told());
        m_runner.reset();
        QTRY_VERIFY(m_jobs.isEmpty());
        QVERIFY(processRuns(content(u"pid"_s)));
        kill(content(u"pid"_s).toInt(), SIGKILL);
    }

    void ownerGone()
    {
        auto page = std::make_unique<Page>(m_jobs);
        std::vector<QString> seen;
        const Command command = behaviour({u"sleep"_s, path(u"owned"_s)});
        startPageAction(page.get(), page->act(command, description(), &seen));
        QTRY_VERIFY(QFile::exists(path(u"owned"_s)));
        page.reset();
        QVERIFY(seen.empty());
        QTRY_COMPARE(seen, std::vector{CommandResult::ownerGone().description()});
        QTRY_VERIFY(m_jobs.isEmpty());
        QVERIFY(!processRuns(content(u"owned"_s)));
    }

    void jobListGone()
    {
        auto jobs = std::make_unique<JobList>();
        auto runner = std::make_unique<CommandRunner>(*jobs);
        const auto future =
            runner->run(behaviour({u"ignore-term"_s, path(u"last"_s)}), description());
        QTRY_VERIFY(QFile::exists(path(u"last"_s)));
        jobs.reset();
        QVERIFY(future.isFinished());
        QCOMPARE(future.result().end(), End::OwnerGone);
        QTRY_VERIFY(!processRuns(content(u"last"_s)));
    }

    // Output beyond what a pipe holds neither blocks the child nor gets lost on the way to our
    // stderr.
    void floodedOutput()
    {
        const int saved = dup(STDERR_FILENO);
        const int file =
            open(QFile::encodeName(path(u"stderr"_s)).constData(), O_CREAT | O_WRONLY, 0600);
        dup2(file, STDERR_FILENO);
        const auto future = m_runner->run(behaviour({u"flood"_s}), description());
        const bool finished = QTest::qWaitFor([&] { return future.isFinished(); }, 20000);
        dup2(saved, STDERR_FILENO);
        ::close(saved);
        ::close(file);
        QVERIFY(finished && future.result().succeeded());
        QCOMPARE(content(u"stderr"_s), QByteArray(1 << 20, 'x'));
    }

    void diesWithTheApplication()
    {
        QProcess application;
        const QString file = path(u"orphan"_s);
        application.setProcessChannelMode(QProcess::ForwardedChannels);
        application.start(QStringLiteral(TOOLVANE_PARENT_PROGRAM),
                          {behaviour({}).launchPath, u"ignore-term"_s, file});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(file), 20000);
        QVERIFY(processRuns(content(u"orphan"_s)));
        application.kill();
        QTRY_COMPARE(application.state(), QProcess::NotRunning);
        QTRY_VERIFY(!processRuns(content(u"orphan"_s)));
    }

private:
    QFuture<CommandResult> start(const QString &name)
    {
        QFile::remove(path(u"pid"_s));
        return m_runner->run(behaviour({name, path(u"pid"_s)}), description());
    }
    bool told() const { return QFile::exists(path(u"pid"_s)); }

    JobList m_jobs;
    std::unique_ptr<CommandRunner> m_runner;
};

QTEST_GUILESS_MAIN(CommandEnding)
#include "tst_command_ending.moc"
