// Proves that the way through a tree of folders finds back however deep it led, and never into a
// folder that somebody put in between.

#include "FolderDescent.h"
#include "SampleTree.h"

#include <QTest>

#include <fcntl.h>

#include <algorithm>
#include <string_view>

using namespace SampleTree;

namespace
{

constexpr int levels = 40; // More than stay open.

FolderDescent descentInto(const QByteArray &top)
{
    return FolderDescent(
        {.folder = FolderAccess::openFolder(AT_FDCWD, top.constData()), .names = {}});
}

bool enterNext(FolderDescent &descent)
{
    const char *const name = descent.nextSubfolder();
    FileDescriptor folder = FolderAccess::openFolder(descent.folder(), name);
    const bool opened = static_cast<bool>(folder);
    descent.enter(std::move(folder));
    return opened;
}

} // namespace

class tst_FolderDescent : public QObject
{
    Q_OBJECT

    QByteArray m_top;

    bool isTop(int folder) const
    {
        const auto identity = FolderAccess::identity(folder);
        return identity && identity == FolderAccess::identity(descentInto(m_top).folder());
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe())); }

    void init()
    {
        m_top = makeRoot() + "/top";
        makeChain(m_top, levels, "d");
    }

    void findsBackFromTheDepth()
    {
        FolderDescent descent = descentInto(m_top);
        for (int i = 0; i < levels; ++i) {
            descent.addSubfolder("d");
            descent.addSubfolder("waits");
            QVERIFY(enterNext(descent));
        }
        for (int i = 0; i < levels; ++i) {
            QCOMPARE(descent.nextSubfolder(), i == 0 ? nullptr : "waits");
            QCOMPARE(descent.leave(), "d");
        }
        QVERIFY(descent.atTop());
        QVERIFY(isTop(descent.folder()));
    }

    void doesNotGoBackIntoAnotherFolder()
    {
        FolderDescent descent = descentInto(m_top);
        for (int i = 0; i < levels; ++i) {
            descent.addSubfolder("d");
            QVERIFY(enterNext(descent));
        }
        // Its parent has been closed meanwhile, and ".." now is a folder that nobody chose.
        const int closed = 10;
        makeFolder(m_top + "/../other");
        QCOMPARE(rename((m_top + QByteArray("/d").repeated(closed + 1)).constData(),
                        (m_top + "/../other/d").constData()),
                 0);
        for (int level = levels; level > closed + 1; --level)
            QCOMPARE(descent.leave(), "d");
        QCOMPARE(descent.leave(), nullptr);
    }

    void givesAwayWhatWaitsNearestToTheTop()
    {
        FolderDescent descent = descentInto(m_top);
        for (const char *name : {"d", "a", "b", "c", "e"})
            descent.addSubfolder(name);
        QVERIFY(enterNext(descent));
        QVERIFY(!descent.nextSubfolder());
        const auto batch = descent.split();
        QVERIFY(batch);
        QVERIFY(std::ranges::equal(batch->names, std::string_view("c\0e\0", 4)));
        QVERIFY(isTop(batch->folder.get()));
        QCOMPARE(descent.leave(), "d");
        QCOMPARE(descent.nextSubfolder(), "a");
        QVERIFY(!descent.split()); // One that waits in the innermost folder is no gain.
        QCOMPARE(descent.nextSubfolder(), "b");
        QVERIFY(!descent.nextSubfolder());
    }
};

QTEST_GUILESS_MAIN(tst_FolderDescent)
#include "tst_folderdescent.moc"
