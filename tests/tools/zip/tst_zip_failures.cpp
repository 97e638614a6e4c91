// Proves that no failure of a packing run loses a file, and that each ends as the user is told.

#include "MessageBoxes.h"
#include "ZipPage.h"

#include <QStandardPaths>

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
    void sources_data();
    void sources();
    void aKilledRunLeavesItsPartAndTheForm();
    void aFullDiskForTheArchive();
    void aFullDiskAtTheOutput();
    void aMissingOutputFolderStillReportsSuccess();
    void aFileThatAppearedMeanwhileStays();
    void aStoppedPlacementIsAFailure();
    void anAbandonedPageTakesItsRunAlong();
};

void tst_ZipFailures::sources_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("vanished") << u"nowhere"_s;
    QTest::newRow("empty") << u"empty"_s;
    QTest::newRow("a file") << u"source/one.txt"_s;
}

void tst_ZipFailures::sources()
{
    QFETCH(QString, source);
    MessageBoxes boxes;
    ZipPage zip;
    zip.folder.mkdir(u"empty"_s);
    zip.set("srcFolderField", zip.folder.filePath(source));
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipFail"_s));
    QTRY_VERIFY(zip.isIdle());
    QVERIFY(!QFile::exists(zip.output()));
}

void tst_ZipFailures::aKilledRunLeavesItsPartAndTheForm()
{
    MessageBoxes boxes;
    ZipPage zip;
    QFile large(zip.folder.filePath(u"source/large"_s));
    QVERIFY(large.open(QIODevice::WriteOnly)
            && large.resize(4LL << 30)); // sparse, but long to pack
    zip.press("generateButton");
    QTRY_VERIFY(!QDir(MiscTool::getAppDocumentFolder()).isEmpty());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"zip"_s));
    zip.jobs.stopAll();
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipFail"_s));
    QTRY_VERIFY(zip.isIdle());
    QVERIFY(!QFile::exists(zip.output()));
    QCOMPARE(zip.text("outputField"), zip.output());
}

void tst_ZipFailures::aFullDiskForTheArchive()
{
    MessageBoxes boxes;
    ZipPage zip;
    const SmallDisk disk(MiscTool::getAppDocumentFolder(), "64k");
    if (!disk.isMounted())
        QSKIP("mounting a small file system is not permitted here");
    zip.write(u"source/noise"_s, QByteArray(1 << 20, 'x'));
    zip.find<QComboBox>("ratioPopUp")->setCurrentIndex(0);
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipFail"_s));
    QTRY_VERIFY(zip.isIdle());
    QVERIFY(!QFile::exists(zip.output()));
}

void tst_ZipFailures::aFullDiskAtTheOutput()
{
    MessageBoxes boxes;
    ZipPage zip;
    const SmallDisk disk(zip.folder.filePath(u"full"_s), "64k");
    if (!disk.isMounted())
        QSKIP("mounting a small file system is not permitted here");
    zip.write(u"source/noise"_s, QByteArray(1 << 20, 'x'));
    zip.find<QComboBox>("ratioPopUp")->setCurrentIndex(0);
    zip.set("outputField", zip.folder.filePath(u"full/out.zip"_s));
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipSuc"_s)); // what comes after zip is not judged
    QCOMPARE(QDir(zip.folder.filePath(u"full"_s))
                 .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList()); // nothing half-written
    QVERIFY(!QFile::exists(zip.temporary()));
}

void tst_ZipFailures::aMissingOutputFolderStillReportsSuccess()
{
    MessageBoxes boxes;
    ZipPage zip;
    zip.set("outputField", zip.folder.filePath(u"nowhere/out.zip"_s));
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipSuc"_s));
    QVERIFY(!QFile::exists(zip.temporary()));
    QVERIFY(!QFile::exists(zip.folder.filePath(u"nowhere"_s)));
}

void tst_ZipFailures::aFileThatAppearedMeanwhileStays()
{
    MessageBoxes boxes;
    ZipPage zip;
    zip.press("generateButton");
    zip.write(u"out.zip"_s, "somebody else's");
    QTRY_COMPARE(boxes.texts.size(), 1);
    QFile file(zip.output());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("somebody else's"));
}

void tst_ZipFailures::aStoppedPlacementIsAFailure()
{
    MessageBoxes boxes;
    ZipPage zip;
    int started = 0;
    connect(&zip.jobs, &JobList::jobStarted, this, [&] {
        if (++started == 2) // zip is through
            zip.jobs.stopAll();
    });
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not placed"_s));
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipFail"_s));
    QTRY_VERIFY(zip.isIdle());
    QVERIFY(!QFile::exists(zip.output()));
    QVERIFY(!QFile::exists(zip.temporary()));
}

void tst_ZipFailures::anAbandonedPageTakesItsRunAlong()
{
    JobList jobs;
    auto page = std::make_unique<ZIPViewController>(jobs);
    ZipPage sample;
    QFile large(sample.folder.filePath(u"source/large"_s));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(4LL << 30));
    page->findChild<QLineEdit *>(u"srcFolderField"_s)->setText(sample.text("srcFolderField"));
    page->findChild<QLineEdit *>(u"outputField"_s)->setText(sample.output());
    page->findChild<QPushButton *>(u"generateButton"_s)->click();
    QTRY_VERIFY(!QDir(MiscTool::getAppDocumentFolder()).isEmpty());
    page.reset();
    QTRY_VERIFY(jobs.isEmpty());
    QVERIFY(!QFile::exists(sample.output()));
}

QTEST_MAIN(tst_ZipFailures)
#include "tst_zip_failures.moc"
