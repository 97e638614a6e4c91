// The pages and the programs that really run for them understand each other, and a failed run
// leaves an older file as it was and nothing beside it. All formats and voices are tried with the
// programs themselves.

#include "AVConvertViewController.h"
#include "DMGViewController.h"
#include "ISOViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

class PagesWithProgramsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The distribution's programs hang or fail with the sanitizers' runtime that the tests preload.
    void initTestCase() { qunsetenv("LD_PRELOAD"); }

    void images()
    {
        const QString folder = u"mkdir source && echo content > source/file"_s;
        DMGViewController dmg(m_jobs);
        makesOrLeavesTheOlderFile(dmg, "generateButton", folder, u"GenerateImage%1"_s, 1024, "H+");
        ISOViewController iso(m_jobs);
        makesOrLeavesTheOlderFile(iso, "generateButton", folder, u"GenerateImage%1"_s, 32'769,
                                  "CD001");
    }

    void video()
    {
        AVConvertViewController page(m_jobs);
        makesOrLeavesTheOlderFile(page, "convertButton",
                                  u"ffmpeg -v error -f lavfi -i testsrc=duration=1:size=64x48:"
                                  "rate=10 -f avi source"_s,
                                  u"Convert is %1."_s, 4, "ftyp"); // ISO/IEC 14496-12
    }

private:
    void makesOrLeavesTheOlderFile(QWidget &page, const char *button, const QString &prepare,
                                   const QString &message, qint64 place, const QByteArray &mark)
    {
        const QTemporaryDir own;
        const QDir folder(own.path());
        QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, u"cd \"$0\" && "_s + prepare, own.path()}),
                 0);
        QFile output(folder.filePath(u"output"_s));
        const bool isVideo = message.startsWith(u"Convert"_s);
        const auto runAndExpect = [&](const QString &end) {
            MessageBoxes boxes;
            fill(page, isVideo ? "sourceField" : "srcFolderField", folder.filePath(u"source"_s));
            fill(page, "outputField", output.fileName());
            if (!isVideo)
                fill(page, "volumnNameField", u"Größe"_s);
            press(page, button);
            QTRY_COMPARE_WITH_TIMEOUT(boxes.texts, QStringList{message.arg(end)}, 60'000);
            QTRY_VERIFY(control<QWidget>(page, button).isEnabled());
        };
        page.setVisible(true);
        runAndExpect(isVideo ? u"completed"_s : u"Suc"_s);
        QVERIFY(output.open(QIODevice::ReadOnly) && output.seek(place));
        QCOMPARE(output.read(mark.size()), mark);
        output.close();
        QCOMPARE(inShell(folder, u"printf older > output; rm -r source; : > source"_s), 0);
        runAndExpect(isVideo ? u"failed"_s : u"Fail"_s);
        QVERIFY(output.open(QIODevice::ReadOnly));
        QCOMPARE(output.readAll(), "older");
        QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 (QStringList{u"output"_s, u"source"_s}));
    }
    static int inShell(const QDir &folder, const QString &script)
    {
        return QProcess::execute(u"sh"_s, {u"-c"_s, u"cd \"$0\" && "_s + script, folder.path()});
    }

    JobList m_jobs;
};

QTEST_MAIN(PagesWithProgramsTest)
#include "tst_pages_with_programs.moc"
