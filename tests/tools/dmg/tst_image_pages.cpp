// Both pages of disk images check their form, run the image program and report in the same way.

#include "DMGViewController.h"
#include "ISOViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"

#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

using Page = std::unique_ptr<ImageViewController>;

class ImagePagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_boxes = std::make_unique<MessageBoxes>(); }

    void firstMissingInputIsNamed()
    {
        RecordedProgram program("hdiutil");
        const Page page = makePage(u"dmg"_s);
        QStringList expected;
        const std::pair<const char *, const char *> missing[] = {
            {"srcFolderField", "SrcFolderNull"},
            {"volumnNameField", "VolumeNameNull"},
            {"outputField", "OutputNull"}};
        for (const auto &[field, key] : missing) {
            press(*page, "generateButton");
            expected << u'[' + QLatin1String(key) + u']';
            QCOMPARE(m_boxes->texts, expected);
            fill(*page, field, u" "_s); // a blank is not nothing
        }
        QCOMPARE(m_boxes->informativeTexts.join(QString()), QString());
        QVERIFY(m_jobs.isEmpty());
        QVERIFY(!program.arguments());
    }

    void runs_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("arguments");
        const QString rest = u"-o|/no such folder/image|-default-volume-name|-name|-ov|-quiet|"
                             "/source folder"_s;
        QTest::newRow("disk image") << u"dmg"_s << u"makehybrid|-hfs|"_s + rest;
        QTest::newRow("CD image") << u"iso"_s << u"makehybrid|"_s + rest;
    }

    void runs()
    {
        QFETCH(QString, suffix);
        RecordedProgram program("hdiutil");
        program.hold();
        const Page page = makePage(suffix);
        const QStringList buttons{u"srcSelectButton"_s, u"outputSelectButton"_s, u"clearButton"_s,
                                  u"generateButton"_s};
        auto &indicator = control<QWidget>(*page, "progressIndicator");
        auto &volumeName = control<QLineEdit>(*page, "volumnNameField");
        fillForm(*page);
        press(*page, "generateButton");
        QCOMPARE(enabledOf(*page, buttons), QStringList());
        QVERIFY(volumeName.isReadOnly() && indicator.isVisible());
        QVERIFY(!control<QLineEdit>(*page, "outputField").isReadOnly());
        QTRY_VERIFY(program.arguments());
        QTEST(program.arguments()->join(u'|'), "arguments");
        QCOMPARE(m_jobs.running().front().description.page, suffix.toUpper() + u"ViewController"_s);
        QCOMPARE(m_jobs.running().front().description.subject, u"/source folder"_s);

        QStringList enabledBehindTheBox;
        m_boxes->whileShown = [&] { enabledBehindTheBox = enabledOf(*page, buttons); };
        program.release();
        QTRY_COMPARE(m_boxes->texts, QStringList{u"GenerateImageSuc"_s}); // not looked up
        QCOMPARE(enabledBehindTheBox, buttons); // idle before it says how it went
        QVERIFY(!volumeName.isReadOnly() && !indicator.isVisible());
        QCOMPARE(text(*page, "srcFolderField"), u"/source folder"_s); // the form stays filled
        press(*page, "clearButton");
        for (const char *field : {"srcFolderField", "volumnNameField", "outputField"})
            QCOMPARE(text(*page, field), QString());
    }

    // The system starts no program with such an argument.
    void tooLongForOneArgument()
    {
        RecordedProgram program("hdiutil");
        const Page page = makePage(u"dmg"_s);
        fillForm(*page);
        control<QLineEdit>(*page, "volumnNameField").setMaxLength(200'000);
        fill(*page, "volumnNameField", QString(200'000, u'x'));
        press(*page, "generateButton");
        QTRY_COMPARE(m_boxes->texts, QStringList{u"GenerateImageFail"_s});
        QVERIFY(control<QWidget>(*page, "generateButton").isEnabled());
        QCOMPARE(text(*page, "outputField"), u"/no such folder/image"_s);
        QVERIFY(!program.arguments());
    }

    void choosersFillTheForm_data() { runs_data(); }
    void choosersFillTheForm()
    {
        QFETCH(QString, suffix);
        const QTemporaryDir folder;
        const Page page = makePage(suffix);
        fill(*page, "volumnNameField", u"typed"_s);
        press(*page, "srcSelectButton");
        answerChooser(*page, "folderChooser", QString());
        QCOMPARE(text(*page, "volumnNameField"), u"typed"_s);
        press(*page, "srcSelectButton");
        answerChooser(*page, "folderChooser", folder.path());
        QCOMPARE(text(*page, "srcFolderField"), folder.path());
        QCOMPARE(text(*page, "volumnNameField"), QFileInfo(folder.path()).fileName());
        press(*page, "outputSelectButton");
        answerChooser(*page, "saveChooser", folder.filePath(u"image"_s));
        QCOMPARE(text(*page, "outputField"), folder.filePath(u"image."_s + suffix));
    }

    void pageDiesWhileWorking()
    {
        RecordedProgram program("hdiutil");
        program.hold();
        Page page = makePage(u"dmg"_s);
        fillForm(*page);
        press(*page, "generateButton");
        QTRY_VERIFY(program.arguments());
        page.reset();
        QTRY_VERIFY(m_jobs.isEmpty());
        QVERIFY(m_boxes->texts.isEmpty());
    }

private:
    Page makePage(const QString &suffix)
    {
        Page page;
        if (suffix == "dmg"_L1)
            page = std::make_unique<DMGViewController>(m_jobs);
        else
            page = std::make_unique<ISOViewController>(m_jobs);
        page->show();
        return page;
    }

    static void fillForm(const QWidget &page)
    {
        fill(page, "srcFolderField", u"/source folder"_s);
        fill(page, "volumnNameField", u"-name"_s);
        fill(page, "outputField", u"/no such folder/image"_s);
    }

    MarkedTexts m_texts;
    JobList m_jobs;
    std::unique_ptr<MessageBoxes> m_boxes;
};

QTEST_MAIN(ImagePagesTest)
#include "tst_image_pages.moc"
