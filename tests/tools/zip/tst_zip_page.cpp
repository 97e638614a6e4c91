// Proves that the Zip page packs a folder as its form says, and what it shows meanwhile.

#include "ZipCommand.h"
#include "ZipPage.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace
{

/// The names in an archive, as the unzip program reads them; none when it finds a fault.
QStringList namesInArchive(const QString &archive)
{
    QProcess unzip;
    unzip.start(u"unzip"_s, {u"-tqq"_s, archive});
    unzip.waitForFinished();
    if (unzip.exitCode() != 0)
        return {};
    unzip.start(u"unzip"_s, {u"-Z1"_s, archive});
    unzip.waitForFinished();
    QStringList names = QString::fromUtf8(unzip.readAll()).split(u'\n', Qt::SkipEmptyParts);
    names.sort();
    return names;
}

} // namespace

class tst_ZipPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("LD_PRELOAD"); // the sanitizers have no business in the system's zip
    }

    void command()
    {
        const Command pack = ZipCommand::pack(u"/a/source"_s, u"/docs/-x y.zip"_s, u"-9"_s);
        QCOMPARE(pack.launchPath, u"/usr/bin/zip"_s);
        QCOMPARE(pack.arguments.join(u'|'), u"-r|/docs/-x y.zip|.|-9|-q"_s);
        QCOMPARE(pack.workingDirectory, u"/a/source"_s);
        QCOMPARE(ZipCommand::compressRatio(-1), u"-0"_s); // none is chosen
        for (const auto &[output, temporary, written] :
             {std::tuple(u"/b/p.zip"_s, u"/docs/p.zip"_s, u"/docs/p.zip"_s),
              std::tuple(u"/b.d/p"_s, u"/docs/p"_s, u"/docs/p.zip"_s),
              std::tuple(u"p.tar"_s, u"/docs/p.tar"_s, u"/docs/p.tar"_s),
              std::tuple(u"/b/p.zip/"_s, u"/docs/p.zip"_s, u"/docs/p.zip"_s)}) {
            QCOMPARE(ZipCommand::temporaryArchive(u"/docs"_s, output), temporary);
            QCOMPARE(ZipCommand::writtenArchive(temporary), written);
        }
    }

    void packsTheContentsOfTheFolder()
    {
        ZipPage zip;
        zip.write(u"source/-dash"_s, "-");
        zip.write(u"source/it's \"quoted\" 🎈"_s, "q");
        zip.write(u"source/"_s + QString(255, u'n'), "long");
        const QString archive = zip.folder.filePath(u"-my archive 🎈.zip"_s);
        fill(zip.page, "outputField", archive);
        zip.packAndExpect(u"ZipSuc"_s);
        QCOMPARE(namesInArchive(archive),
                 QStringList({u"-dash"_s, u"deep/"_s, u"deep/two.txt"_s, u"it's \"quoted\" 🎈"_s,
                              QString(255, u'n'), u"one.txt"_s}));
        QCOMPARE(QDir(MiscTool::getAppDocumentFolder()).entryList(QDir::Files), QStringList());
    }

    void packsWithTheChosenLevel()
    {
        ZipPage zip;
        QByteArray compressible;
        for (int i = 0; i < 40000; ++i)
            compressible += QByteArray::number(i * i % 7919);
        zip.write(u"source/numbers"_s, compressible);
        QList<qint64> sizes;
        for (int level = 0; level < 3; ++level) {
            zip.levels().setCurrentIndex(level);
            zip.packAndExpect(u"ZipSuc"_s);
            sizes += QFileInfo(zip.output()).size();
            QVERIFY(QFile::remove(zip.output()));
        }
        QVERIFY(sizes.at(0) > sizes.at(1) && sizes.at(1) > sizes.at(2));
        press(zip.page, "clearButton");
        QCOMPARE(text(zip.page, "srcFolderField") + text(zip.page, "outputField"), QString());
        QCOMPARE(zip.page.getCompressRatio(), u"-1"_s);
    }

    void isBusyUntilTheMessageIsDismissed()
    {
        const QStringList locked{u"srcSelectButton"_s, u"ratioPopUp"_s, u"outputButton"_s,
                                 u"clearButton"_s, u"generateButton"_s};
        const ZipPage zip;
        const auto &source = control<QLineEdit>(zip.page, "srcFolderField");
        const auto &output = control<QLineEdit>(zip.page, "outputField");
        const auto &indicator = control<QWidget>(zip.page, "progressIndicator");
        const auto isBusy = [&] {
            return enabledOf(zip.page, locked).isEmpty() && output.isReadOnly()
                && output.isEnabled() && source.isEnabled() && !source.isReadOnly()
                && indicator.isVisible();
        };
        MessageBoxes boxes;
        bool busyBehindTheBox = false;
        boxes.whileShown = [&] { busyBehindTheBox = isBusy(); };
        press(zip.page, "generateButton");
        QVERIFY(isBusy()); // and the event loop goes on: nothing above waited
        QCOMPARE(zip.jobs.running().size(), 1U);
        QCOMPARE(zip.jobs.running().front().description.subject, source.text());
        QTRY_COMPARE(boxes.texts.size(), 1);
        QVERIFY(busyBehindTheBox);
        QTRY_COMPARE(enabledOf(zip.page, locked), locked);
        QVERIFY(!output.isReadOnly() && !indicator.isVisible());
        QVERIFY(zip.jobs.isEmpty());
    }

    void refusesInOrder()
    {
        ZipPage zip;
        fill(zip.page, "srcFolderField", {});
        fill(zip.page, "outputField", {});
        zip.packAndExpect(u"SrcFolderNull"_s);
        fill(zip.page, "srcFolderField", u" "_s); // blanks are not trimmed
        zip.packAndExpect(u"ZipFileNameNull"_s);
        fill(zip.page, "outputField", zip.output());
        zip.write(u"out.zip"_s, "mine");
        zip.packAndExpect(u"ZipFileExist"_s);
        QFile::remove(zip.output());
        QVERIFY(QFile::link(u"/nowhere"_s, zip.output()));
        zip.packAndExpect(u"ZipFileExist"_s);
        QVERIFY(zip.jobs.isEmpty());
    }

    void takesPathsFromTheChoosers()
    {
        const ZipPage zip;
        press(zip.page, "srcSelectButton");
        answerChooser(zip.page, "folderChooser", zip.folder.path());
        QCOMPARE(text(zip.page, "srcFolderField"), zip.folder.path());
        press(zip.page, "outputButton");
        answerChooser(zip.page, "saveChooser", zip.folder.filePath(u"chosen"_s));
        QCOMPARE(text(zip.page, "outputField"), zip.folder.filePath(u"chosen.zip"_s));
    }

    void addsToAnArchiveThatAnEarlierRunLeft()
    {
        ZipPage zip;
        zip.write(u"source/stale.txt"_s, "stale");
        zip.packAndExpect(u"ZipSuc"_s);
        QVERIFY(QFile::rename(zip.output(), zip.temporary())); // as if the first run had failed
        QFile::remove(zip.folder.filePath(u"source/stale.txt"_s));
        zip.packAndExpect(u"ZipSuc"_s);
        QVERIFY(namesInArchive(zip.output()).contains(u"stale.txt"_s));
    }
};

QTEST_MAIN(tst_ZipPage)
#include "tst_zip_page.moc"
