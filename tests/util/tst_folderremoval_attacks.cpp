// Proves that the removal touches nothing outside, even if another program changes the folder while
// it is removed or mounts something in it.

#include "FolderDescent.h"
#include "FolderRemoval.h"
#include "SampleTree.h"

#include <QElapsedTimer>
#include <QTest>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

using namespace SampleTree;
using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 maxTime = 4'000; // Milliseconds, for a busy machine.
constexpr int wantedSwaps = 3'000;
constexpr int wantedRounds = 30;

using Pairs = QList<std::pair<QByteArray, QByteArray>>;

// Keeps exchanging the two names of each pair, on a thread of its own, until it goes out of scope.
std::jthread swapper(const Pairs &pairs, std::atomic<int> *swaps)
{
    return std::jthread([pairs, swaps](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            for (const auto &[one, other] : pairs)
                *swaps += renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(),
                                    RENAME_EXCHANGE)
                    == 0;
            // Without a pause the removal would hardly find the folders in their places.
            std::this_thread::sleep_for(std::chrono::microseconds(1));
        }
    });
}

bool mountHere(const QByteArray &what, const QByteArray &path)
{
    return mount(what.constData(), path.constData(), nullptr, MS_BIND, nullptr) == 0;
}

/// An empty file system of its own at the path, which this process alone sees.
bool mountMemory(const QByteArray &path)
{
    return unshare(CLONE_NEWNS) == 0 && mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount("none", path.constData(), "tmpfs", 0, nullptr) == 0;
}

} // namespace

class TestFolderRemovalAttacks : public QObject
{
    Q_OBJECT

    QByteArray m_outside;
    QByteArray m_home;
    Snapshot m_before;

private Q_SLOTS:
    void init()
    {
        const QByteArray root = makeRoot();
        m_outside = root + "/outside";
        m_home = root + "/home";
        makeNested(m_outside, 3, 4);
        makeFile(m_outside + "/Caches/inner/f0", "precious");
        makeFolder(m_home + "/Library/Caches");
        m_before = snapshot(m_outside);
    }

    void cleanup() { QCOMPARE(difference(m_before, snapshot(m_outside)), {}); }

    // Names in a home folder that are exchanged. "bait0" leads outside, where there is a "Caches",
    // too.
    void foldersTurnIntoLinks_data()
    {
        QTest::addColumn<Pairs>("pairs");
        QTest::newRow("inside") << Pairs{{"/Library/Caches/d11", "/bait0"},
                                         {"/Library/Caches/d5", "/bait1"},
                                         {"/Library/Caches/d7/inner", "/bait2"},
                                         {"/Library/Caches/d8", "/Library/Caches/d9/inner"}};
        QTest::newRow("the folder itself") << Pairs{{"/Library/Caches", "/bait0"}};
        QTest::newRow("the way") << Pairs{{"/Library", "/bait0"}};
    }

    // Removes the folder from one new home after the other until there were enough tries.
    void foldersTurnIntoLinks()
    {
        QFETCH(Pairs, pairs);
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        std::atomic<int> swaps = 0;
        quint64 removed = 0;
        int rounds = 0;
        QElapsedTimer timer;
        for (timer.start();
             timer.elapsed() < maxTime && (swaps < wantedSwaps || rounds < wantedRounds);
             ++rounds) {
            const QByteArray home = m_home + QByteArray::number(rounds);
            makeNested(home + "/Library/Caches", 12, 4);
            makeLink(home + "/bait0", m_outside);
            makeLink(home + "/bait1", m_outside + "/d0");
            makeLink(home + "/bait2", m_outside + "/d1/inner");
            Pairs here;
            for (const auto &[one, other] : pairs)
                here.append({home + one, home + other});
            const int swapsBefore = swaps;
            const std::jthread swapping = swapper(here, &swaps);
            while (swaps == swapsBefore && timer.elapsed() < maxTime)
                std::this_thread::yield();
            removed += removeBelow(home, "Library/Caches").removed;
        }
        qInstallMessageHandler(before);
        qDebug("%d rounds, %d swaps, %llu items removed", rounds, swaps.load(), removed);
        QVERIFY(removed > 0 && swaps >= rounds);
    }

    void theWayBackTurnsIntoAnotherFolder()
    {
        constexpr int levels = 40; // More than stay open.
        constexpr int moved = 11; // Its parent has been closed by then.
        const QByteArray top = m_home + "/Library/Caches";
        makeChain(top, levels, "d");
        FolderDescent descent(
            {.folder = FolderAccess::openFolder(AT_FDCWD, top.constData()), .names = {}});
        for (int i = 0; i < levels; ++i) {
            descent.addSubfolder("d");
            descent.enter(FolderAccess::openFolder(descent.folder(), descent.nextSubfolder()));
        }
        QCOMPARE(rename((top + QByteArray("/d").repeated(moved)).constData(),
                        (m_home + "/Library/d").constData()),
                 0);
        for (int level = levels; level > moved; --level)
            QCOMPARE(descent.leave(), "d");
        QCOMPARE(descent.leave(), nullptr);
    }

    void whatIsMountedStays()
    {
        const QByteArray top = m_home + "/Library/Caches";
        makeNested(top, 3, 4);
        makeFolder(top + "/d0/memory");
        makeFolder(top + "/d1/bound");
        makeFile(top + "/d2/boundfile", "");
        if (!mountMemory(top + "/d0/memory"))
            QSKIP(qPrintable(u"may not mount: "_s + qt_error_string(errno)));
        makeFile(top + "/d0/memory/kept", "kept");
        // These have the same device number as the folder around them.
        QVERIFY(mountHere(m_outside, top + "/d1/bound"));
        QVERIFY(mountHere(m_outside + "/Caches/inner/f0", top + "/d2/boundfile"));
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^3 items stayed at "_s));
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 3u);
        QVERIFY(exists(top + "/d0/memory/kept"));
        QVERIFY(exists(top + "/d1/bound/d0/f1"));
        QVERIFY(!exists(top + "/d0/f1") && !exists(top + "/d1/inner"));
        for (const char *mounted : {"/d0/memory", "/d1/bound", "/d2/boundfile"})
            QCOMPARE(umount((top + mounted).constData()), 0);
        QCOMPARE(removeBelow(m_home, "Library/Caches").refused, 0u);
    }

    // Whether it has a file system of its own or is another part of the same one.
    void whatIsMountedItselfIsLeftAlone()
    {
        const QByteArray top = m_home + "/Library/Caches";
        if (!mountMemory(top))
            QSKIP(qPrintable(u"may not mount: "_s + qt_error_string(errno)));
        makeFile(top + "/d0/f1", "kept");
        for (const bool isBound : {false, true}) {
            if (isBound)
                QVERIFY(mountHere(m_outside, top));
            QTest::ignoreMessage(
                QtInfoMsg,
                QRegularExpression(u"^1 items stayed at .*something is mounted there"_s));
            const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
            QCOMPARE(result.firstError, EXDEV);
            QCOMPARE(result.removed, 0u);
            QVERIFY(exists(top + "/d0/f1"));
        }
        // What the folders on the way to the item are mounted on does not matter.
        QVERIFY(umount(top.constData()) == 0 && umount(top.constData()) == 0);
        QVERIFY(mountHere(m_home + "/Library", m_home + "/Library"));
        QCOMPARE(removeBelow(m_home, "Library/Caches").removed, 1u);
    }
};

QTEST_GUILESS_MAIN(TestFolderRemovalAttacks)
#include "tst_folderremoval_attacks.moc"
