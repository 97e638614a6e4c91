// Proves that nobody who changes a folder while it is removed, or mounts something in it, can make
// the removal touch anything outside.

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

constexpr qint64 mostTime = 4'000; // Milliseconds, for a machine that has much else to do.
constexpr int wantedSwaps = 3'000;
constexpr int wantedRounds = 30;

using Pair = std::pair<QByteArray, QByteArray>;

// Keeps exchanging the two names of each pair, on a thread of its own, until it goes out of scope.
std::jthread swapper(const QList<Pair> &pairs, std::atomic<int> *swaps)
{
    return std::jthread([pairs, swaps](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            for (const auto &[one, other] : pairs)
                *swaps += renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(),
                                    RENAME_EXCHANGE)
                    == 0;
            // Without a pause the removal would hardly get at the folders in between.
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

class tst_FolderRemoval_Attacks : public QObject
{
    Q_OBJECT

    QByteArray m_outside;
    QByteArray m_home;
    Snapshot m_before;

    // Removes the folder from one new home after the other while the pairs that build() gives for
    // that home are exchanged, until enough was tried.
    template <class Build>
    void removeWhileSwapping(Build build)
    {
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        std::atomic<int> swaps = 0;
        quint64 removed = 0;
        int rounds = 0;
        QElapsedTimer timer;
        for (timer.start();
             timer.elapsed() < mostTime && (swaps < wantedSwaps || rounds < wantedRounds);
             ++rounds) {
            const QByteArray home = m_home + QByteArray::number(rounds);
            makeFolder(home + "/Library");
            const QList<Pair> pairs = build(home);
            const int swapsBefore = swaps;
            const std::jthread swapping = swapper(pairs, &swaps);
            while (swaps == swapsBefore && timer.elapsed() < mostTime)
                std::this_thread::yield();
            removed += removeBelow(home, "Library/Caches").removed;
        }
        qInstallMessageHandler(before);
        qDebug("%d rounds, %d swaps, %llu items removed", rounds, swaps.load(), removed);
        QVERIFY(removed > 0 && swaps >= rounds);
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe())); }

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

    void foldersInsideTurnIntoLinks()
    {
        removeWhileSwapping([this](const QByteArray &home) {
            const QByteArray top = home + "/Library/Caches";
            makeNested(top, 30, 4);
            makeLink(home + "/bait0", m_outside);
            makeLink(home + "/bait1", m_outside + "/d0");
            makeLink(home + "/bait2", m_outside + "/d1/inner");
            return QList<Pair>{{top + "/d29", home + "/bait0"},
                               {top + "/d15", home + "/bait1"},
                               {top + "/d7/inner", home + "/bait2"},
                               {top + "/d20", top + "/d21/inner"}};
        });
    }

    void theFolderItselfTurnsIntoALink()
    {
        removeWhileSwapping([this](const QByteArray &home) {
            makeNested(home + "/Library/Caches", 10, 4);
            makeLink(home + "/bait", m_outside);
            return QList<Pair>{{home + "/Library/Caches", home + "/bait"}};
        });
    }

    void theWayTurnsIntoALink()
    {
        removeWhileSwapping([this](const QByteArray &home) {
            makeNested(home + "/Library/Caches", 10, 4);
            makeLink(home + "/bait", m_outside); // It has "Caches" inside.
            return QList<Pair>{{home + "/Library", home + "/bait"}};
        });
    }

    void whatIsMountedBelowStays()
    {
        const QByteArray top = m_home + "/Library/Caches";
        makeNested(top, 3, 4);
        makeFolder(top + "/d0/memory");
        makeFolder(top + "/d1/bound");
        makeFile(top + "/d2/boundfile", "");
        if (!mountMemory(top + "/d0/memory"))
            QSKIP(qPrintable(u"may not mount: "_s + qt_error_string(errno)));
        // These have the same device number as the folder around them.
        QVERIFY(mountHere(m_outside, top + "/d1/bound"));
        QVERIFY(mountHere(m_outside + "/Caches/inner/f0", top + "/d2/boundfile"));
        makeFile(top + "/d0/memory/kept", "kept");
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^3 items stayed at "_s));
        const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
        QCOMPARE(result.refused, 3u);
        QVERIFY(exists(top + "/d0/memory/kept"));
        QVERIFY(exists(top + "/d1/bound/d0/f1"));
        QVERIFY(!exists(top + "/d0/f1") && !exists(top + "/d1/inner"));
    }

    void aMountedItemIsEmptiedAndStays()
    {
        const QByteArray top = m_home + "/Library/Caches";
        if (!mountMemory(top))
            QSKIP(qPrintable(u"may not mount: "_s + qt_error_string(errno)));
        const int items = makeNested(top, 3, 4);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^1 items stayed at "_s));
        const FolderRemovalResult result = removeBelow(m_home, "Library/Caches");
        QCOMPARE(result.removed, static_cast<quint64>(items));
        QCOMPARE(result.firstError, EBUSY);
    }
};

QTEST_GUILESS_MAIN(tst_FolderRemoval_Attacks)
#include "tst_folderremoval_attacks.moc"
