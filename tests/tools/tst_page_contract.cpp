// Every page that runs a program checks its form first, is busy while the program runs, tells the
// end once, offers what was made, and takes its run along when it goes.

#include "BusyIndicator.h"
#include "JobList.h"
#include "MessageBoxes.h"
#include "PageContracts.h"
#include "PageControls.h"
#include "RecordedProgram.h"
#include "RunLine.h"
#include "ShowInFolderButton.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

class PageContractTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<PageContract>("contract");
        for (const auto &[name, contract] : pageContracts())
            QTest::newRow(name) << contract;
    }
    void init()
    {
        QFETCH_GLOBAL(PageContract, contract);
        m_contract = contract;
        m_program = std::make_unique<RecordedProgram>(contract.program);
        m_boxes = std::make_unique<MessageBoxes>();
        m_page.reset(contract.makePage(m_jobs));
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
        renewFolder();
    }

    void namesTheFirstMissingInput()
    {
        QStringList expected;
        for (const FormField &field : m_contract.form) {
            if (field.refusal.isEmpty())
                continue;
            QTest::keyClick(&control<QWidget>(*m_page, field.name), Qt::Key_Return);
            QCOMPARE(m_boxes->texts, expected << field.refusal);
            fill(*m_page, field.name, u" "_s); // a blank is not nothing
        }
        QVERIFY(m_jobs.isEmpty());
        QVERIFY(!m_program->arguments());
    }

    void runsAndTellsItsEnd()
    {
        RecordedProgram open("open");
        auto *show = m_page->findChild<ShowInFolderButton *>();
        const QRect place = startButton().geometry();
        m_program->hold();
        start();
        QVERIFY(isBusy());
        QTRY_VERIFY(m_program->arguments());
        QCOMPARE(m_program->arguments()->join(u'|'), inFolder(m_contract.arguments));
        QTest::keyClick(&control<QWidget>(*m_page, m_contract.form.first().name), Qt::Key_Return);
        QCOMPARE(m_jobs.running().size(), 1U); // the key presses no button that is off
        const JobDescription job = m_jobs.running().front().description;
        QCOMPARE(job.page, m_page->objectName());
        QCOMPARE(job.subject, inFolder(m_contract.form.first().value));

        bool wasBusy = false;
        bool wasKept = false;
        m_boxes->whileShown = [&] {
            wasBusy = isBusy();
            wasKept = isFilled();
        };
        if (QLatin1String(m_contract.program)
            == "zip"_L1) // what it would have left for the page to place
            QVERIFY(QFile(m_program->arguments()->at(1)).open(QIODevice::WriteOnly));
        m_program->release();
        QTRY_COMPARE(m_boxes->texts, QStringList{m_contract.success});
        QCOMPARE(wasBusy, !m_contract.isIdleBehindTheBox);
        QCOMPARE(wasKept, m_contract.keepsForm);
        QTRY_VERIFY(isIdle());
        QCOMPARE(startButton().geometry(), place); // nothing jumps
        QVERIFY(m_page->focusWidget() == &startButton() || !startButton().isDefault());
        if (show) {
            press(*m_page, "showInFolderButton");
            QTRY_COMPARE(open.arguments(), (QStringList{u"-R"_s, inFolder(m_contract.made)}));
        } else {
            press(*m_page, "openButton");
            const QString folder = inFolder(m_contract.form.last().value);
            QTRY_COMPARE(open.arguments(), (QStringList{u"-a"_s, u"Finder"_s, folder}));
        }
        QVERIFY(m_jobs.isEmpty()); // the page is not at work
        if (auto *clear = m_page->findChild<QPushButton *>(u"clearButton"_s)) {
            clear->click();
            QVERIFY(!isFilled() && !(show && show->isVisible()));
        }

        renewFolder();
        m_program->endWith(1);
        start();
        QVERIFY(!(show && show->isVisible()));
        QTRY_COMPARE(m_boxes->texts.last(), m_contract.failure);
        QTRY_VERIFY(isIdle());
        QVERIFY(isFilled() && !(show && show->isVisible()));
    }

    // The system starts no program with such an argument.
    void cannotStart()
    {
        for (FormField &field : m_contract.form) {
            if (QLatin1String(field.name) != QLatin1String(m_contract.longest))
                continue;
            field.value += QString(200'000, u'x') + u".zip"_s;
            if (auto *line = m_page->findChild<QLineEdit *>(QLatin1String(field.name)))
                line->setMaxLength(300'000);
        }
        start();
        QTRY_VERIFY(m_jobs.isEmpty());
        if (m_contract.survivesNoProgram) {
            QTRY_COMPARE(m_boxes->texts, QStringList{m_contract.failure});
            QTRY_VERIFY(isIdle());
        } else {
            QVERIFY(m_boxes->texts.isEmpty());
            isStuck();
        }
        QVERIFY(!m_program->arguments());
    }

    // One of our own programs says so in place of the system's that is not there.
    void programMissing()
    {
        m_program->endWith(69);
        start();
        QTRY_VERIFY(m_jobs.isEmpty());
        if (!m_contract.survivesNoProgram) {
            QVERIFY(m_boxes->texts.isEmpty()); // which would blame the archive
            return isStuck();
        }
        QTRY_COMPARE(m_boxes->texts, QStringList{m_contract.failure});
        QTRY_VERIFY(isIdle());
    }

    // Not as one that failed.
    void tellsAStoppedRun()
    {
        m_program->hold();
        start();
        QTRY_VERIFY(m_program->arguments());
        m_jobs.stopAll();
        QTRY_VERIFY(isIdle() && m_jobs.isEmpty());
        QVERIFY(m_boxes->texts.isEmpty());
        QVERIFY(said().endsWith("Stopped]"_L1) && m_page->findChild<RunLine *>()->isVisible());
        renewFolder();
        m_program->release();
        m_program->endWith(1);
        start();
        QVERIFY(!m_page->findChild<RunLine *>()->isVisible());
        QTRY_VERIFY(isIdle());
    }

    void takesItsRunAlong()
    {
        m_program->hold();
        start();
        QTRY_VERIFY(m_program->arguments());
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        m_page.reset();
        QVERIFY(!m_jobs.isEmpty()); // the program still runs
        QTRY_VERIFY(m_jobs.isEmpty());
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QVERIFY(m_boxes->texts.isEmpty());
    }

    void choosersFillTheForm()
    {
        for (const Choice &choice : m_contract.choices) {
            press(*m_page, choice.button);
            const auto chooser = m_page->findChild<QFileDialog *>()->objectName().toLatin1();
            answerChooser(*m_page, chooser.constData(), inFolder(choice.typed));
            const bool isFirst = &choice == &m_contract.choices.constFirst();
            const FormField &field = isFirst ? m_contract.form.first() : m_contract.form.last();
            QCOMPARE(text(*m_page, field.name), inFolder(choice.chosen));
        }
        if (auto *volume = m_page->findChild<QLineEdit *>(u"volumnNameField"_s))
            QCOMPARE(volume->text(), QFileInfo(m_folder->path()).fileName());
    }

private:
    void renewFolder()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char *name : {"photos.zip", "holiday.MPEG"})
            QVERIFY(QFile(m_folder->filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    }
    QString inFolder(QString text) const { return text.replace(u'@', m_folder->path()); }
    QPushButton &startButton() const
    {
        return control<QPushButton>(*m_page, m_contract.buttons.last().toLatin1().constData());
    }
    static const char *textOf(const QWidget &field)
    {
        return qobject_cast<const QPlainTextEdit *>(&field) ? "plainText" : "text";
    }

    void start()
    {
        for (const FormField &field : m_contract.form) {
            auto &widget = control<QWidget>(*m_page, field.name);
            widget.setProperty(textOf(widget), inFolder(field.value));
        }
        QTest::mouseClick(&startButton(), Qt::LeftButton);
        if (m_page->findChild<QFileDialog *>())
            answerChooser(*m_page, "saveChooser", inFolder(m_contract.made));
    }
    /// Whether each field holds what it was filled with.
    bool isFilled() const
    {
        return std::ranges::all_of(m_contract.form, [this](const FormField &field) {
            const auto &widget = control<QWidget>(*m_page, field.name);
            return widget.property(textOf(widget)) == inFolder(field.value);
        });
    }
    bool isIn(bool idle) const
    {
        const bool signs = !m_contract.busySign
            || control<QWidget>(*m_page, m_contract.busySign).isVisible() != idle;
        const bool locks = std::ranges::all_of(m_contract.form, [&](const FormField &field) {
            const auto &widget = control<QWidget>(*m_page, field.name);
            return widget.property("readOnly").toBool() == (field.isLockedByARun && !idle);
        });
        const QStringList enabled = enabledOf(*m_page, m_contract.buttons);
        return signs && locks && enabled == (idle ? m_contract.buttons : QStringList());
    }
    QString said() const { return control<QLabel>(*m_page, "runText").text(); }
    /// Locked on purpose, without a sign of work, and with the reason.
    void isStuck() const
    {
        QTRY_COMPARE(said(), u"[Run.CouldNotStart]"_s);
        QVERIFY(enabledOf(*m_page, m_contract.buttons).isEmpty());
        QVERIFY(!m_page->findChild<BusyIndicator *>()->isVisible());
    }
    bool isBusy() const { return isIn(false); }
    bool isIdle() const { return isIn(true); }

    MarkedTexts m_texts;
    JobList m_jobs;
    PageContract m_contract;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordedProgram> m_program;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<QWidget> m_page;
};

QTEST_MAIN(PageContractTest)
#include "tst_page_contract.moc"
