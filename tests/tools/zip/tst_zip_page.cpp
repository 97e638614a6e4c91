// Proves that the Zip page packs a folder as its form says, that no failure on the way loses a
// file, and that each ends as the user is told.

#include "Files.h"
#include "JobList.h"
#include "MessageBoxes.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "RunLine.h"
#include "ShowInFolderButton.h"
#include "UnplacedArchives.h"
#include "ZIPViewController.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/mount.h>

using namespace PageControls;
using namespace Qt::StringLiterals;

namespace
{

/// The names in an archive, as the unzip program reads them; none when it finds a fault.
QStringList namesInArchive(const QString &archive)
{
    QProcess shell;
    shell.start(u"sh"_s,
                {u"-c"_s, u"unzip -tqq \"$0\" && unzip -Z1 \"$0\" | LC_ALL=C sort"_s, archive});
    shell.waitForFinished();
    return QString::fromUtf8(shell.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class ZipPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The sanitizers have no business in the system's programs.
    void initTestCase() { qunsetenv("LD_PRELOAD"); }

    void init()
    {
        documents().removeRecursively();
        m_own = std::make_unique<QTemporaryDir>();
        m_folder.setPath(m_own->path());
        m_boxes = std::make_unique<MessageBoxes>();
        m_page = std::make_unique<ZIPViewController>(m_jobs);
        m_page->show();
        QVERIFY(m_folder.mkpath(u"source/deep"_s));
        write(u"source/one.txt"_s, "one");
        fill(*m_page, "srcFolderField", m_folder.filePath(u"source"_s));
        fill(*m_page, "outputField", output());
    }

    void packsTheContentsOfTheFolder()
    {
        write(u"source/-dash"_s, "-");
        write(u"source/it's \"quoted\" 🎈"_s, "q");
        write(u"source/deep/"_s + QString(255, u'n'), "long");
        QVERIFY(m_folder.mkpath(u"other.d"_s));
        const QString archive = m_folder.filePath(u"other.d/-my archive 🎈"_s); // no suffix
        QSignalSpy changed(&m_jobs, &JobList::changed);
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        fill(*m_page, "outputField", archive);
        packAndExpect(u"ZipSuc"_s);
        QCOMPARE(changed.size(), 2); // to the user it is one run
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Succeeded);
        QCOMPARE(namesInArchive(archive),
                 QStringList({u"-dash"_s, u"deep/"_s, u"deep/"_s + QString(255, u'n'),
                              u"it's \"quoted\" 🎈"_s, u"one.txt"_s}));
        QVERIFY(documents().isEmpty());
    }

    void packsWithTheChosenLevelAndReplacesNothing()
    {
        QByteArray compressible;
        for (int i = 0; i < 40000; ++i)
            compressible += QByteArray::number(i * i % 7919);
        write(u"source/numbers"_s, compressible);
        QList<qint64> sizes;
        for (int level = 0; level < 3; ++level) {
            control<QComboBox>(*m_page, "ratioPopUp").setCurrentIndex(level);
            packAndExpect(u"ZipSuc"_s);
            sizes += QFileInfo(output()).size();
            packAndExpect(u"ZipFileExist"_s);
            QVERIFY(QFile::remove(output()));
        }
        QVERIFY(sizes.at(0) > sizes.at(1) && sizes.at(1) > sizes.at(2));
        QVERIFY(QFile::link(u"/nowhere"_s, output()));
        packAndExpect(u"ZipFileExist"_s);
        press(*m_page, "clearButton");
        QCOMPARE(m_page->getCompressRatio(), u"-1"_s);
    }

    void addsToAnArchiveThatAnEarlierRunLeft()
    {
        write(u"source/stale.txt"_s, "stale");
        packAndExpect(u"ZipSuc"_s);
        const QString left = documents().filePath(u"out.zip"_s); // as if that run had failed
        QVERIFY(QFile::rename(output(), left));
        QFile::remove(m_folder.filePath(u"source/stale.txt"_s));
        packAndExpect(u"ZipSuc"_s);
        QVERIFY(namesInArchive(output()).contains(u"stale.txt"_s));
    }

    void aKilledRunLeavesNoArchive()
    {
        QFile large(m_folder.filePath(u"source/large"_s)); // sparse, but long to pack
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(4LL << 30));
        press(*m_page, "generateButton");
        QTRY_VERIFY(!m_jobs.isEmpty()); // the archive has no name yet
        m_jobs.stopAll();
        QTRY_VERIFY(m_page->findChild<RunLine *>()->isVisible());
        QCOMPARE(said(), u"Run.Stopped"_s);
        QVERIFY(m_boxes->texts.isEmpty() && !QFile::exists(output()));
    }

