// Proves in which order a cleaner works and reports, where it measures and where it deletes, and
// that its run ends well whatever happens to who wanted it.

#include "CacheCleaner.h"
#include "CacheRun.h"
#include "JobList.h"
#include "TestHome.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

/// Tasks that take no notice of a stop request, until they are released; then they report.
class Hanging
{
public:
    ~Hanging() { release(); }

    CacheRun::Task task() const
    {
        return [counts = m_counts](const CacheCleaner::Report &report, const std::stop_token &) {
            ++counts->started;
            counts->isReleased.wait(false);
            report(DiskChanged{});
            ++counts->over;
        };
    }
    void release() const
    {
        m_counts->isReleased = true;
        m_counts->isReleased.notify_all();
    }
    int started() const { return m_counts->started; }
    bool areOver() const { return m_counts->started == m_counts->over; }

private:
    struct Counts {
        std::atomic<int> started = 0;
        std::atomic<int> over = 0;
        std::atomic<bool> isReleased = false;
    };
    std::shared_ptr<Counts> m_counts = std::make_shared<Counts>();
};

} // namespace

class UserCacheCleanerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestHome::reset();
        TestHome::makeFile("Logs/a", 100);
        TestHome::makeFile(".Trash/b", 20);
        TestHome::makeFile("Documents/c", 1);
        m_updates.clear();
    }

    // The measuring step inside a clean ends as any other does, so the page is idle once early.
    void reportsInOrder()
    {
        const int opened = SecurityScopedAccess::openedSoFar();
        cleaner(home(), "11010").checkDisk();
        QCOMPARE(m_updates,
                 QStringList({u"1: 100 | 1"_s, u"3: 0 | 1"_s, u"4: 20 | 1"_s, u"idle | 1"_s}));
        QCOMPARE(SecurityScopedAccess::openedSoFar() - opened, 1);
        m_updates.clear();
        TestHome::grant();
        cleaner({}, "00010").cleanDisk();
        QCOMPARE(
            m_updates,
            QStringList({u"resolved %1 | 0"_s.arg(MiscTool::getUserHome()), u"1: freed 100 | 1"_s,
                         u"1: 0 | 2"_s, u"idle | 2"_s, u"disk | 1"_s, u"idle | 1"_s}));
        QCOMPARE(SecurityScopedAccess::openedSoFar() - opened, 3);
        QCOMPARE(SecurityScopedAccess::heldNow(), 0);
        QVERIFY(!TestHome::exists("Logs") && TestHome::exists(".Trash/b"));
    }

    void measuresBelowTheGrantAndDeletesBelowHome()
    {
        const QByteArray granted = SampleTree::makeRoot();
        SampleTree::makeFile(granted + "/Logs/kept", "1234567");
        cleaner(QUrl::fromLocalFile(QFile::decodeName(granted)), "00010").cleanDisk();
        QCOMPARE(m_updates.at(1), u"1: 7 | 2"_s);
        QVERIFY(SampleTree::exists(granted + "/Logs/kept"));
        QVERIFY(!TestHome::exists("Logs"));
    }

    void neverMeasuresAtTheRoot()
    {
        QCOMPARE(CacheCleaner::measuredFolder(u"/"_s, 1), QString());
        cleaner({}, "00010").checkDisk();
        QCOMPARE(m_updates, QStringList({u"1: 0 | 1"_s, u"idle | 1"_s}));
    }

    // A run waits for the one before, however that one ends.
    void stoppedRunDeletesNothingMore()
    {
        JobList jobs;
        QSignalSpy ended(&jobs, &JobList::jobEnded);
        Hanging hanging;
        TestHome::grant();
        auto *first = new CacheRun(hanging.task(), jobs, clean, nullptr);
        auto *run = new CacheRun(cleanEverything, jobs, clean, first);
        connect(run, &CacheRun::updated, this, [this](const CacheUpdate &update) { note(update); });
        jobs.stopAll();
        hanging.release();
        QTRY_VERIFY(jobs.isEmpty());
        QCOMPARE(ended.at(1).at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QCOMPARE(m_updates.filter(u"idle"_s).size(), 2); // a page would be idle again
        QVERIFY(TestHome::exists("Logs/a") && TestHome::exists(".Trash/b"));
    }

    // As by a server that does not answer: nothing waits for it for ever, the next run has its
    // turn, and what the thread does when it wakes up touches nobody.
    void runThatDoesNotAnswerIsLeftBehind()
    {
        Hanging hanging;
        auto jobs = std::make_unique<JobList>();
        QSignalSpy ended(jobs.get(), &JobList::jobEnded);
        auto *run = new CacheRun(hanging.task(), *jobs, clean, nullptr);
        auto *next = new CacheRun(hanging.task(), *jobs, clean, run);
        for (const CacheRun *each : {run, next})
            connect(each, &CacheRun::updated, this,
                    [this](const CacheUpdate &update) { note(update); });
        run->stop();
        QTRY_COMPARE(hanging.started(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 20'000);
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QCOMPARE(m_updates, QStringList({u"trouble 1 | 0"_s, u"idle | 0"_s}));
        QTRY_COMPARE(hanging.started(), 2);
        jobs.reset(); // the end of the program
        QVERIFY(!hanging.areOver());
        hanging.release();
        QTRY_VERIFY(hanging.areOver());
        QCoreApplication::processEvents();
        QCOMPARE(m_updates.size(), 2);
    }

    // Even if the program ends without a question, it waits for the thread.
    void listDestroyedWhileItRuns()
    {
        TestHome::grant();
        SampleTree::makeNested(TestHome::path() + "/Logs", 10, 50);
        const auto threads = [] { return QDir(u"/proc/self/task"_s).count(); };
        const auto before = threads();
        auto jobs = std::make_unique<JobList>();
        new CacheRun(cleanEverything, *jobs, clean, nullptr);
        jobs.reset();
        const SampleTree::Snapshot after = SampleTree::snapshot(TestHome::path());
        QTRY_COMPARE(threads(), before);
        QCOMPARE(SampleTree::difference(after, SampleTree::snapshot(TestHome::path())),
                 QList<QByteArray>());
        QVERIFY(TestHome::exists("Documents/c"));
    }

private:
    static QUrl home() { return QUrl::fromLocalFile(MiscTool::getUserHome()); }
    CacheCleaner cleaner(const QUrl &folder, const char *ticked)
    {
        return CacheCleaner(
            folder, CacheSelection(ticked), [this](const CacheUpdate &update) { note(update); },
            std::stop_token());
    }
    /// In words, with the number of accesses held while it was made.
    void note(const CacheUpdate &update)
    {
        QString what = u"idle"_s;
        if (const auto *resolved = std::get_if<GrantResolved>(&update))
            what = u"resolved "_s + resolved->bookmarkURL.toLocalFile();
        else if (const auto *measured = std::get_if<FolderMeasured>(&update))
            what = u"%1: %2"_s.arg(measured->category).arg(measured->found.bytes);
        else if (const auto *cleaned = std::get_if<FolderCleaned>(&update))
            what = u"%1: freed %2"_s.arg(cleaned->category).arg(cleaned->result.freed);
        else if (const auto *trouble = std::get_if<CacheTrouble>(&update))
            what = u"trouble %1"_s.arg(static_cast<int>(*trouble));
        else if (std::holds_alternative<DiskChanged>(update))
            what = u"disk"_s;
        m_updates += u"%1 | %2"_s.arg(what).arg(SecurityScopedAccess::heldNow());
    }

    static void cleanEverything(const CacheCleaner::Report &report, const std::stop_token &stop)
    {
        CacheCleaner({}, CacheSelection().set(), report, stop).cleanDisk();
    }

    const JobDescription clean{.page = {}, .title = u"Clean"_s};
    QStringList m_updates;
};

QTEST_GUILESS_MAIN(UserCacheCleanerTest)
#include "tst_usercache_cleaner.moc"
