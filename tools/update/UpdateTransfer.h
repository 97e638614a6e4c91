#pragma once

#include "UpdateFeed.h"
#include "UpdateProblem.h"
#include "UpdateSource.h"

#include <atomic>
#include <stop_token>

// The two things that are asked of the update server. Both block: they belong on a worker thread.

struct FetchedFeed {
    UpdateProblem problem;
    UpdateFeed feed = {}; ///< Empty where there is a problem.
};

/// The feed, if it can be believed: with a key it must be signed and not be older than `newestSeen`
/// (an invalid one: nothing was seen yet). Without a key any feed will do, to be looked at only.
FetchedFeed fetchFeed(const UpdateSource &source, const QDateTime &newestSeen,
                      const std::stop_token &stop);

struct FetchedFile {
    UpdateProblem problem;
    QString path = {}; ///< Empty where there is a problem.
};

/// Fetches an offered file into the folder, which is made when missing. The file appears there only
/// once it is whole, of the stated length and rightly signed; under its own name, or, where that
/// name is taken, with a number before its suffix. Nothing else is left in the folder. `received`
/// counts the bytes as they come.
FetchedFile fetchFile(const UpdateItem &item, const QByteArray &publicKey, const QString &folder,
                      std::atomic<qint64> &received, const std::stop_token &stop);

/// What to call the file of an item: the last part of its address if that is a decent name.
QString fileNameOf(const UpdateItem &item);
