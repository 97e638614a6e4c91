// Proves that the Zip page packs a folder as its form says, and what it shows meanwhile.

#include "MessageBoxes.h"
#include "ZipPage.h"

#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

class tst_ZipPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("LD_PRELOAD"); // the sanitizers have no business in the system's zip
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void showsItsTexts();
    void packsTheContentsOfTheFolder();
    void packsWithTheChosenLevel();
    void isBusyUntilTheMessageIsDismissed();
    void refusesInOrder();
    void clears();
    void takesPathsFromTheChoosers();
    void addsToAnArchiveThatAnEarlierRunLeft();
};

void tst_ZipPage::showsItsTexts()
{
    ZipPage zip; // without a table each key stands for itself
    QCOMPARE(zip.find<QLabel>("titleLabel")->text(), u"Zip"_s);
    QCOMPARE(zip.find<QGroupBox>("srcBox")->title(), u"Source"_s);
    QCOMPARE(zip.find<QGroupBox>("ratioBox")->title(), u"CompressRatio"_s);
    QCOMPARE(zip.find<QGroupBox>("outputBox")->title(), u"Output"_s);
    QCOMPARE(zip.find<QGroupBox>("progressBox")->title(), u"Progress"_s);
    QCOMPARE(zip.find<QPushButton>("clearButton")->text(), u"Clear"_s);
    QCOMPARE(zip.find<QPushButton>("generateButton")->text(), u"Zip"_s);
    auto *levels = zip.find<QComboBox>("ratioPopUp");
    const QStringList titles{levels->itemText(0), levels->itemText(1), levels->itemText(2)};
    QCOMPARE(titles, QStringList({u"Store"_s, u"Faster"_s, u"Better"_s}));
    QVERIFY(!zip.find("progressIndicator")->isVisible());
}

void tst_ZipPage::packsTheContentsOfTheFolder()
{
    MessageBoxes boxes;
    ZipPage zip;
    zip.write(u"source/-dash"_s, "-");
    zip.write(u"source/it's \"quoted\" 🎈"_s, "q");
    zip.write(u"source/"_s + QString(255, u'n'), "long");
    zip.set("outputField", zip.folder.filePath(u"-my archive 🎈.zip"_s));
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"ZipSuc"_s));
    QCOMPARE(boxes.informativeTexts, QStringList(QString()));
    QTRY_VERIFY(zip.isIdle());
    QCOMPARE(namesInArchive(zip.text("outputField")),
             QStringList({u"-dash"_s, u"deep/"_s, u"deep/two.txt"_s, u"it's \"quoted\" 🎈"_s,
                          QString(255, u'n'), u"one.txt"_s}));
    QCOMPARE(QDir(MiscTool::getAppDocumentFolder()).entryList(QDir::Files), QStringList());
}

void tst_ZipPage::packsWithTheChosenLevel()
{
    QList<qint64> sizes;
    for (int level = 0; level < 3; ++level) {
        MessageBoxes boxes;
        ZipPage zip;
        QByteArray compressible;
        for (int i = 0; i < 40000; ++i)
            compressible += QByteArray::number(i * i % 7919);
        zip.write(u"source/numbers"_s, compressible);
        zip.find<QComboBox>("ratioPopUp")->setCurrentIndex(level);
        zip.press("generateButton");
        QTRY_COMPARE(boxes.texts, QStringList(u"ZipSuc"_s));
        sizes += QFileInfo(zip.output()).size();
    }
    QVERIFY(sizes.at(0) > sizes.at(1));
    QVERIFY(sizes.at(1) > sizes.at(2));
}

