// Proves that MiscTool returns the user's own folders, and that a bookmark finds its own folder
// again and no other.

#include "MiscTool.h"
#include "SampleTree.h"

#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <sys/stat.h>
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

void expectStale()
{
    QTest::ignoreMessage(QtInfoMsg,
                         QRegularExpression(u"^The bookmark is of no use any more: .+"_s));
}

} // namespace

class TestMiscToolFiles : public QObject
{
    Q_OBJECT

    QByteArray m_root;

private Q_SLOTS:
    void init() { m_root = makeRoot(); }

    void homeComesFromTheUserDatabase()
    {
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", "/elsewhere");
        QCOMPARE(MiscTool::getUserHome(), QFile::decodeName(home));
        QCOMPARE(MiscTool::getDownloadFolder(), QFile::decodeName(home + "/Downloads"));
        qputenv("HOME", home);
    }

    // Nothing of the user's is in it, nor of other programs.
    void documentsAreTheApplicationsOwn()
    {
        const QByteArray documents = QFile::encodeName(MiscTool::getAppDocumentFolder());
        QCOMPARE(documents, qgetenv("XDG_DATA_HOME") + "/Toolvane/Documents");
        struct stat status = {};
        QCOMPARE(stat(documents.constData(), &status), 0);
        QCOMPARE(status.st_mode, mode_t(S_IFDIR | 0700)); // for the owner alone
    }

    void sizesAreThoseOfTheItemItself()
    {
        makeFile(m_root + "/file", QByteArray(4321, 'x'));
        makeLink(m_root + "/link", "file");
        const QString root = QFile::decodeName(m_root);
        QCOMPARE(MiscTool::getLocalFileSize(root + u"/link"_s), 4);
        QCOMPARE(MiscTool::getSize(root), 4321 + 4);
    }

    void bookmarksFindTheirFolderAndNoOtherInItsPlace()
    {
        const auto coarseNow = [] {
            timespec now = {};
            clock_gettime(CLOCK_REALTIME_COARSE, &now);
            return now.tv_nsec;
        };
        for (const QByteArray &name :
             {QByteArray("a b%41?c#d+e;&=\nGr\xc3\xbc\xc3\x9f"), QByteArray("\xff\xfe")}) {
            const QByteArray path = m_root + '/' + name;
            makeFolder(path);
            const long before = coarseNow();
            const auto bookmark = MiscTool::bookmarkForURL(fileUrl(path));
            QVERIFY(bookmark);
            makeFolder(path + "/later"); // changes the folder, not which it is
            const auto url = MiscTool::urlForBookmark(*bookmark);
            QVERIFY(url);
            QCOMPARE(QByteArray::fromPercentEncoding(url->path(QUrl::FullyEncoded).toLatin1()),
                     path);
            QVERIFY(rmdir((path + "/later").constData()) == 0 && rmdir(path.constData()) == 0);
            expectStale();
            QVERIFY(!MiscTool::urlForBookmark(*bookmark));
            // The new folder mostly gets the same inode number; the file system's clock tells them
            // apart.
            QTRY_VERIFY(coarseNow() != before);
            makeFolder(path);
            expectStale();
            QVERIFY(!MiscTool::urlForBookmark(*bookmark));
        }
    }

    void nothingComesOfOtherAddressesAndDamagedBookmarks()
    {
        for (const char *address : {"https://example.org/", "file:///tmp%00/x"}) {
            QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^No bookmark for "_s));
            QVERIFY2(!MiscTool::bookmarkForURL(QUrl::fromEncoded(address)), address);
        }
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

QTEST_GUILESS_MAIN(TestMiscToolFiles)
#include "tst_misctool_files.moc"
