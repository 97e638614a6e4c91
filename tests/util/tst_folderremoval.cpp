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
    void initTestCase() { QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe())); }

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

    void removesManyNamesInOneFolder()
    {
        // More than the number from which on items are sorted before they go.
        for (int i = 0; i < 12'000; ++i)
            makeFile(m_home + "/Library/Caches/" + QByteArray::number(i), "");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 12'001u);
    }

    void removesVeryLongNamesInOneFolder()
    {
        // More bytes than are read at a time.
        for (int i = 0; i < 16'000; ++i)
            makeFile(m_home + "/Library/Caches/" + QByteArray::number(i) + QByteArray(245, 'n'),
                     "");
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 16'001u);
    }

    void removesChainsDeeperThanAnyPath_data()
    {
        QTest::addColumn<int>("levels");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("1,000 levels") << 1000 << QByteArray("d");
        QTest::newRow("250 levels of 250 bytes") << 250 << QByteArray(250, 'd');
    }
    void removesChainsDeeperThanAnyPath()
    {
        QFETCH(int, levels);
        QFETCH(QByteArray, name);
        makeChain(m_home + "/Library/Caches", levels, name);
        rlimit before = {};
        QVERIFY(getrlimit(RLIMIT_NOFILE, &before) == 0);
        const rlimit few = {.rlim_cur = 256, .rlim_max = before.rlim_max};
        QVERIFY(setrlimit(RLIMIT_NOFILE, &few) == 0);
        const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
        setrlimit(RLIMIT_NOFILE, &before);
        QCOMPARE(result.removed, static_cast<quint64>(2 * levels + 1));
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
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Nothing removed at .*Linked"_s));
        const FolderRemovalResult result = removeBelow(m_home, "Linked/Preferences");
        QCOMPARE(result.refused, 1u);
        QCOMPARE(result.firstError, ENOTDIR);
        QCOMPARE(removeBelow(m_home, "Linked").removed, 1u);
    }

    void refusesDangerousPlaces_data()
    {
        QTest::addColumn<QByteArray>("base");
        QTest::addColumn<QByteArray>("path");
        const QByteArray path = "Library";
        const QByteArray home = makeRoot();
        makeFolder(home + "/Library");
        makeLink(home + "/root", "/");
        QTest::newRow("empty base") << QByteArray() << path;
        QTest::newRow("root") << QByteArray("/") << path;
        QTest::newRow("root by another name") << QByteArray("//usr/../.") << path;
        QTest::newRow("link to the root") << home + "/root" << path;
        QTest::newRow("relative base") << QByteArray(".") << path;
        QTest::newRow("missing base") << home + "/missing" << path;
        QTest::newRow("base is a file") << QByteArray("/proc/self/status") << path;
        QTest::newRow("NUL in base") << home + QByteArray("\0/x", 3) << path;
        QTest::newRow("empty path") << home << QByteArray();
        QTest::newRow("absolute path") << home << home + "/Library";
        QTest::newRow("upwards") << home << QByteArray("..");
        QTest::newRow("upwards inside") << home << QByteArray("Library/../Library");
        QTest::newRow("the base itself") << home << QByteArray(".");
        QTest::newRow("ending in a slash") << home << QByteArray("Library/");
        QTest::newRow("NUL in path") << home << QByteArray("Library\0/x", 10);
    }
    void refusesDangerousPlaces()
    {
        removeBelow(m_home, "Library/Caches");
        QFETCH(QByteArray, base);
        QFETCH(QByteArray, path);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^Nothing removed at "_s));
        const FolderRemovalResult result = removeBelow(base, path);
        QCOMPARE(result.removed, 0u);
        QCOMPARE(result.refused, 1u);
        QVERIFY(result.firstError != 0);
        QVERIFY(base.size() < 20 || base.contains('\0') || base.endsWith("/missing")
                || exists(base));
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
};

QTEST_GUILESS_MAIN(tst_FolderRemoval)
#include "tst_folderremoval.moc"
