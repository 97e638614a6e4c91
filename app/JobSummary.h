#pragma once

#include "Job.h"

/// How a run ended, in one short sentence: "Zip is finished". For notifications and screen readers.
QString jobSummary(const JobDescription &job, JobOutcome outcome);