void tst_ZipPage::isBusyUntilTheMessageIsDismissed()
{
    const QList<const char *> locked{"srcSelectButton", "ratioPopUp", "outputButton", "clearButton",
                                     "generateButton"};
    ZipPage zip;
    const auto isBusy = [&] {
        const bool anyEnabled = std::ranges::any_of(
            locked, [&](const char *name) { return zip.find(name)->isEnabled(); });
        return !anyEnabled && zip.find<QLineEdit>("outputField")->isReadOnly()
            && zip.find("outputField")->isEnabled() && zip.find("srcFolderField")->isEnabled()
            && !zip.find<QLineEdit>("srcFolderField")->isReadOnly()
            && zip.find("progressIndicator")->isVisible();
    };
    MessageBoxes boxes;
    bool busyBehindTheBox = false;
    boxes.whileShown = [&] { busyBehindTheBox = isBusy(); };
    zip.press("generateButton");
    QVERIFY(isBusy()); // and the event loop goes on: nothing above waited
    QCOMPARE(zip.jobs.running().size(), 1U);
    QCOMPARE(zip.jobs.running().front().description.subject, zip.text("srcFolderField"));
    QTRY_COMPARE(boxes.texts.size(), 1);
    QVERIFY(busyBehindTheBox);
    QTRY_VERIFY(!isBusy());
    for (const char *name : locked)
        QVERIFY2(zip.find(name)->isEnabled(), name);
    QVERIFY(!zip.find<QLineEdit>("outputField")->isReadOnly());
    QVERIFY(!zip.find("progressIndicator")->isVisible());
    QVERIFY(zip.jobs.isEmpty());
}

void tst_ZipPage::refusesInOrder()
{
    MessageBoxes boxes;
    ZipPage zip;
    zip.set("srcFolderField", {});
    zip.set("outputField", {});
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts, QStringList(u"SrcFolderNull"_s));
    zip.set("srcFolderField", u" "_s); // blanks are not trimmed
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts.last(), u"ZipFileNameNull"_s);

    zip.set("outputField", zip.output());
    zip.write(u"out.zip"_s, "mine");
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts.last(), u"ZipFileExist"_s);
    QFile::remove(zip.output());
    QVERIFY(QFile::link(u"/nowhere"_s, zip.output()));
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts.size(), 4);
    QCOMPARE(boxes.texts.last(), u"ZipFileExist"_s);
    QVERIFY(zip.jobs.isEmpty());
    QVERIFY(zip.isIdle());
}

void tst_ZipPage::clears()
{
    ZipPage zip;
    zip.find<QComboBox>("ratioPopUp")->setCurrentIndex(2);
    QCOMPARE(zip.page.getCompressRatio(), u"-9"_s);
    zip.press("clearButton");
    QCOMPARE(zip.text("srcFolderField"), QString());
    QCOMPARE(zip.text("outputField"), QString());
    QCOMPARE(zip.page.getCompressRatio(), u"-1"_s);
}

void tst_ZipPage::takesPathsFromTheChoosers()
{
    ZipPage zip;
    zip.press("srcSelectButton");
    auto *folders = zip.page.findChild<QFileDialog *>(u"folderChooser"_s);
    QVERIFY(folders && folders->windowModality() == Qt::WindowModal);
    folders->reject();
    QCOMPARE(zip.text("srcFolderField"), zip.folder.filePath(u"source"_s));

    zip.press("outputButton");
    auto *saver = zip.page.findChild<QFileDialog *>(u"saveChooser"_s);
    QVERIFY(saver && saver->windowModality() == Qt::WindowModal);
    saver->setDirectory(zip.folder);
    saver->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"chosen"_s);
    QMetaObject::invokeMethod(saver, "accept");
    QCOMPARE(zip.text("outputField"), zip.folder.filePath(u"chosen.zip"_s));
}

void tst_ZipPage::addsToAnArchiveThatAnEarlierRunLeft()
{
    MessageBoxes boxes;
    ZipPage zip;
    zip.write(u"source/stale.txt"_s, "stale");
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts.size(), 1);
    QVERIFY(QFile::rename(zip.output(), zip.temporary())); // as if the first run had failed
    QFile::remove(zip.folder.filePath(u"source/stale.txt"_s));
    QTRY_VERIFY(zip.isIdle());
    zip.press("generateButton");
    QTRY_COMPARE(boxes.texts.size(), 2);
    QVERIFY(namesInArchive(zip.output()).contains(u"stale.txt"_s));
}

QTEST_MAIN(tst_ZipPage)
#include "tst_zip_page.moc"
