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
    void initTestCase()
    {
        QVERIFY2(whyUnsafe().isEmpty(), qPrintable(whyUnsafe()));
        const rlimit few = {.rlim_cur = 256, .rlim_max = 256};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &few), 0);
    }
    void init() { m_top = makeRoot(); }

    void addsUpTheExactSumAlsoBehindALink()
    {
        makeFile(m_top + "/sub/a", QByteArray(1000, 'a'));
        makeFile(m_top + "/b", QByteArray(7, 'b'));
        makeLink(m_top + "/link", "12345");
        const std::int64_t sum = 1000 + 7 + 5 + ownSize(m_top + "/sub");
        QCOMPARE(folderSize(m_top), sum);
        makeLink(m_top + ".link", m_top);
        QCOMPARE(folderSize(m_top + ".link"), sum);
    }

    void equalsDu()
    {
        makeNested(m_top + "/nested", 60, 20);
        for (const QByteArray &name : {QByteArray("line\nbreak"), QByteArray("\xff\xfe"),
                                       QByteArray(255, 'n'), QByteArray("-b")})
            makeFile(m_top + "/" + name + "/" + name, name);
        makeFile(m_top + "/sub/one", QByteArray(500, '1'));
        QCOMPARE(link((m_top + "/sub/one").constData(), (m_top + "/two").constData()), 0);
        makeLink(m_top + "/loop", ".");
        makeLink(m_top + "/away", "/usr");
        makeFile(m_top + "/sparse", "");
        QCOMPARE(truncate((m_top + "/sparse").constData(), qint64(1) << 40), 0);
        for (int i = 0; i < 5'000; ++i)
            makeFile(m_top + "/flat/" + QByteArray::number(i), "x");
        QCOMPARE(mkfifo((m_top + "/pipe").constData(), 0600), 0);
        makeChain(m_top + "/chain", 300, QByteArray(250, 'c')); // deeper than any path
        QCOMPARE(folderSize(m_top), sizeByDu(m_top));
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

    void stops()
    {
        makeNested(m_top, 4, 4);
        std::stop_source stop;
        QVERIFY(folderSize(m_top, stop.get_token()) > 0);
        stop.request_stop();
        QCOMPARE(folderSize(m_top, stop.get_token()), 0);
    }
};

QTEST_GUILESS_MAIN(tst_FolderSize)
#include "tst_foldersize.moc"
