// A job is listed from its beginning to its one end, whoever holds a handle of it.

#include "JobList.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

struct Report {
    qint64 elapsed;
    quint64 done;
    quint64 total;
};

} // namespace

class JobListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_texts.load(u":/localisation/toolvane_en.qm"_s));
        QCoreApplication::installTranslator(&m_texts);
        QLocale::setDefault(QLocale(u"en_GB"_s));
    }

    void init()
    {
        m_jobs = std::make_unique<JobList>();
        m_outcomes.clear();
        connect(m_jobs.get(), &JobList::jobEnded, this,
                [this](const RunningJob &, JobOutcome outcome) { m_outcomes += outcome; });
    }

    void endsOnce()
    {
        QSignalSpy changed(m_jobs.get(), &JobList::changed);
        QSignalSpy allEnded(m_jobs.get(), &JobList::allEnded);
        Job first = m_jobs->begin(description);
        const Job second = m_jobs->begin(description);
        Job sameAsFirst = first;
        first.end(JobOutcome::Succeeded);
        QCOMPARE(m_jobs->running().size(), 1U);
        QCOMPARE(allEnded.size(), 0);
        sameAsFirst.end(JobOutcome::Failed);
        first = second;
        first.end(JobOutcome::Stopped);
        QCOMPARE(m_outcomes, QList({JobOutcome::Succeeded, JobOutcome::Stopped}));
        QCOMPARE(changed.size(), 4);
        QCOMPARE(allEnded.size(), 1);
    }

    // As by an action that throws, or by a page that is gone.
    void endsWithItsLastHandle()
    {
        for (const bool isStopped : {false, true}) {
            std::optional<Job> handle = m_jobs->begin(description);
            std::optional<Job> copy = handle;
            if (isStopped)
                m_jobs->stop(m_jobs->running().front().id);
            handle.reset();
            QVERIFY(!m_jobs->isEmpty());
            copy.reset();
            QVERIFY(m_jobs->isEmpty());
        }
        QCOMPARE(m_outcomes, QList({JobOutcome::Failed, JobOutcome::Stopped}));
    }

    // Whether what stops ends its job at once, later, or with another one.
    void stops()
    {
        std::stop_source own;
        Job first = m_jobs->begin(description, own);
        Job second = m_jobs->begin(description);
        const Job third = m_jobs->begin(description);
        const std::stop_callback endsTwo(first.stopToken(), [&] {
            first.end(JobOutcome::Stopped);
            second.end(JobOutcome::Stopped);
        });
        m_jobs->stopAll();
        QVERIFY(own.stop_requested() && third.stopToken().stop_requested());
        QCOMPARE(m_jobs->running().size(), 1U);
        m_jobs->stop(12345); // ended long ago
        QVERIFY(!Job().stopToken().stop_possible());
    }

    void outlivesItsList()
    {
        Job job = m_jobs->begin(description);
        m_jobs.reset();
        job.end(JobOutcome::Succeeded);
        QVERIFY(m_outcomes.isEmpty());
    }

    void tellsTheTime()
    {
        for (const auto &[milliseconds, text] : {std::pair(-1, u"0:00"_s),
                                                 {7'999, u"0:07"_s},
                                                 {3'599'999, u"59:59"_s},
                                                 {3'723'000, u"1:02:03"_s}})
            QCOMPARE(elapsedText(milliseconds), text);
    }

    void saysHowFarItIs_data()
    {
        constexpr auto most = std::numeric_limits<quint64>::max();
        QTest::addColumn<QList<Report>>("reports");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing yet") << QList<Report>{} << QString();
        QTest::newRow("no time before five seconds") << QList<Report>{{4999, 43, 100}} << u"43 %"_s;
        QTest::newRow("then the time") << QList<Report>{{5000, 43, 100}} << u"43 % · 0:06 left"_s;
        QTest::newRow("not renewed before five more")
            << QList<Report>{{5000, 10, 100}, {9999, 50, 100}} << u"50 % · 0:45 left"_s;
        QTest::newRow("renewed") << QList<Report>{{5000, 10, 100}, {10'000, 50, 100}}
                                 << u"50 % · 0:10 left"_s;
        QTest::newRow("never 0:00")
            << QList<Report>{{5000, 999'999, 1'000'000}} << u"99 % · 0:01 left"_s;
        QTest::newRow("from one minute on")
            << QList<Report>{{60'000, 39, 100}} << u"39 % · about 2 min left"_s;
        QTest::newRow("hours") << QList<Report>{{3'600'000, 20, 100}} << u"20 % · about 4 h left"_s;
        QTest::newRow("longer than can be said") << QList<Report>{{6000, 1, most}} << u"0 %"_s;
        QTest::newRow("nothing done") << QList<Report>{{6000, 0, most}} << u"0 %"_s;
        QTest::newRow("almost") << QList<Report>{{1, most - 1, most}} << u"99 %"_s;
        QTest::newRow("the end") << QList<Report>{{60'000, most, most}} << u"100 %"_s;
        QTest::newRow("no total, or less than is done")
            << QList<Report>{{1, 5, 10}, {2, 1, 0}, {3, 11, 10}} << u"50 %"_s;
    }

    void saysHowFarItIs()
    {
        QFETCH(QList<Report>, reports);
        JobProgress progress;
        for (const Report &report : reports)
            progress.set(report.done, report.total, report.elapsed);
        QTEST(progress.text(), "text");
    }

    void listsHowFarItIs()
    {
        QSignalSpy progressed(m_jobs.get(), &JobList::progressed);
        Job first = m_jobs->begin(description);
        Job second = m_jobs->begin(description);
        second.setProgress(1, 2);
        first.setItems(12'345, 3'435'973'837);
        QCOMPARE(progressed.size(), 2);
        QCOMPARE(progressed.first().first().toULongLong(), m_jobs->running().back().id);
        QCOMPARE(m_jobs->running().back().progress.percent(), std::optional(50));
        QCOMPARE(m_jobs->running().front().progress.text(), u"12,345 items, 3.20 GB"_s);
        QVERIFY(!m_jobs->running().front().progress.percent());
        second.end(JobOutcome::Succeeded);
        second.setProgress(2, 2);
        Job().setProgress(1, 2);
        m_jobs.reset();
        first.setItems(1, 1);
        QCOMPARE(progressed.size(), 2);
    }

private:
    QTranslator m_texts;
    const JobDescription description{.page = u"Page"_s, .title = u"Test"_s};
    std::unique_ptr<JobList> m_jobs;
    QList<JobOutcome> m_outcomes;
};

QTEST_GUILESS_MAIN(JobListTest)
#include "tst_job_list.moc"
