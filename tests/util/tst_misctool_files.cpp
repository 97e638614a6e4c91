// Proves that MiscTool names the user's folders, measures what it is asked for, and that a bookmark
// finds its folder again and no other.

#include "MiscTool.h"
#include "SampleTree.h"

#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <time.h>
#include <unistd.h>

using namespace SampleTree;
using namespace Qt::StringLiterals;

namespace
{

QUrl fileUrl(const QByteArray &path)
{
    return QUrl::fromEncoded("file://" + path.toPercentEncoding("/"));
}

long coarseNow()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return now.tv_nsec;
}

void expectStale()
{
    QTest::ignoreMessage(QtInfoMsg,
                         QRegularExpression(u"^The bookmark is of no use any more: .+"_s));
}

} // namespace

class tst_MiscTool_Files : public QObject
{
    Q_OBJECT

    QByteArray m_root;

private Q_SLOTS:
    void initTestCase() { QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe())); }
    void init() { m_root = makeRoot(); }

    void homeComesFromTheUserDatabase()
    {
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", "/elsewhere");
        QCOMPARE(MiscTool::getUserHome(), QFile::decodeName(home));
        QCOMPARE(MiscTool::getDownloadFolder(), QFile::decodeName(home + "/Downloads"));
        qputenv("HOME", home);
    }

    void diskSizes()
    {
        struct statvfs status = {};
        QVERIFY(statvfs("/", &status) == 0);
        const auto total = MiscTool::getDiskTotalSize();
        const auto available = MiscTool::getDiskAvailableSize();
        QVERIFY(total && available);
        QCOMPARE(*total, static_cast<std::int64_t>(status.f_blocks * status.f_frsize));
        // Others write to the disk meanwhile.
        const auto expected = static_cast<std::int64_t>(status.f_bavail * status.f_frsize);
        QVERIFY(qAbs(*available - expected) < (std::int64_t(1) << 30));
    }

    void sizeOfOneItem()
    {
        makeFile(m_root + "/file", QByteArray(4321, 'x'));
        makeLink(m_root + "/link", "file");
        struct stat status = {};
        QVERIFY(stat(m_root.constData(), &status) == 0);
        const QString root = QFile::decodeName(m_root);
        QCOMPARE(MiscTool::getLocalFileSize(root + u"/file"_s), 4321);
        QCOMPARE(MiscTool::getLocalFileSize(root + u"/link"_s), 4);
        QCOMPARE(MiscTool::getLocalFileSize(root), std::int64_t(status.st_size));
        QCOMPARE(MiscTool::getLocalFileSize(root + u"/missing"_s), 0);
        QCOMPARE(MiscTool::getLocalFileSize(root + u"/file"_s + QChar(0)), 0);
        QCOMPARE(MiscTool::getSize(root), 4321 + 4);
        QCOMPARE(MiscTool::getSize(root + u"/file"_s), 0);
    }

    void documentsFolderIsMadeForTheOwnerAlone()
    {
        const QByteArray folder = QFile::encodeName(MiscTool::getAppDocumentFolder());
        QVERIFY(folder.startsWith(qgetenv("HOME") + '/'));
        struct stat status = {};
        QVERIFY(stat(folder.constData(), &status) == 0);
        QCOMPARE(status.st_mode, mode_t(S_IFDIR | 0700));
        QVERIFY(chmod(folder.constData(), 0755) == 0);
        MiscTool::getAppDocumentFolder();
        QVERIFY(stat(folder.constData(), &status) == 0);
        QCOMPARE(status.st_mode, mode_t(S_IFDIR | 0755)); // One that is there stays as it is.
    }

    void bookmarksFindTheirFolderAgain()
    {
        for (const QByteArray &name :
             {QByteArray("a b%41?c#d+e;&=\nGr\xc3\xbc\xc3\x9f"), QByteArray("\xff\xfe")}) {
            const QByteArray path = m_root + '/' + name;
            makeFolder(path);
            const auto bookmark = MiscTool::bookmarkForURL(fileUrl(path));
            QVERIFY(bookmark);
            makeFile(path + "/later", "changes the folder, not which it is");
            const auto url = MiscTool::urlForBookmark(*bookmark);
            QVERIFY(url);
            QCOMPARE(QByteArray::fromPercentEncoding(url->path(QUrl::FullyEncoded).toLatin1()),
                     path);
            QCOMPARE(*url == QUrl::fromLocalFile(QFile::decodeName(path)), name != "\xff\xfe");
        }
    }

    void bookmarksGoStale()
    {
        const QByteArray path = m_root + "/folder";
        makeFolder(path);
        const long before = coarseNow();
        const auto bookmark = MiscTool::bookmarkForURL(fileUrl(path));
        QVERIFY(bookmark);
        QVERIFY(rmdir(path.constData()) == 0);
        expectStale();
        QVERIFY(!MiscTool::urlForBookmark(*bookmark));
        // The new folder mostly gets the same inode number; the file system's clock tells them
        // apart.
        QTRY_VERIFY(coarseNow() != before);
        QVERIFY(mkdir(path.constData(), 0700) == 0);
        expectStale();
        QVERIFY(!MiscTool::urlForBookmark(*bookmark));
    }

    void noBookmarkForWhatIsNotThere()
    {
        for (const QUrl &url : {fileUrl(m_root + "/missing"), QUrl(u"https://example.org/"_s),
                                QUrl(u"file://server/tmp"_s), QUrl(u"/tmp"_s), QUrl(),
                                QUrl::fromEncoded("file:///tmp%00/x")}) {
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^No bookmark for "_s));
            QVERIFY2(!MiscTool::bookmarkForURL(url), url.toEncoded().constData());
        }
    }

    void damagedBookmarksGiveNothing()
    {
        const QByteArray good = *MiscTool::bookmarkForURL(fileUrl(m_root));
        QList<QByteArray> damaged = {"text", QByteArray(1'000, '\xff'), good + '\0', m_root};
        for (qsizetype length = 0; length < good.size(); ++length)
            damaged += good.first(length);
        QRandomGenerator random(1);
        for (int i = 0; i < 500; ++i) {
            QByteArray one = good;
            one[random.bounded(one.size())] ^= static_cast<char>(1 + random.bounded(255));
            damaged += one;
        }
        for (const QByteArray &one : damaged) {
            expectStale();
            QVERIFY2(!MiscTool::urlForBookmark(one), one.toHex().constData());
        }
        QVERIFY(MiscTool::urlForBookmark(good));
    }
};

QTEST_GUILESS_MAIN(tst_MiscTool_Files)
#include "tst_misctool_files.moc"
