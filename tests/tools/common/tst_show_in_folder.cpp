// Every page that makes a file offers to show it in its folder, until the next run or Clear.

#include "AVConvertViewController.h"
#include "DMGViewController.h"
#include "ISOViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"
#include "ShowInFolderButton.h"
#include "SynthesisViewController.h"
#include "ZIPViewController.h"

#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

namespace
{

struct MadeBy {
    std::function<QWidget *(JobList &)> makePage;
    const char *program; ///< None: the page runs the system's own.
    const char *mainButton;
    const char *sourceField = "srcFolderField";
    QString suffix;
};

template <typename Page>
QWidget *make(JobList &jobs)
{
    return new Page(jobs);
}

} // namespace

Q_DECLARE_METATYPE(MadeBy)

class ShowInFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("LD_PRELOAD"); // the sanitizers have no business in the system's zip
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
    }
    void showsWhatWasMade_data()
    {
        QTest::addColumn<MadeBy>("page");
        const auto row = [](const char *name, const MadeBy &page) { QTest::newRow(name) << page; };
        row("zip",
            {make<ZIPViewController>, nullptr, "generateButton", "srcFolderField", u"zip"_s});
        row("dmg",
            {make<DMGViewController>, "hdiutil", "generateButton", "srcFolderField", u"dmg"_s});
        row("iso",
            {make<ISOViewController>, "hdiutil", "generateButton", "srcFolderField", u"iso"_s});
        row("video",
            {make<AVConvertViewController>, "avconvert", "convertButton", "sourceField", u"m4v"_s});
        row("speech", {make<SynthesisViewController>, "say", "saveButton", nullptr, u"aiff"_s});
    }

    void showsWhatWasMade()
    {
        QFETCH(MadeBy, page);
        const QTemporaryDir folder;
        const QDir source(folder.filePath(u"source"_s));
        QVERIFY(source.mkpath(u"some folder"_s));
        RecordedProgram program(page.program ? page.program : "none");
        RecordedProgram open("open");
        const std::unique_ptr<QWidget> shown(page.makePage(m_jobs));
        auto &button = control<ShowInFolderButton>(*shown, "showInFolderButton");
        MessageBoxes boxes;
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
        const QRect mainButton = control<QWidget>(*shown, page.mainButton).geometry();

        const auto runInto = [&](const QString &output) {
            const qsizetype before = boxes.texts.size();
            if (page.sourceField) {
                fill(*shown, page.sourceField, source.path());
                fill(*shown, "outputField", output);
                if (auto *volume = shown->findChild<QLineEdit *>(u"volumnNameField"_s))
                    volume->setText(u"volume"_s);
            }
            press(*shown, page.mainButton);
            if (!page.sourceField)
                answerChooser(*shown, "saveChooser", output);
            QVERIFY(!button.isVisible()); // what an earlier run made is no longer meant
            QTRY_COMPARE(boxes.texts.size(), before + 1);
            QTRY_VERIFY(control<QWidget>(*shown, page.mainButton).isEnabled());
        };
        QVERIFY(!button.isVisible());
        const QString made = folder.filePath(u"-made <b>."_s + page.suffix);
        runInto(made);
        QVERIFY(button.isVisible());
        QCOMPARE(control<QWidget>(*shown, page.mainButton).geometry(), mainButton); // nothing jumps
        press(*shown, "showInFolderButton");
        QVERIFY(m_jobs.isEmpty()); // the page is not at work
        QTRY_COMPARE(open.arguments(), (QStringList{u"-R"_s, made}));

        if (auto *clear = shown->findChild<QPushButton *>(u"clearButton"_s)) {
            clear->click();
            QVERIFY(!button.isVisible());
        }
        program.endWith(1);
        QVERIFY(page.program || QDir(source.path()).rmdir(u"some folder"_s)); // zip fails then, too
        runInto(folder.filePath(u"failed."_s + page.suffix));
        QVERIFY(!button.isVisible());
    }

private:
    JobList m_jobs;
};

QTEST_MAIN(ShowInFolderTest)
#include "tst_show_in_folder.moc"
