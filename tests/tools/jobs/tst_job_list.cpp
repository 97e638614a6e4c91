// A job is listed from its beginning to its one end, whoever holds a handle of it.

#include "JobList.h"

#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class JobListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

private:
    const JobDescription description{.page = u"Page"_s, .title = u"Test"_s};
    std::unique_ptr<JobList> m_jobs;
    QList<JobOutcome> m_outcomes;
};

QTEST_GUILESS_MAIN(JobListTest)
#include "tst_job_list.moc"
