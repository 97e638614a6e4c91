#include "JobSummary.h"

QString jobSummary(const JobDescription &job, JobOutcome outcome)
{
    switch (outcome) {
    case JobOutcome::Succeeded:
        return qtTrId("Notice.Succeeded").arg(job.title);
    case JobOutcome::Failed:
        return qtTrId("Notice.Failed").arg(job.title);
    case JobOutcome::Stopped:
        return qtTrId("Notice.Stopped").arg(job.title);
    }
    Q_UNREACHABLE();
}
