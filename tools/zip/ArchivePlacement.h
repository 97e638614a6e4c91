#pragma once

#include "Job.h"

#include <QCoroTask>
#include <QString>

#include <stop_token>

/// How a finished archive came to its place, or not.
struct Placement {
    int error = 0; ///< An `errno`.
    QString kept = {}; ///< Where the archive is if it has not found its place.

    JobOutcome outcome() const;
};

/// Places a finished archive, or keeps it. Goes on when its page closes.
QCoro::Task<Placement> placeArchive(QString archive, QString output, std::stop_token stop);

/// What the page says about an archive that could not be placed; 0: about one from an earlier
/// start.
QString unplacedText(int error);
