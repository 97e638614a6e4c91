// The list of jobs tells at every moment what runs and how it ended, and stops it.

#include "JobList.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class JobListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatRunsAndHowItEnded()
    {
        JobList jobs;
        QSignalSpy changed(&jobs, &JobList::changed);
        std::vector<JobOutcome> outcomes;
        connect(&jobs, &JobList::jobEnded, this,
                [&](const RunningJob &, JobOutcome outcome) { outcomes.push_back(outcome); });
        Job zip = jobs.begin({u"ZIPViewController"_s, u"Zip"_s, u"/a/b"_s});
        Job moved = std::move(zip);
        QCOMPARE(changed.size(), 1);
        const RunningJob first = jobs.running().front();
        QCOMPARE(first.description.subject, u"/a/b"_s);
        QVERIFY(jobs.find(first.id));
        moved = jobs.begin({u"UserCacheViewController"_s, u"Clean"_s}); // which ends the other
        QCOMPARE(changed.size(), 3);
        QVERIFY(!jobs.find(first.id));
        QCOMPARE(jobs.running().front().description.title, u"Clean"_s);
        moved.end(JobOutcome::Succeeded);
        moved.end(JobOutcome::Stopped);
        QVERIFY(jobs.isEmpty());
        QCOMPARE(outcomes, (std::vector{JobOutcome::Failed, JobOutcome::Succeeded}));
    }

    void stopsAll()
    {
        JobList jobs;
        int stopped = 0;
        auto job = std::make_unique<Job>();
        *job = jobs.begin({u"P"_s, u"ends inside its own stop"_s}, [&] {
            job.reset();
            ++stopped;
        });
        const Job other = jobs.begin({u"P"_s, u"takes its time"_s}, [&] { ++stopped; });
        const Job stubborn = jobs.begin({u"P"_s, u"cannot be stopped"_s});
        jobs.stopAll();
        QCOMPARE(stopped, 2);
        QCOMPARE(jobs.running().size(), std::size_t(2));
    }

    void handleOutlivesTheList()
    {
        auto jobs = std::make_unique<JobList>();
        Job job = jobs->begin({u"P"_s, u"long"_s});
        jobs.reset();
        job.end(JobOutcome::Succeeded);
    }
};

QTEST_GUILESS_MAIN(JobListTest)
#include "tst_job_list.moc"
