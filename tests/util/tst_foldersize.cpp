// Proves that the size of a folder is the sum of everything below it, as "du" reckons it.

#include "FolderSize.h"
#include "SampleTree.h"

#include <QProcess>
#include <QTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace SampleTree;

namespace
{

std::int64_t ownSize(const QByteArray &path)
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0 ? status.st_size : -1;
}

// du counts the folder itself, too.
std::int64_t sizeByDu(const QByteArray &path)
{
    QProcess du;
    du.start(QStringLiteral("du"),
             {QStringLiteral("-slb"), QStringLiteral("--"), QString::fromUtf8(path)});
    if (!du.waitForFinished() || du.exitCode() != 0)
        return -1;
    return du.readAllStandardOutput().split('\t').first().toLongLong() - ownSize(path);
}

} // namespace

class tst_FolderSize : public QObject
{
    Q_OBJECT

    QByteArray m_top;

private Q_SLOTS:
    void initTestCase() { QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe())); }
    void init() { m_top = makeRoot(); }

    void addsUpTheExactSum()
    {
        makeFile(m_top + "/sub/a", QByteArray(1000, 'a'));
        makeFile(m_top + "/b", QByteArray(7, 'b'));
        makeLink(m_top + "/link", "12345");
        QCOMPARE(folderSize(m_top), 1000 + 7 + 5 + ownSize(m_top + "/sub"));
    }

    void equalsDu_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char *kind : {"nested", "unusual names", "hard links and links", "sparse",
                                 "flat", "chain", "long chain", "special files"})
            QTest::newRow(kind) << QByteArray(kind);
    }
    void equalsDu()
    {
        QFETCH(QByteArray, kind);
        if (kind == "nested") {
            makeNested(m_top, 60, 20);
        } else if (kind == "unusual names") {
            for (const QByteArray &name : {QByteArray("line\nbreak"), QByteArray("\xff\xfe"),
                                           QByteArray(255, 'n'), QByteArray("-b")})
                makeFile(m_top + "/" + name + "/" + name, name);
        } else if (kind == "hard links and links") {
            makeFile(m_top + "/sub/one", QByteArray(500, '1'));
            QVERIFY(link((m_top + "/sub/one").constData(), (m_top + "/two").constData()) == 0);
            makeLink(m_top + "/loop", ".");
            makeLink(m_top + "/away", "/usr");
        } else if (kind == "sparse") {
            makeFile(m_top + "/sparse", "");
            QVERIFY(truncate((m_top + "/sparse").constData(), qint64(1) << 40) == 0);
        } else if (kind == "flat") {
            for (int i = 0; i < 5'000; ++i)
                makeFile(m_top + "/" + QByteArray::number(i), "x");
        } else if (kind == "special files") {
            QVERIFY(mkfifo((m_top + "/pipe").constData(), 0600) == 0);
        } else {
            makeChain(m_top, kind == "chain" ? 1000 : 250,
                      QByteArray(kind == "chain" ? 1 : 250, 'c'));
        }
        rlimit before = {};
        QVERIFY(getrlimit(RLIMIT_NOFILE, &before) == 0);
        const rlimit few = {.rlim_cur = 256, .rlim_max = before.rlim_max};
        QVERIFY(setrlimit(RLIMIT_NOFILE, &few) == 0);
        const std::int64_t ours = folderSize(m_top);
        setrlimit(RLIMIT_NOFILE, &before);
        QCOMPARE(ours, sizeByDu(m_top));
        QVERIFY(ours > 0 || kind == "special files");
    }

    void givesNothingForWhatIsNoFolder()
    {
        makeFile(m_top + "/file", "content");
        makeFolder(m_top + "/empty");
        QCOMPARE(folderSize(m_top + "/file"), 0);
        QCOMPARE(folderSize(m_top + "/empty"), 0);
        QCOMPARE(folderSize(m_top + "/missing"), 0);
        QCOMPARE(folderSize(""), 0);
        QCOMPARE(folderSize(m_top + QByteArray("\0", 1)), 0);
    }

    void followsTheGivenPathOnly()
    {
        makeFile(m_top + "/folder/file", QByteArray(300, 'x'));
        makeLink(m_top + "/link", "folder");
        QCOMPARE(folderSize(m_top + "/link"), 300);
    }
};

QTEST_GUILESS_MAIN(tst_FolderSize)
#include "tst_foldersize.moc"
