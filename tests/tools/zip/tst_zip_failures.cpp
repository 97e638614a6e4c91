// Proves that no failure of a packing run loses a file, and that each ends as the user is told.

#include "ZipPage.h"

#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

// A file system of its own below the folder, as full as the test wants it; gone with the object.
class SmallDisk
{
public:
    SmallDisk(const QString &folder, const char *size) : m_path(folder.toLocal8Bit())
    {
        QDir().mkpath(folder);
        const QByteArray options = QByteArray("size=") + size;
        m_mounted = ::mount("tmpfs", m_path.constData(), "tmpfs", 0, options.constData()) == 0;
    }
    ~SmallDisk()
    {
        if (m_mounted)
            ::umount2(m_path.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)
    bool isMounted() const { return m_mounted; }

private:
    QByteArray m_path;
    bool m_mounted;
};

} // namespace

class tst_ZipFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qunsetenv("LD_PRELOAD"); } // see tst_zip_page
    void cleanup() { QDir(MiscTool::getAppDocumentFolder()).removeRecursively(); }
    void sources_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("vanished") << u"nowhere"_s;
        QTest::newRow("empty") << u"empty"_s;
        QTest::newRow("a file") << u"source/one.txt"_s;
    }

    void sources()
    {
        QFETCH(QString, source);
        ZipPage zip;
        zip.folder.mkdir(u"empty"_s);
        fill(zip.page, "srcFolderField", zip.folder.filePath(source));
        zip.packAndExpect(u"ZipFail"_s);
        QVERIFY(!QFile::exists(zip.output()));
    }

    void aKilledRunLeavesItsPartAndTheForm()
    {
        MessageBoxes boxes;
        ZipPage zip;
        zip.makeLargeFile();
        press(zip.page, "generateButton");
        QTRY_VERIFY(!QDir(MiscTool::getAppDocumentFolder()).isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"zip"_s));
        zip.jobs.stopAll();
        QTRY_COMPARE(boxes.texts, QStringList(u"ZipFail"_s));
        QTRY_VERIFY(zip.isIdle());
        QVERIFY(!QFile::exists(zip.output()));
        QCOMPARE(text(zip.page, "outputField"), zip.output());
    }

    void aFullDisk_data()
    {
        QTest::addColumn<bool>("atTheOutput");
        QTest::newRow("for the archive") << false;
        QTest::newRow("at the output") << true; // what comes after zip is not judged
    }

    void aFullDisk()
    {
        QFETCH(bool, atTheOutput);
        ZipPage zip;
        const QString full =
            atTheOutput ? zip.folder.filePath(u"full"_s) : MiscTool::getAppDocumentFolder();
        const SmallDisk disk(full, "64k");
        if (!disk.isMounted())
            QSKIP("mounting a small file system is not permitted here");
        if (atTheOutput)
            fill(zip.page, "outputField", full + u"/out.zip"_s);
        zip.write(u"source/noise"_s, QByteArray(1 << 20, 'x'));
        zip.levels().setCurrentIndex(0);
        zip.packAndExpect(atTheOutput ? u"ZipSuc"_s : u"ZipFail"_s);
        QVERIFY(!QFile::exists(zip.output()));
        if (atTheOutput) {
            QVERIFY(QDir(full).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
            QVERIFY(!QFile::exists(zip.temporary()));
        }
    }

    void aMissingOutputFolderStillReportsSuccess()
    {
        ZipPage zip;
        fill(zip.page, "outputField", zip.folder.filePath(u"nowhere/out.zip"_s));
        zip.packAndExpect(u"ZipSuc"_s);
        QVERIFY(!QFile::exists(zip.temporary()));
        QVERIFY(!QFile::exists(zip.folder.filePath(u"nowhere"_s)));
    }

    void aFileThatAppearedMeanwhileStays()
    {
        MessageBoxes boxes;
        ZipPage zip;
        press(zip.page, "generateButton");
        zip.write(u"out.zip"_s, "somebody else's");
        QTRY_COMPARE(boxes.texts.size(), 1);
        QFile file(zip.output());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("somebody else's"));
    }

    void aStoppedPlacementIsAFailure()
    {
        ZipPage zip;
        int started = 0;
        connect(&zip.jobs, &JobList::jobStarted, this, [&] {
            if (++started == 2) // zip is through
                zip.jobs.stopAll();
        });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not placed"_s));
        zip.packAndExpect(u"ZipFail"_s);
        QVERIFY(!QFile::exists(zip.output()));
        QVERIFY(!QFile::exists(zip.temporary()));
    }

    void anAbandonedPageLeavesAFinishedArchiveItsWay()
    {
        const ZipPage sample;
        JobList jobs;
        auto page = std::make_unique<ZIPViewController>(jobs);
        page->show();
        for (const char *field : {"srcFolderField", "outputField"})
            fill(*page, field, text(sample.page, field));
        int started = 0;
        connect(&jobs, &JobList::jobStarted, this, [&] {
            if (++started == 2) // zip is through
                QMetaObject::invokeMethod(
                    this, [&page] { page.reset(); }, Qt::QueuedConnection);
        });
        press(*page, "generateButton");
        QTRY_VERIFY(!page && jobs.isEmpty());
        QVERIFY(QFile::exists(sample.output()));
    }

    void anAbandonedPageTakesItsRunAlong()
    {
        JobList jobs;
        auto page = std::make_unique<ZIPViewController>(jobs);
        const ZipPage sample;
        sample.makeLargeFile();
        page->show();
        for (const char *field : {"srcFolderField", "outputField"})
            fill(*page, field, text(sample.page, field));
        press(*page, "generateButton");
        QTRY_VERIFY(!QDir(MiscTool::getAppDocumentFolder()).isEmpty());
        page.reset();
        QTRY_VERIFY(jobs.isEmpty());
        QVERIFY(!QFile::exists(sample.output()));
    }
};

QTEST_MAIN(tst_ZipFailures)
#include "tst_zip_failures.moc"
