// Proves in which order a cleaner works and reports, where it measures and where it deletes.

#include "CacheCleaner.h"
#include "DiskUsage.h"
#include "SecurityScopedAccess.h"
#include "ShownPage.h"

using namespace Qt::StringLiterals;

namespace
{

const CacheSelection everything = CacheSelection().set();

/// Each update in words, with the number of accesses held while it was made.
class Recorder
{
public:
    CacheCleaner cleaner(const QUrl &folder, CacheSelection ticked, std::stop_token stop = {})
    {
        return CacheCleaner(
            folder, ticked, [this](const CacheUpdate &update) { note(update); }, std::move(stop));
    }

    QStringList updates;

private:
    void note(const CacheUpdate &update)
    {
        QString what = u"idle"_s;
        if (const auto *resolved = std::get_if<GrantResolved>(&update))
            what = u"resolved "_s + resolved->bookmarkURL.toLocalFile();
        else if (const auto *measured = std::get_if<FolderMeasured>(&update))
            what = u"%1: %2"_s.arg(measured->category).arg(measured->bytes);
        else if (std::holds_alternative<DiskChanged>(update))
            what = u"disk"_s;
        updates += u"%1 | %2"_s.arg(what).arg(SecurityScopedAccess::heldNow());
    }
};

QUrl home()
{
    return QUrl::fromLocalFile(MiscTool::getUserHome());
}

} // namespace

class CleanerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestHome::reset(); }

    void checkReportsInOrder()
    {
        TestHome::makeFile("Logs/a", 100);
        TestHome::makeFile(".Trash/b", 20);
        TestHome::makeFile("Downloads/not ticked", 1);
        const int opened = SecurityScopedAccess::openedSoFar();
        Recorder recorder;
        recorder.cleaner(home(), CacheSelection("11010")).checkDisk();
        QCOMPARE(recorder.updates,
                 QStringList({u"1: 100 | 1"_s, u"3: 0 | 1"_s, u"4: 20 | 1"_s, u"idle | 1"_s}));
        QCOMPARE(SecurityScopedAccess::openedSoFar() - opened, 1);
        QCOMPARE(SecurityScopedAccess::heldNow(), 0);
    }

    // The measuring step inside ends as any other does, so the page is idle once early.
    void cleanReportsInOrder()
    {
        TestHome::makeFile("Logs/a", 100);
        const int opened = SecurityScopedAccess::openedSoFar();
        Recorder recorder;
        recorder.cleaner(home(), CacheSelection("00010")).cleanDisk();
        QCOMPARE(recorder.updates,
                 QStringList({u"1: 0 | 2"_s, u"idle | 2"_s, u"disk | 1"_s, u"idle | 1"_s}));
        QCOMPARE(SecurityScopedAccess::openedSoFar() - opened, 2);
        QCOMPARE(SecurityScopedAccess::heldNow(), 0);
    }

    void measuresBelowTheGrantAndDeletesBelowHome()
    {
        const QByteArray granted = SampleTree::makeRoot();
        SampleTree::makeFile(granted + "/Logs/kept", "1234567");
        TestHome::makeFile("Logs/gone", 100);
        Recorder recorder;
        recorder.cleaner(QUrl::fromLocalFile(QFile::decodeName(granted)), CacheSelection("00010"))
            .cleanDisk();
        QCOMPARE(recorder.updates.first(), u"1: 7 | 2"_s);
        QVERIFY(SampleTree::exists(granted + "/Logs/kept"));
        QVERIFY(!TestHome::exists("Logs"));
    }

    void resolvesAnUnsetGrant()
    {
        TestHome::makeFile("Logs/a", 100);
        TestHome::grant();
        Recorder recorder;
        recorder.cleaner(QUrl(), CacheSelection("00010")).cleanDisk();
        QCOMPARE(recorder.updates.first(), u"resolved %1 | 0"_s.arg(MiscTool::getUserHome()));
        QCOMPARE(recorder.updates.filter(u"resolved"_s).size(), 1);
        QVERIFY(!TestHome::exists("Logs"));
    }

    void neverMeasuresAtTheRoot()
    {
        QCOMPARE(CacheCleaner::measuredFolder({}, 1), QString());
        QCOMPARE(CacheCleaner::measuredFolder(u"/"_s, 1), QString());
        QCOMPARE(CacheCleaner::measuredFolder(u"/home/ä"_s, 0), u"/home/ä/Library/Caches"_s);
        Recorder recorder;
        recorder.cleaner(QUrl(), CacheSelection("00010")).checkDisk();
        QCOMPARE(recorder.updates, QStringList({u"1: 0 | 1"_s, u"idle | 1"_s}));
    }

    void stopBeginsNoFurtherCategory()
    {
        TestHome::makeFile("Logs/a", 100);
        TestHome::makeFile("Downloads/b", 100);
        std::stop_source stop;
        stop.request_stop();
        Recorder recorder;
        recorder.cleaner(home(), everything, stop.get_token()).cleanDisk();
        QCOMPARE(recorder.updates, QStringList({u"idle | 2"_s, u"disk | 1"_s, u"idle | 1"_s}));
        QVERIFY(TestHome::exists("Logs/a"));
        QVERIFY(TestHome::exists("Downloads/b"));
    }

    void usedPercentage()
    {
        const auto used = [](std::int64_t total, std::int64_t free) {
            return DiskUsage({.total = total, .free = free}).usedPercentage();
        };
        constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
        QCOMPARE(used(1000, 1), 99); // the fraction is dropped
        QCOMPARE(used(1000, 0), 100);
        QCOMPARE(used(1000, 1000), 0);
        QCOMPARE(used(0, 0), 0);
        QCOMPARE(used(most, most / 4), 75);
    }
};

QTEST_MAIN(CleanerTest)
#include "tst_usercache_cleaner.moc"
