// The pages and the programs that really run for them understand each other, and a failed run
// leaves an older file as it was and nothing beside it.

#include "AVConvertViewController.h"
#include "DMGViewController.h"
#include "ISOViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "SynthesisViewController.h"

#include <QComboBox>
#include <QDir>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

constexpr int timeLimit = 60'000; // converting on a busy machine

class PagesWithProgramsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The distribution's programs hang or fail with the sanitizers' runtime that the tests preload.
    void initTestCase() { qunsetenv("LD_PRELOAD"); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_boxes = std::make_unique<MessageBoxes>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"source"_s));
        write(u"source/file"_s, "content");
    }

    void imagesAndAFailureThatLeavesTheOlderOne()
    {
        QCOMPARE(makeImage<DMGViewController>(u"image.dmg"_s), u"GenerateImageSuc"_s);
        QCOMPARE(bytes(u"image.dmg"_s, 1024, 2), "H+"); // the volume header
        QCOMPARE(makeImage<ISOViewController>(u"image.iso"_s), u"GenerateImageSuc"_s);
        QCOMPARE(bytes(u"image.iso"_s, 32'769, 5), "CD001");
        write(u"image.iso"_s, "older");
        QVERIFY(QDir(path(u"source"_s)).removeRecursively());
        QCOMPARE(makeImage<ISOViewController>(u"image.iso"_s), u"GenerateImageFail"_s);
        QCOMPARE(bytes(u"image.iso"_s, 0, 100), "older");
        QCOMPARE(items(), (QStringList{u"image.dmg"_s, u"image.iso"_s}));
    }

    void video()
    {
        QProcess ffmpeg;
        ffmpeg.start(u"/usr/bin/ffmpeg"_s,
                     QStringList{u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                                 u"testsrc=duration=1:size=64x48:rate=10"_s, path(u"video.avi"_s)});
        QVERIFY(ffmpeg.waitForFinished(timeLimit));
        AVConvertViewController page(m_jobs);
        page.show();
        auto &formats = control<QComboBox>(page, "outputFormatPopUp");
        for (int format = 0; format < formats.count(); ++format) {
            const QString output = u"%1.m4v"_s.arg(format);
            formats.setCurrentIndex(format);
            fill(page, "sourceField", path(u"video.avi"_s));
            fill(page, "outputField", path(output));
            press(page, "convertButton");
            QTRY_COMPARE_WITH_TIMEOUT(m_boxes->texts.size(), format + 1, timeLimit);
            QVERIFY2(m_boxes->texts.last() == "Convert is completed."_L1,
                     qPrintable(formats.currentText()));
            QCOMPARE(bytes(output, 4, 4), "ftyp"); // ISO/IEC 14496-12
        }
    }

    void failedVideoLeavesTheOlderFile()
    {
        write(u"video.avi"_s, "no video");
        write(u"video.m4v"_s, "older");
        const QStringList before = items();
        AVConvertViewController page(m_jobs);
        page.show();
        fill(page, "sourceField", path(u"video.avi"_s));
        fill(page, "outputField", path(u"video.m4v"_s));
        press(page, "convertButton");
        QTRY_COMPARE_WITH_TIMEOUT(m_boxes->texts, QStringList{u"Convert is failed."_s}, timeLimit);
        QCOMPARE(bytes(u"video.m4v"_s, 0, 100), "older");
        QCOMPARE(items(), before);
    }

    // Every voice of the pop-up is one that the program knows.
    void speech()
    {
        SynthesisViewController page(m_jobs);
        page.show();
        control<QPlainTextEdit>(page, "textField").setPlainText(u"-x"_s);
        auto &voices = control<QComboBox>(page, "voicePopUp");
        for (int voice = 0; voice < voices.count(); ++voice) {
            const QString output = u"%1.aiff"_s.arg(voice);
            voices.setCurrentIndex(voice);
            press(page, "saveButton");
            answerChooser(page, "saveChooser", path(output));
            QTRY_COMPARE_WITH_TIMEOUT(m_boxes->texts.size(), voice + 1, timeLimit);
            QVERIFY2(m_boxes->texts.last() == "SaveSuc"_L1, qPrintable(voices.currentText()));
            QCOMPARE(bytes(output, 0, 4), "FORM");
        }
    }

private:
    /// What the page says in the end.
    template <typename Page>
    QString makeImage(const QString &output)
    {
        Page page(m_jobs);
        page.show();
        fill(page, "srcFolderField", path(u"source"_s));
        fill(page, "volumnNameField", u"Größe"_s);
        fill(page, "outputField", path(output));
        m_boxes->texts.clear();
        press(page, "generateButton");
        [&] { QTRY_COMPARE_WITH_TIMEOUT(m_boxes->texts.size(), 1, timeLimit); }();
        return m_boxes->texts.value(0);
    }
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    QByteArray bytes(const QString &name, qsizetype from, qsizetype count) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) && file.seek(from) ? file.read(count) : QByteArray();
    }

    QStringList items() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    JobList m_jobs;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MessageBoxes> m_boxes;
};

void PagesWithProgramsTest::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QTEST_MAIN(PagesWithProgramsTest)
#include "tst_pages_with_programs.moc"
