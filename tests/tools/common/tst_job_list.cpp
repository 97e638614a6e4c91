// The list of jobs tells at every moment what runs, stops it, and says when the last one has ended.

#include "JobList.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

class JobListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatRuns()
    {
        JobList jobs;
        QSignalSpy changed(&jobs, &JobList::changed);
        Job zip = jobs.begin({u"ZIPViewController"_s, u"Zip"_s, u"/a/b"_s});
        Job moved = std::move(zip);
        QCOMPARE(changed.size(), 1);
        const RunningJob first = jobs.running().front();
        QCOMPARE(first.description.subject, u"/a/b"_s);
        QVERIFY(first.started.isValid());
        QVERIFY(jobs.find(first.id));
        moved = jobs.begin({u"UserCacheViewController"_s, u"Clean"_s}); // which ends the other
        QCOMPARE(changed.size(), 3);
        QVERIFY(!jobs.find(first.id));
        QCOMPARE(jobs.running().size(), std::size_t(1));
        QCOMPARE(jobs.running().front().description.title, u"Clean"_s);
        moved = Job();
        QVERIFY(jobs.isEmpty());
    }

    void tellsHowAJobEnded()
    {
        JobList jobs;
        std::vector<JobOutcome> outcomes;
        connect(&jobs, &JobList::jobEnded, this,
                [&](const RunningJob &, JobOutcome outcome) { outcomes.push_back(outcome); });
        {
            Job job = jobs.begin({u"P"_s, u"succeeds"_s});
            job.end(JobOutcome::Succeeded);
            job.end(JobOutcome::Stopped);
            const Job forgotten = jobs.begin({u"P"_s, u"leaves without a word"_s});
        }
        QCOMPARE(outcomes, (std::vector{JobOutcome::Succeeded, JobOutcome::Failed}));
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

    void allEnded()
    {
        JobList jobs;
        QSignalSpy allEnded(&jobs, &JobList::allEnded);
        std::optional<Job> first = jobs.begin({u"P"_s, u"first"_s});
        first.reset();
        std::optional<Job> next = jobs.begin({u"P"_s, u"follows at once"_s});
        QCoreApplication::processEvents();
        QCOMPARE(allEnded.size(), 0);
        next.reset();
        QTRY_COMPARE(allEnded.size(), 1);
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
