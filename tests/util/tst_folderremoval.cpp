// Proves that the size of a folder is what "du" gives, and that removing it removes all of it,
// whatever it holds, and nothing else.

#include "FolderRemoval.h"
#include "FolderSize.h"
#include "SampleTree.h"
#include "WithoutPrivilege.h"

#include <QProcess>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stop_token>
#include <thread>

using namespace SampleTree;
using namespace Qt::StringLiterals;

namespace
{

/// Every name counts, also that of a second link, and that of the folder itself.
qint64 byDu(const QString &unit, const QByteArray &path)
{
    QProcess du;
    du.start(u"du"_s, {u"-sl"_s, unit, u"--"_s, QString::fromUtf8(path)});
    if (!du.waitForFinished() || du.exitCode() != 0)
        return -1;
    return du.readAllStandardOutput().split('\t').first().toLongLong();
}

} // namespace

class TestFolderRemoval : public QObject
{
    Q_OBJECT

    QByteArray m_home;
    QByteArray m_caches;
    Snapshot m_before;

private Q_SLOTS:
    void initTestCase()
    {
        const rlimit few = {.rlim_cur = 256, .rlim_max = 256};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0);
    }

    // Every test gets a home folder with things that must all be there afterwards.
    void init()
    {
        m_home = makeRoot();
        m_caches = m_home + "/Library/Caches";
        makeNested(m_home + "/Documents", 3, 4);
        makeFile(m_home + "/Library/Preferences/p", "precious");
        makeFolder(m_caches);
        m_before = snapshot(m_home);
        m_before.remove("/Library/Caches");
    }

    void cleanup() { QCOMPARE(difference(m_before, snapshot(m_home)), {}); }

    void measuresAndRemovesWhateverThereIs()
    {
        makeNested(m_caches, 40, 30);
        for (const QByteArray &name : {QByteArray("line\nbreak"), QByteArray("\xff\xfe\x80"),
                                       QByteArray(255, 'n'), QByteArray("-rf"), QByteArray("*"),
                                       QByteArray("..."), QByteArray(" "), QByteArray("\\")})
            makeFile(m_caches + '/' + name + '/' + name, name);
        // More than are read at a time, and enough to be sorted.
        for (int i = 0; i < 16'000; ++i)
            makeFile(m_caches + "/flat/" + QByteArray::number(i) + QByteArray(245, 'n'), "");
        makeChain(m_caches + "/chain", 300, QByteArray(250, 'd')); // Deeper than any path.
        makeLink(m_caches + "/folder", m_home + "/Documents");
        makeLink(m_caches + "/relative", "../../Documents/d0");
        makeLink(m_caches + "/loop", "loop");
        makeLink(m_caches + "/up", "..");
        makeFile(m_caches + "/sparse", "");
        QCOMPARE(truncate((m_caches + "/sparse").constData(), qint64(1) << 40), 0);
        QCOMPARE(chmod((m_caches + "/sparse").constData(), 0), 0);
        QCOMPARE(link((m_caches + "/sparse").constData(), (m_caches + "/two").constData()), 0);
        QCOMPARE(mkfifo((m_caches + "/pipe").constData(), 0600), 0);

        struct stat own = {};
        QCOMPARE(stat(m_caches.constData(), &own), 0);
        const std::int64_t size = byDu(u"-b"_s, m_caches) - own.st_size;
        QCOMPARE(folderSize(m_caches), size);
        const QByteArray other = makeRoot() + "/link";
        makeLink(other, m_caches);
        QCOMPARE(folderSize(other), size);

        const auto items = static_cast<quint64>(byDu(u"--inodes"_s, m_caches));
        const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
        QCOMPARE(result.removed, items);
        QCOMPARE(result.refused, 0u);
        QCOMPARE(result.firstError, 0);
    }

    // Neither holes nor what keeps another name.
    void countsWhatIsFreed()
    {
        makeFile(m_caches + "/two", QByteArray(1536, 'x'));
        QCOMPARE(link((m_caches + "/two").constData(), (m_caches + "/names").constData()), 0);
        makeFile(m_caches + "/kept", QByteArray(700, 'x'));
        const QByteArray other = makeRoot() + "/other name";
        QCOMPARE(link((m_caches + "/kept").constData(), other.constData()), 0);
        makeFile(m_caches + "/holes", "");
        QCOMPARE(truncate((m_caches + "/holes").constData(), qint64(1) << 40), 0);
        QCOMPARE(removeBelow(m_home, "Library/Caches", {}, FreedBytes::Count).freed, 1536u);
        makeFile(m_caches, QByteArray(20, 'x'));
        QCOMPARE(removeBelow(m_home, "Library/Caches", {}, FreedBytes::Count).freed, 20u);
    }

    void removesOnlyTheLinkAtTheTop()
    {
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        for (const QByteArray &target : {m_home + "/Documents", QByteArray("/nowhere")}) {
            makeLink(m_caches, target);
            QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        }
        makeFile(m_caches, "a file");
        QCOMPARE(measureFolder(m_caches).error, ENOTDIR);
        QCOMPARE(folderSize(m_caches), 0);
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        QCOMPARE(measureFolder(m_caches).error, ENOENT);
        const FolderRemovalResult missing = removeBelow(m_home, "No/such/folder");
        QCOMPARE(missing.removed + missing.refused, 0u);
    }

    void refusesDangerousPlacesAndLinksOnTheWay()
    {
        const QByteArray path = "Library";
        const QByteArray linkToRoot = makeRoot() + "/root";
        makeLink(linkToRoot, "/");
        makeLink(m_home + "/Linked", "Library");
        const QList<std::pair<QByteArray, QByteArray>> places = {
            {"", path},
            {"//usr/../.", path},
            {linkToRoot, path},
            {".", path},
            {"/proc/self/status", path},
            {m_home + QByteArray("\0/x", 3), path},
            {m_home, ""},
            {m_home, m_home + "/Library"},
            {m_home, "Library/../Library"},
            {m_home, "Linked/Preferences"},
            {m_home, QByteArray("Library\0/x", 10)},
        };
        for (const auto &[base, item] : places) {
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Nothing removed at "_s));
            const FolderRemovalResult result = removeBelow(base, item);
            QVERIFY2(result.removed == 0 && result.refused == 1 && result.firstError != 0,
                     (base + " and " + item).constData());
        }
        QVERIFY(exists(m_caches));
        removeBelow(m_home, "Library/Caches");
        removeBelow(m_home, "Linked");
    }

    void goesOnAfterForbiddenFolders()
    {
        makeNested(m_caches, 5, 6);
        makeFolder(m_caches + "/empty and unreadable");
        QCOMPARE(chmod((m_caches + "/empty and unreadable").constData(), 0), 0);
        QCOMPARE(chmod((m_caches + "/d1").constData(), 0), 0); // Not even to be listed.
        QCOMPARE(chmod((m_caches + "/d3/inner").constData(), 0500), 0); // Listed, but kept.
        QVERIFY(!measureFolder(m_home).isPartial);
        FolderRemovalResult result;
        {
            const WithoutPrivilege plainUser;
            QVERIFY(measureFolder(m_caches).isPartial);
            QCOMPARE(measureFolder(m_caches + "/d1").error, EACCES);
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^4 items stayed at "_s));
            result = removeBelow(m_home, "Library/Caches");
        }
        QCOMPARE(chmod((m_caches + "/d1").constData(), 0700), 0);
        const auto rest = snapshot(m_caches);
        QCOMPARE(result.firstError, EACCES);
        QCOMPARE(rest.size(), 1 + 7 + 2 + 3);
        QVERIFY(rest.contains("/d1/f1") && rest.contains("/d3/inner/f4"));
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 0u);
    }

    // If a removal is complete before the stop request arrives, the next one gets a larger folder.
    void stopsWhereItStands()
    {
        FolderRemovalResult result;
        std::stop_source stop;
        for (int folders = 40; folders <= 2560 && !(exists(m_caches) && result.removed);
             folders *= 4) {
            makeNested(m_caches, folders, 50);
            stop = std::stop_source();
            const std::jthread watcher([this, &stop] {
                while (exists(m_caches + "/d0") && exists(m_caches + "/d9")) { }
                stop.request_stop();
            });
            result = removeBelow(m_home, "Library/Caches", stop.get_token());
        }
        QCOMPARE(result.firstError, ECANCELED);
        QVERIFY(result.removed > 0 && !snapshot(m_caches).isEmpty());
        QCOMPARE(removeBelow(m_home, "Library/Caches", stop.get_token()).removed, 0u);
        QCOMPARE(folderSize(m_caches, stop.get_token()), 0);
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 0u);
    }
};

QTEST_GUILESS_MAIN(TestFolderRemoval)
#include "tst_folderremoval.moc"
