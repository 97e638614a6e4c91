// Proves that what runs is listed at the foot of the sidebar without moving any page, and that a
// row leads to its page and stops its run, by keyboard alone and under a name that can be read out.

#include "Application.h"
#include "ContainerBox.h"
#include "JobRow.h"
#include "JobStrip.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

class Window
{
public:
    Window()
    {
        m_application.window().resize(820, 560);
        m_application.start();
        if (!QTest::qWaitForWindowActive(&window()))
            qFatal("the window does not come up");
    }
    MainWindow &window() { return m_application.window(); }
    JobList &jobs() { return m_application.jobs(); }
    JobStrip &strip() { return *window().findChild<JobStrip *>(); }
    ContainerBox &container() { return *m_application.delegate().container; }
    QList<QPushButton *> buttons()
    {
        QList<QPushButton *> shown = strip().findChildren<QPushButton *>();
        shown.removeIf([](const QPushButton *button) { return !button->isVisible(); });
        return shown;
    }
    Job begin(const QString &page, const std::function<void()> &stop = {})
    {
        return jobs().begin({page, u"Zip"_s, u"/home/jane/<b>"_s}, stop);
    }

private:
    Application m_application;
};

} // namespace

class JobStripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Application::prepare(); }
    void showsWhatRunsAndMovesNoPage()
    {
        Window window;
        const QRect page = window.container().geometry();
        QVERIFY(!window.strip().isVisible());
        std::vector<Job> jobs;
        for (int count = 1; count <= 4; ++count) {
            jobs.push_back(window.begin(u"ZIPViewController"_s));
            QTRY_COMPARE(window.buttons().size(), count);
            const int oneRow = window.buttons().constFirst()->sizeHint().height();
            QTRY_COMPARE(window.strip().height(), std::min(count, 3) * oneRow); // then it scrolls
            QCOMPARE(window.container().geometry(), page);
            QCOMPARE(window.strip().geometry().bottom(), page.bottom());
        }
        QCOMPARE(window.buttons().constFirst()->accessibleName(), u"Zip: /home/jane/<b>"_s);
        QVERIFY(window.buttons().constFirst()->toolTip().contains(u"/home/jane/&lt;b&gt;"_s));
        jobs.back().end(JobOutcome::Failed);
        const auto *zip = window.window().findChild<QWidget *>(u"ZIPViewController"_s);
        QCOMPARE(zip->accessibleDescription(), qtTrId("Notice.Failed").arg(u"Zip"_s));
        jobs.clear();
        window.begin(u"ZIPViewController"_s).end(JobOutcome::Succeeded); // too brief to be shown
        QVERIFY(!window.strip().isVisible());
        QCOMPARE(window.container().geometry(), page);
    }

    void worksFromTheKeyboard()
    {
        Window window;
        int stopped = 0;
        const Job job = window.begin(u"ZIPViewController"_s, [&] { ++stopped; });
        QTRY_COMPARE(window.buttons().size(), 2);
        QPushButton *show = window.buttons().constFirst();
        QPushButton *stop = window.buttons().constLast();
        QCOMPARE(stop->accessibleName(), qtTrId("Jobs.Stop.Name").arg(u"Zip"_s));

        for (int presses = 0; presses < 100 && !show->hasFocus(); ++presses)
            QTest::keyClick(&window.window(), Qt::Key_Tab);
        QVERIFY(show->hasFocus());
        QTest::keyClick(show, Qt::Key_Return);
        QCOMPARE(window.container().contentView()->objectName(), u"ZIPViewController"_s);

        show->setFocus();
        QTest::keyClick(&window.window(), Qt::Key_Tab);
        QVERIFY(stop->hasFocus());
        QTest::keyClick(stop, Qt::Key_Return);
        QCOMPARE(stopped, 1);
        QVERIFY(!stop->isEnabled()); // the run still has to end
        QVERIFY(window.jobs().running().front().stopRequested);
    }

    void aRunThatEndsInsideItsStop()
    {
        Window window;
        Job job;
        job = window.begin(u"ZIPViewController"_s, [&] { job.end(JobOutcome::Stopped); });
        QTRY_COMPARE(window.buttons().size(), 2);
        QTest::mouseClick(window.buttons().constLast(), Qt::LeftButton);
        QVERIFY(!window.strip().isVisible());
        QTRY_VERIFY(window.strip().findChildren<JobRow *>().isEmpty());
    }
};

QTEST_MAIN(JobStripTest)
#include "tst_jobstrip.moc"
