// Proves in which order a cleaner works and reports, where it measures and where it deletes, and
// that its run ends well whatever happens to who wanted it.

#include "CacheCleaner.h"
#include "CacheRun.h"
#include "JobList.h"
#include "TestHome.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

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
        QCOMPARE(m_updates,
                 QStringList({u"resolved %1 | 0"_s.arg(MiscTool::getUserHome()), u"1: 0 | 2"_s,
                              u"idle | 2"_s, u"disk | 1"_s, u"idle | 1"_s}));
        QCOMPARE(SecurityScopedAccess::openedSoFar() - opened, 3);
        QCOMPARE(SecurityScopedAccess::heldNow(), 0);
        QVERIFY(!TestHome::exists("Logs") && TestHome::exists(".Trash/b"));
    }

    void measuresBelowTheGrantAndDeletesBelowHome()
    {
        const QByteArray granted = SampleTree::makeRoot();
        SampleTree::makeFile(granted + "/Logs/kept", "1234567");
        cleaner(QUrl::fromLocalFile(QFile::decodeName(granted)), "00010").cleanDisk();
        QCOMPARE(m_updates.first(), u"1: 7 | 2"_s);
        QVERIFY(SampleTree::exists(granted + "/Logs/kept"));
        QVERIFY(!TestHome::exists("Logs"));
    }

    void neverMeasuresAtTheRoot()
    {
        QCOMPARE(CacheCleaner::measuredFolder(u"/"_s, 1), QString());
        cleaner({}, "00010").checkDisk();
        QCOMPARE(m_updates, QStringList({u"1: 0 | 1"_s, u"idle | 1"_s}));
    }

    void stoppedRunDeletesNothingMore()
    {
        JobList jobs;
        QSignalSpy ended(&jobs, &JobList::jobEnded);
        const auto turn = std::make_shared<std::mutex>();
        std::unique_lock held(*turn); // the run waits for its turn
        TestHome::grant();
        auto *run = new CacheRun(cleanEverything, jobs, {.page = {}, .title = u"Clean"_s}, turn);
        connect(run, &CacheRun::updated, this, [this](const CacheUpdate &update) { note(update); });
        jobs.stopAll();
        held.unlock();
        QTRY_VERIFY(jobs.isEmpty());
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QCOMPARE(m_updates.filter(u"idle"_s).size(), 2); // a page would be idle again
        QVERIFY(TestHome::exists("Logs/a") && TestHome::exists(".Trash/b"));
    }

    // Even if the program ends without a question, it waits for the thread.
    void listDestroyedWhileItRuns()
    {
        TestHome::grant();
        SampleTree::makeNested(TestHome::path() + "/Logs", 10, 50);
        const auto threads = [] { return QDir(u"/proc/self/task"_s).count(); };
        const auto before = threads();
        auto jobs = std::make_unique<JobList>();
        new CacheRun(cleanEverything, *jobs, {.page = {}, .title = u"Clean"_s},
                     std::make_shared<std::mutex>());
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
            what = u"%1: %2"_s.arg(measured->category).arg(measured->bytes);
        else if (std::holds_alternative<DiskChanged>(update))
            what = u"disk"_s;
        m_updates += u"%1 | %2"_s.arg(what).arg(SecurityScopedAccess::heldNow());
    }

    const CacheRun::Request cleanEverything{
        .work = CacheRun::Work::Clean, .bookmarkURL = {}, .ticked = CacheSelection().set()};
    QStringList m_updates;
};

QTEST_GUILESS_MAIN(UserCacheCleanerTest)
#include "tst_usercache_cleaner.moc"