    // What comes after zip is not judged, but the archive is not lost.
    void whatItsPlaceRefusesIsKept()
    {
        const QString full = m_folder.filePath(u"full"_s);
        const QByteArray place = QFile::encodeName(full);
        QVERIFY(QDir().mkpath(full));
        if (::mount("tmpfs", place.constData(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("mounting a small file system is not permitted here");
        const auto unmount = qScopeGuard([&] { ::umount2(place.constData(), MNT_DETACH); });
        write(u"source/noise"_s, QByteArray(1 << 20, 'x'));
        control<QComboBox>(*m_page, "ratioPopUp").setCurrentIndex(0);
        for (const auto &[target, reason] :
             {std::pair(full + u"/out.zip"_s, u"Zip.NotSaved.NoRoom"_s),
              std::pair(full + u"/nowhere/out.zip"_s, u"Zip.NotSaved.NoFolder"_s),
              std::pair(m_folder.filePath(u"new/"_s), u"Zip.NotSaved.NoFolder"_s)}) {
            fill(*m_page, "outputField", target);
            packAndExpect(u"ZipSuc"_s);
            QTRY_COMPARE(said(), reason);
            QVERIFY(QDir(full).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden));
            QVERIFY(!documents().exists(u"out.zip"_s)); // no later run adds to it
        }
        // At the next start the page offers what was left; and each is placed whole, once.
        m_page = std::make_unique<ZIPViewController>(m_jobs);
        m_page->show();
        for (const QString &name : {u"c.zip"_s, u"b.zip"_s}) {
            QCOMPARE(said(), u"Zip.NotSaved"_s);
            press(*m_page, "placeButton");
            answerChooser(*m_page, "saveChooser", m_folder.filePath(name));
            QTRY_VERIFY(m_jobs.isEmpty());
            QVERIFY(namesInArchive(m_folder.filePath(name)).contains(u"one.txt"_s));
            m_page->hide();
            m_page->findChild<ShowInFolderButton *>()->withdraw();
            m_page->show();
        }
        for (const auto role : {QMessageBox::RejectRole, QMessageBox::DestructiveRole}) {
            QVERIFY(!UnplacedArchives::newest().isEmpty());
            press(*m_page, "discardButton");
            const auto &question = control<QMessageBox>(*m_page, "discardQuestion");
            for (QAbstractButton *button : question.buttons()) {
                if (question.buttonRole(button) == role)
                    button->click();
            }
            QTRY_VERIFY(!m_page->findChild<QMessageBox *>());
        }
        QVERIFY(UnplacedArchives::newest().isEmpty());
        QVERIFY(!m_page->findChild<RunLine *>()->isVisible());
    }

    void aFileThatAppearedMeanwhileStays()
    {
        press(*m_page, "generateButton");
        write(u"out.zip"_s, "somebody else's");
        QTRY_COMPARE(m_boxes->texts.size(), 1);
        QCOMPARE(Files::read(output()), "somebody else's");
        QTRY_COMPARE(said(), u"Zip.NotSaved.Taken"_s);
    }

    void aStoppedPlacementKeepsTheArchive()
    {
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        onceZipHasEnded([this] { m_jobs.stopAll(); });
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QVERIFY(m_boxes->texts.isEmpty() && !QFile::exists(output()));
        QCOMPARE(said(), u"Zip.NotSaved.Stopped"_s);
        QVERIFY(namesInArchive(UnplacedArchives::newest()).contains(u"one.txt"_s));
    }

    void anAbandonedPageLeavesAFinishedArchiveItsWay()
    {
        onceZipHasEnded([this] {
            QMetaObject::invokeMethod( // behind what the page does next
                this, [this] { m_page.reset(); }, Qt::QueuedConnection);
        });
        QVERIFY(!m_page && QFile::exists(output()));
        QVERIFY(m_boxes->texts.isEmpty());
    }

private:
    static QDir documents() { return QDir(MiscTool::getAppDocumentFolder()); }
    QString said() const { return control<QLabel>(*m_page, "runText").text(); }
    QString output() const { return m_folder.filePath(u"out.zip"_s); }
    void write(const QString &name, const QByteArray &content) const
    {
        Files::write(m_folder.filePath(name), content);
    }
    /// Packs, and waits until the user was told this and the page is idle.
    void packAndExpect(const QString &message)
    {
        m_boxes->texts.clear();
        press(*m_page, "generateButton");
        QTRY_COMPARE(m_boxes->texts, QStringList{message});
        QTRY_VERIFY(control<QWidget>(*m_page, "generateButton").isEnabled());
    }
    /// Packs, acts before the page has heard that zip has ended, and waits until the job is over.
    void onceZipHasEnded(const std::function<void()> &act)
    {
        press(*m_page, "generateButton");
        connect(m_jobs.findChild<QProcess *>(), &QProcess::finished, this, act);
        QTRY_VERIFY(m_jobs.isEmpty());
        QTRY_VERIFY(!m_page || control<QWidget>(*m_page, "generateButton").isEnabled());
    }

    JobList m_jobs;
    std::unique_ptr<QTemporaryDir> m_own;
    QDir m_folder;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<ZIPViewController> m_page;
};

QTEST_MAIN(ZipPageTest)
#include "tst_zip_page.moc"
