// Proves that a worker leaves the window alive, and that it ends well whatever happens to its page.

#include "CacheRun.h"
#include "ShownPage.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace
{

const CacheRun::Request cleanEverything{
    .work = CacheRun::Work::Clean, .bookmarkURL = {}, .ticked = CacheSelection().set()};

} // namespace

class LifeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestHome::reset();
        TestHome::makeFile("Logs/a", 1536);
        TestHome::makeFile("Documents/b", 1536);
        TestHome::grant();
    }

    // On a machine with much to do a worker may be through before the window has its next turn, so
    // a larger folder gets its chance; a window that waits for its worker has no turn with any.
    void windowStaysAlive()
    {
        ShownPage shown;
        shown.tick("downloadsCheckBox");
        int turns = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { turns += shown.isIdle() ? 0 : 1; });
        timer.start(0);
        for (int folders = 10; turns < 10 && folders <= 640; folders *= 4) {
            SampleTree::makeNested(TestHome::path() + "/Downloads", folders, 50);
            turns = 0;
            QEventLoop window;
            connect(&shown.jobs, &JobList::allEnded, &window, &QEventLoop::quit);
            QTimer::singleShot(ShownPage::patience, &window, &QEventLoop::quit);
            QVERIFY(shown.press("cleanButton"));
            window.exec();
            QVERIFY(shown.isIdle() && !TestHome::exists("Downloads"));
        }
        QVERIFY2(turns >= 10, QByteArray::number(turns).constData());
    }

    // A clean is idle once early. Who presses Check just then must see the page busy until that
    // check is through, and its sizes after that, though the clean still has updates of its own on
    // the way.
    void pressInTheEarlyIdleMoment()
    {
        TestHome::makeFile("Downloads/c", 10);
        ShownPage shown;
        shown.tick("downloadsCheckBox");
        QVERIFY(shown.press("cleanButton"));
        auto *clean = shown.jobs.findChild<CacheRun *>();
        QVERIFY(clean);
        int updates = 0;
        QStringList idleAfterPress; // what the page had measured whenever it was usable again
        // Connected after the page itself, so this sees the page as each update left it.
        connect(clean, &CacheRun::updated, this, [&](const CacheUpdate &update) {
            ++updates;
            if (updates == 2 && std::holds_alternative<CleanerIdle>(update) && shown.isIdle()) {
                shown.tick("downloadsCheckBox", false);
                shown.tick("logsCheckBox");
                shown.find<QPushButton>("checkButton")->click();
            } else if (updates > 2 && shown.isIdle()) {
                idleAfterPress += shown.title("logsCheckBox");
            }
        });
        QVERIFY(shown.waitUntilIdle());
        QCOMPARE(updates, 4);
        QCOMPARE(idleAfterPress, QStringList());
        QVERIFY(shown.isIdle());
        QCOMPARE(shown.title("logsCheckBox"), u"Logs1.5 KB"_s);
        QVERIFY(!TestHome::exists("Downloads"));
        QVERIFY(TestHome::exists("Logs/a"));
    }

    // As on quitting: the run stays listed until its thread has ended.
    void pageDestroyedWhileItRuns()
    {
        SampleTree::makeNested(TestHome::path() + "/Library/Caches", 10, 50);
        ShownPage shown;
        QSignalSpy ended(&shown.jobs, &JobList::jobEnded);
        QSignalSpy allEnded(&shown.jobs, &JobList::allEnded);
        shown.tick("cachesCheckBox");
        QVERIFY(shown.press("cleanButton"));
        delete shown.page;
        QVERIFY(!shown.jobs.isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(allEnded.size(), 1, ShownPage::patience);
        QVERIFY(shown.jobs.isEmpty());
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QTRY_VERIFY(shown.jobs.findChildren<CacheRun *>().isEmpty());
        QVERIFY(TestHome::exists("Documents/b"));
    }

    void stoppedRunDeletesNothingMore()
    {
        JobList jobs;
        QSignalSpy ended(&jobs, &JobList::jobEnded);
        const auto turn = std::make_shared<std::mutex>();
        std::unique_lock held(*turn); // the run waits for its turn
        auto *run = new CacheRun(cleanEverything, jobs, {.page = {}, .title = u"Clean"_s}, turn);
        int idles = 0;
        connect(run, &CacheRun::updated, this, [&](const CacheUpdate &update) {
            idles += std::holds_alternative<CleanerIdle>(update);
        });
        jobs.stopAll();
        held.unlock();
        QTRY_VERIFY(jobs.isEmpty());
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QCOMPARE(idles, 2); // a page would be idle again
        QVERIFY(TestHome::exists("Logs/a"));
    }

    // Where the program ends without having asked, it still waits for the thread.
    void listDestroyedWhileItRuns()
    {
        SampleTree::makeNested(TestHome::path() + "/Logs", 10, 50);
        auto jobs = std::make_unique<JobList>();
        new CacheRun(cleanEverything, *jobs, {.page = {}, .title = u"Clean"_s},
                     std::make_shared<std::mutex>());
        jobs.reset();
        const SampleTree::Snapshot after = SampleTree::snapshot(TestHome::path());
        QTest::qWait(20);
        QCOMPARE(SampleTree::difference(after, SampleTree::snapshot(TestHome::path())),
                 QList<QByteArray>());
        QVERIFY(TestHome::exists("Documents/b"));
    }
};

QTEST_MAIN(LifeTest)
#include "tst_usercache_life.moc"
