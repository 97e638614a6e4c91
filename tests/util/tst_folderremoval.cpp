// Proves that removing a folder takes all of it, whatever it looks like, and nothing besides.

#include "FolderRemoval.h"
#include "SampleTree.h"

#include <QTest>

#include <fcntl.h>
#include <linux/capability.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <stop_token>
#include <thread>

using namespace SampleTree;
using namespace Qt::StringLiterals;

namespace
{

// As long as it lives, the super user is bound by the permissions of files like everybody else.
class WithoutPrivilege
{
public:
    WithoutPrivilege()
    {
        syscall(SYS_capget, &m_header, m_before);
        __user_cap_data_struct now[2] = {m_before[0], m_before[1]};
        now[0].effective &= ~((1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH));
        syscall(SYS_capset, &m_header, now);
    }
    ~WithoutPrivilege() { syscall(SYS_capset, &m_header, m_before); }
    Q_DISABLE_COPY_MOVE(WithoutPrivilege)

private:
    __user_cap_header_struct m_header = {.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    __user_cap_data_struct m_before[2] = {};
};

bool setImmutable(const QByteArray &path, bool immutable)
{
    const int file = open(path.constData(), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    bool done = ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
    flags = immutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    done = done && ioctl(file, FS_IOC_SETFLAGS, &flags) == 0;
    close(file);
    return done;
}

} // namespace

class tst_FolderRemoval : public QObject
{
    Q_OBJECT

