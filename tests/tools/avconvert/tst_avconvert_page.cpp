// The video page passes the chosen format's preset on, reports before it is idle again, and empties
// its form on success only.

#include "AVConvertViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"

#include <QComboBox>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

static const QStringList controls{u"sourceSelectButton"_s, u"outputFormatPopUp"_s,
                                  u"outputSelectButton"_s, u"convertButton"_s};

class AVConvertPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_boxes = std::make_unique<MessageBoxes>();
        makePage(
            "<plist><dict>"
            "<key>b small</key><string>PresetB</string><key>number</key><integer>1</integer>"
            "<key>Z large</key><string>PresetZ</string><key>a small</key><string>PresetA</string>"
            "</dict></plist>");
    }

    void firstMissingInputIsNamed()
    {
        press(*m_page, "convertButton");
        fill(*m_page, "sourceField", u" "_s);
        press(*m_page, "convertButton");
        QCOMPARE(
            m_boxes->texts,
            (QStringList{u"[Source file cannot be null.]"_s, u"[Output file cannot be null.]"_s}));
        QCOMPARE(m_boxes->informativeTexts,
                 (QStringList{u"[Please select m4v,mp4,mpg,mpeg or avi video file.]"_s,
                              u"[Please specify the output file.]"_s}));
        QVERIFY(m_jobs.isEmpty());
        QVERIFY(!showsProgress());
    }

    void formatsAreSorted()
    {
        QStringList titles;
        for (int i = 0; i < formats().count(); ++i)
            titles << formats().itemText(i);
        QCOMPARE(titles, (QStringList{u"Z large"_s, u"a small"_s, u"b small"_s, u"number"_s}));
        const AVConvertViewController shipped(m_jobs);
        QVERIFY(control<QComboBox>(shipped, "outputFormatPopUp").count() > 5);
    }

    void success()
    {
        RecordedProgram program("avconvert");
        program.hold();
        fillForm();
        formats().setCurrentText(u"b small"_s);
        press(*m_page, "convertButton");
        QCOMPARE(enabledOf(*m_page, controls), QStringList());
        QVERIFY(showsProgress());
        QTRY_VERIFY(program.arguments());
        QCOMPARE(program.arguments()->join(u'|'),
                 u"--preset|PresetB|--source|/a/-video.avi|--output|/b/video.m4v|-q"_s);
        QCOMPARE(m_jobs.running().front().description.subject, u"/a/-video.avi"_s);

        QString behindTheBox;
        m_boxes->whileShown = [&] {
            behindTheBox = text(*m_page, "sourceField") + text(*m_page, "outputField")
                + enabledOf(*m_page, controls).join(u'|')
                + (showsProgress() ? u"busy"_s : u"idle"_s);
        };
        program.release();
        QTRY_COMPARE(m_boxes->texts, QStringList{u"[Convert is completed.]"_s});
        QCOMPARE(behindTheBox, u"busy"_s); // empty already, and still working
        QCOMPARE(enabledOf(*m_page, controls), controls);
        QVERIFY(!showsProgress());
        QCOMPARE(formats().currentText(), u"b small"_s);
    }

    void withoutPreset_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<int>("count");
        QTest::newRow("no property list") << QByteArray("<html>") << 0;
        QTest::newRow("no dictionary") << QByteArray("<plist><array/></plist>") << 0;
        QTest::newRow("no text") << QByteArray("<plist><dict><key>number</key>"
                                               "<integer>1</integer></dict></plist>")
                                 << 1;
    }

    void withoutPreset()
    {
        QFETCH(QByteArray, list);
        makePage(list);
        QTEST(formats().count(), "count");
        QVERIFY(m_boxes->texts.isEmpty());
        RecordedProgram program("avconvert");
        program.endWith(64);
        fillForm();
        press(*m_page, "convertButton");
        QTRY_COMPARE(m_boxes->texts, QStringList{u"[Convert is failed.]"_s});
        QCOMPARE(program.arguments(), QStringList{u"--preset"_s});
        QCOMPARE(text(*m_page, "sourceField"), u"/a/-video.avi"_s); // the form is kept
        QCOMPARE(text(*m_page, "outputField"), u"/b/video.m4v"_s);
        QCOMPARE(enabledOf(*m_page, controls), controls);
    }

    void programThatCannotStart()
    {
        fillForm();
        control<QLineEdit>(*m_page, "sourceField").setMaxLength(200'000);
        fill(*m_page, "sourceField", QString(200'000, u'x'));
        press(*m_page, "convertButton");
        QTRY_COMPARE(m_boxes->texts, QStringList{u"[Convert is failed.]"_s});
        QCOMPARE(enabledOf(*m_page, controls), controls);
        QVERIFY(!showsProgress());
    }

    void choosersFillTheForm()
    {
        QFile video(m_folder->filePath(u"holiday.MPEG"_s));
        QVERIFY(video.open(QIODevice::WriteOnly));
        press(*m_page, "sourceSelectButton");
        answerChooser(*m_page, "fileChooser", video.fileName());
        QCOMPARE(text(*m_page, "sourceField"), video.fileName());
        QCOMPARE(text(*m_page, "outputField"), QString());
        press(*m_page, "outputSelectButton");
        answerChooser(*m_page, "saveChooser", m_folder->filePath(u"holiday"_s));
        QCOMPARE(text(*m_page, "outputField"), m_folder->filePath(u"holiday.m4v"_s));
    }

private:
    void makePage(const QByteArray &presetList);
    void fillForm()
    {
        fill(*m_page, "sourceField", u"/a/-video.avi"_s);
        fill(*m_page, "outputField", u"/b/video.m4v"_s);
    }

    QComboBox &formats() { return control<QComboBox>(*m_page, "outputFormatPopUp"); }
    bool showsProgress() { return control<QWidget>(*m_page, "progressBox").isVisible(); }

    MarkedTexts m_texts;
    JobList m_jobs;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<AVConvertViewController> m_page;
};

void AVConvertPageTest::makePage(const QByteArray &presetList)
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile file(m_folder->filePath(u"list"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(presetList);
    file.close();
    m_page = std::make_unique<AVConvertViewController>(m_jobs, nullptr, file.fileName());
    m_page->show();
}

QTEST_MAIN(AVConvertPageTest)
#include "tst_avconvert_page.moc"
