// Proves how the program starts, how it ends, and that it never ends a run without asking.

#include "Application.h"
#include "HoverTableAppDelegate.h"
#include "MiscTool.h"
#include "TerminationSignals.h"
#include "UnplacedArchives.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

QList<QMessageBox *> quitQuestions(MainWindow &window)
{
    return window.findChildren<QMessageBox *>(u"quitQuestion"_s);
}

void answer(MainWindow &window, QMessageBox::ButtonRole role)
{
    const QMessageBox *question = quitQuestions(window).value(0);
    QVERIFY(question);
    for (QAbstractButton *button : question->buttons()) {
        if (question->buttonRole(button) == role)
            return button->click();
    }
    QFAIL("the question has no such button");
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void noteUrl(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void initTestCase() { Application::prepare(); }
    void startsWithTheMainWindowAloneAndEndsWithIt()
    {
        Application application;
        application.delegate().loginWindow->show();
        application.start();
        QVERIFY(application.window().isVisible());
        QVERIFY(!application.delegate().loginWindow->isVisible());
        QCOMPARE(application.window().windowTitle(), u"Toolvane"_s);
        QCOMPARE(application.delegate().appNameItem->text(), u"Toolvane"_s);
        QApplication::setQuitOnLastWindowClosed(
            AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
        QTimer::singleShot(0, &application.window(), &QWidget::close);
        QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // ended by the window, not by the watchdog
    }

    void asksBeforeItLeavesAnArchiveWithoutAPlace()
    {
        const QString archive = MiscTool::getAppDocumentFolder() + u"/a.zip"_s;
        QVERIFY(QFile(archive).open(QIODevice::WriteOnly));
        const QString kept = UnplacedArchives::keep(archive);
        Application application;
        application.start();
        application.window().close();
        QVERIFY(application.window().isVisible());
        QCOMPARE(quitQuestions(application.window()).constFirst()->text(), qtTrId("Quit.Unplaced"));
        answer(application.window(), QMessageBox::RejectRole);
        QTRY_VERIFY(quitQuestions(application.window()).isEmpty());
        application.window().close();
        QTimer::singleShot(0, &application.window(), [&application] {
            answer(application.window(), QMessageBox::DestructiveRole);
        });
        QTimer::singleShot(5000, &application.window(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!application.window().isVisible() && QFile::exists(kept)); // for the next start
        UnplacedArchives::remove(kept);
    }

    void opensToolsFromTheKeyboard()
    {
        Application application;
        application.start();
        QVERIFY(QTest::qWaitForWindowActive(&application.window()));
        for (int row = 0; row < application.tools().rowCount(); ++row) {
            QTest::keyClick(&application.window(), static_cast<Qt::Key>(Qt::Key_1 + row),
                            Qt::ControlModifier);
            QVERIFY2(application.tools().viewItem(row)->isVisible(),
                     qPrintable(QString::number(row)));
        }
    }

    void opensTheWebSiteOfTheSettings()
    {
        Application application;
        const auto open = [&] {
            application.window().findChild<QAction *>(u"websiteItem"_s)->trigger();
            return std::exchange(m_opened, {});
        };
        QDesktopServices::setUrlHandler(u"test"_s, this, "noteUrl");
        QDesktopServices::setUrlHandler(u"https"_s, this, "noteUrl");
        QCOMPARE(open().scheme(), u"https"_s); // the one that was compiled in
        QSettings().setValue(u"Addresses/WebSite"_s, u"test://ours/"_s);
        QCOMPARE(open(), QUrl(u"test://ours/"_s));
        QSettings().remove(u"Addresses/WebSite"_s);
        QDesktopServices::unsetUrlHandler(u"test"_s);
        QDesktopServices::unsetUrlHandler(u"https"_s);
    }

    void helpOpensTheGuide()
    {
        Application application;
        QDesktopServices::setUrlHandler(u"file"_s, this, "noteUrl");
        application.window().findChild<QAction *>(u"guideItem"_s)->trigger();
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QFile guide(std::exchange(m_opened, {}).toLocalFile());
        QVERIFY(guide.open(QIODevice::ReadOnly));
        QVERIFY(guide.readAll().contains("records.md"));
    }

    void remembersPlaceAndSize()
    {
        {
            Application application;
            application.start();
            application.window().resize(910, 610);
            application.window().close();
        }
        Application again;
        QCOMPARE(again.window().size(), QSize(910, 610));
    }

    void asksBeforeClosingWhileSomethingRuns()
    {
        Application application;
        MainWindow &window = application.window();
        application.start();
        Job job = application.jobs().begin({.page = u"ZIPViewController"_s, .title = {}});
        QVERIFY(!window.close());
        QVERIFY(!window.close());
        QCOMPARE(quitQuestions(window).size(), 1); // also after a second try
        answer(window, QMessageBox::RejectRole);
        QVERIFY(window.isVisible());
        QVERIFY(!application.jobs().isEmpty());
        QTRY_VERIFY(quitQuestions(window).isEmpty());

        window.close();
        QCOMPARE(quitQuestions(window).size(), 1);
        job.end(JobOutcome::Succeeded);
        QTRY_VERIFY(quitQuestions(window).isEmpty());
        QVERIFY(window.isVisible());
    }

    // As at the end of the user's session, with a message that nobody has answered.
    void aSignalEndsTheRunsFirst()
    {
        Application application;
        application.start();
        const TerminationSignals signals;
        connect(&signals, &TerminationSignals::received, &application.window(), &MainWindow::quit);
        bool wasAbandoned = false;
        Job job = application.jobs().begin({.page = u"ZIPViewController"_s, .title = {}});
        connect(&application.window(), &MainWindow::abandonRuns, this, [&] {
            wasAbandoned = application.jobs().running().size() == 1;
            job.end(JobOutcome::Stopped);
        });
        QTimer::singleShot(0, this, [this] {
            QTimer::singleShot(0, this, [] { // in the message's own loop
                QVERIFY(QApplication::activeModalWidget());
                ::raise(SIGTERM);
            });
            MiscTool::showAlert(u"The run has ended."_s, {});
        });
        QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(wasAbandoned && !application.window().isVisible());
    }

    void quittingEndsTheRunsFirst()
    {
        Application application;
        application.start();
        const QPointer<QWidget> page = application.tools().viewItem(0);
        Job job = application.jobs().begin({.page = u"ZIPViewController"_s, .title = {}});
        application.window().close();
        answer(application.window(), QMessageBox::DestructiveRole);
        QVERIFY(!application.window().isVisible());
        QVERIFY(page.isNull()); // the page went, and with it whatever it ran

        QSignalSpy allEnded(&application.jobs(), &JobList::allEnded);
        QTest::qWait(0);
        QCOMPARE(allEnded.size(), 0); // what cannot be stopped is waited for
        job.end(JobOutcome::Stopped);
        QTRY_COMPARE(allEnded.size(), 1);
    }

private:
    QUrl m_opened;
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