    QByteArray m_home;
    Snapshot m_before;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe()));
        const rlimit few = {.rlim_cur = 256, .rlim_max = 256};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0);
    }

    // Every test gets a home folder with things that must all be there afterwards.
    void init()
    {
        m_home = makeRoot();
        makeNested(m_home + "/Documents", 3, 4);
        makeFile(m_home + "/Library/Preferences/p", "precious");
        makeFolder(m_home + "/Library/Caches");
        m_before = snapshot(m_home);
        m_before.remove("/Library/Caches");
    }

    void cleanup() { QCOMPARE(difference(m_before, snapshot(m_home)), {}); }

    void removesNestedTrees()
    {
        const int items = makeNested(m_home + "/Library/Caches", 40, 30);
        const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
        QCOMPARE(result.removed, static_cast<quint64>(items + 1));
        QCOMPARE(result.refused, 0u);
        QCOMPARE(result.firstError, 0);
    }

    void removesUnusualNames()
    {
        const QByteArray top = m_home + "/Library/Caches/";
        for (const QByteArray &name : {QByteArray("line\nbreak"), QByteArray("\xff\xfe\x80"),
                                       QByteArray(255, 'n'), QByteArray("-rf"), QByteArray("*"),
                                       QByteArray("..."), QByteArray(" "), QByteArray("\\")}) {
            makeFile(top + name + "/" + name, "x");
            makeFile(top + "file of " + name.left(200), "x");
        }
        QVERIFY(mkfifo((top + "pipe").constData(), 0600) == 0);
        makeFile(top + "no permission", "x");
        QVERIFY(chmod((top + "no permission").constData(), 0) == 0);
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 0u);
    }

    void removesManyLongNamesInOneFolder()
    {
        // More than are read at a time, and than the number from which on they are sorted.
        for (int i = 0; i < 16'000; ++i)
            makeFile(m_home + "/Library/Caches/" + QByteArray::number(i) + QByteArray(245, 'n'),
                     "");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 16'001u);
    }

    void removesChainsDeeperThanAnyPath()
    {
        makeChain(m_home + "/Library/Caches", 300, QByteArray(250, 'd'));
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 2 * 300 + 1u);
    }

    void removesLinksAndNotWhatTheyName()
    {
        const QByteArray top = m_home + "/Library/Caches";
        makeLink(top + "/folder", m_home + "/Documents");
        makeLink(top + "/relative", "../../Documents/d0");
        makeLink(top + "/file", m_home + "/Library/Preferences/p");
        makeLink(top + "/loop", "loop");
        makeLink(top + "/up", "..");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 6u);
    }

    void removesOnlyTheLinkAtTheTop()
    {
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        makeLink(m_home + "/Library/Caches", m_home + "/Documents");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        makeLink(m_home + "/Library/Caches", "/nowhere");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        makeFile(m_home + "/Library/Caches", "a file");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
        const FolderRemovalResult missing = removeBelow(m_home, "Library/Caches");
        QCOMPARE(missing.removed + missing.refused, 0u);
        QCOMPARE(removeBelow(m_home, "No/such/folder").refused, 0u);
    }

    void refusesALinkOnTheWay()
    {
        removeBelow(m_home, "Library/Caches");
        makeLink(m_home + "/Linked", "Library");
        for (const char *path : {"Linked/Preferences", "Linked/Preferences/p"}) {
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Nothing removed at .*Linked"_s));
            const FolderRemovalResult result = removeBelow(m_home, path);
            QCOMPARE(result.refused, 1u);
            QVERIFY(result.firstError == ENOTDIR || result.firstError == ELOOP);
        }
        QCOMPARE(removeBelow(m_home, "Linked").removed, 1u);
    }

    void refusesDangerousPlaces()
    {
        const QByteArray path = "Library";
        const QByteArray linkToRoot = makeRoot() + "/root";
        makeLink(linkToRoot, "/");
        const QList<std::pair<QByteArray, QByteArray>> places = {
            {"", path},
            {"/", path},
            {"//usr/../.", path},
            {linkToRoot, path},
            {".", path},
            {m_home + "/missing", path},
            {"/proc/self/status", path},
            {m_home + QByteArray("\0/x", 3), path},
            {m_home, ""},
            {m_home, m_home + "/Library"},
            {m_home, ".."},
            {m_home, "Library/../Library"},
            {m_home, "."},
            {m_home, "Library/"},
            {m_home, QByteArray("Library\0/x", 10)},
        };
        removeBelow(m_home, "Library/Caches");
        for (const auto &[base, item] : places) {
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Nothing removed at "_s));
            const FolderRemovalResult result = removeBelow(base, item);
            QVERIFY2(result.removed == 0 && result.refused == 1 && result.firstError != 0,
                     (base + " and " + item).constData());
        }
    }

    void goesOnAfterImmutableItems()
    {
        makeNested(m_home + "/Library/Caches", 5, 6);
        const QByteArray stubborn = m_home + "/Library/Caches/d2/inner/f0";
        if (!setImmutable(stubborn, true))
            QSKIP("this file system or user cannot make files immutable");
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^1 items stayed at "_s));
        const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
        const auto rest = snapshot(m_home + "/Library/Caches");
        setImmutable(stubborn, false);
        QCOMPARE(result.refused, 1u);
        QCOMPARE(result.firstError, EPERM);
        QCOMPARE(rest.keys(), QList<QByteArray>({"/d2", "/d2/inner", "/d2/inner/f0"}));
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 4u);
    }

    void goesOnAfterForbiddenFolders()
    {
        const QByteArray top = m_home + "/Library/Caches";
        makeNested(top, 5, 6);
        makeFolder(top + "/empty and unreadable");
        QVERIFY(chmod((top + "/empty and unreadable").constData(), 0) == 0);
        QVERIFY(chmod((top + "/d1").constData(), 0) == 0); // Not even to be listed.
        QVERIFY(chmod((top + "/d3/inner").constData(), 0500) == 0); // Listed, but kept.
        FolderRemovalResult result;
        {
            const WithoutPrivilege plainUser;
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^4 items stayed at "_s));
            result = removeBelow(m_home, "Library/Caches");
        }
        QVERIFY(chmod((top + "/d1").constData(), 0700) == 0);
        const auto rest = snapshot(top);
        QCOMPARE(result.firstError, EACCES);
        QCOMPARE(rest.size(), 1 + 7 + 2 + 3);
        QVERIFY(rest.contains("/d1/f1") && rest.contains("/d3/inner/f4"));
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 0u);
    }

    // A removal that is through before the order to stop arrives gets a larger folder.
    void stopsWhereItStands()
    {
        const QByteArray top = m_home + "/Library/Caches";
        FolderRemovalResult result;
        int items = 0;
        for (int folders = 40; folders <= 2560 && !(exists(top) && result.removed); folders *= 4) {
            items = makeNested(top, folders, 50);
            std::stop_source stop;
            const std::jthread watcher([&] {
                while (exists(top + "/d0") && exists(top + "/d9")) { }
                stop.request_stop();
            });
            result = removeBelow(m_home, "Library/Caches", stop.get_token());
        }
        QCOMPARE(result.firstError, ECANCELED);
        QVERIFY(result.removed > 0 && result.removed < static_cast<quint64>(items));
        std::stop_source stopped;
        stopped.request_stop();
        QCOMPARE(removeBelow(m_home, "Library/Caches", stopped.get_token()).removed, 0u);
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 0u);
    }
};

QTEST_GUILESS_MAIN(tst_FolderRemoval)
#include "tst_folderremoval.moc"
