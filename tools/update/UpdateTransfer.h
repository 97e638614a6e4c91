#pragma once

#include "UpdateFeed.h"
#include "UpdateSource.h"

#include <atomic>
#include <stop_token>

/// Why a feed or a file did not arrive as it should have.
struct UpdateProblem {
    enum class Kind {
        None,
        UnsafeAddress,
        Unreachable,
        TimedOut,
        TooLarge,
        Status, ///< The server answered with an error; see detail.
        NotAFeed,
        Unsigned,
        WrongSignature,
        NoDate,
        Older, ///< Than a feed that was seen before.
        NoSignatureLibrary,
        Incomplete,
        NotWritten, ///< See detail.
        Stopped,
    };

    Kind kind = Kind::None;
    QString detail = {}; ///< A number or the system's own words, for the sentence.

    explicit operator bool() const { return kind != Kind::None; }

    /// One sentence for the user.
    QString sentence() const;
};

struct FetchedFeed {
    UpdateProblem problem;
    UpdateFeed feed = {}; ///< Empty if there is a problem.
};

/// The feed, if it can be trusted: with a key it must be signed and not be older than `newestSeen`
/// (an invalid one: nothing was seen yet). Without a key any feed will do, to be looked at only.
/// Blocks: it belongs on a worker thread, as does fetchFile().
FetchedFeed fetchFeed(const UpdateSource &source, const QDateTime &newestSeen,
                      const std::stop_token &stop);

struct FetchedFile {
    UpdateProblem problem;
    QString path = {}; ///< Empty if there is a problem.
};

/// Fetches an offered file into the folder, which is made when missing. The file appears there only
/// once it is whole, of the stated length and rightly signed; under its own name, or, if that name
/// is taken, with a number before its suffix. Nothing else is left in the folder. `received` counts
/// the bytes as they come.
FetchedFile fetchFile(const UpdateItem &item, const QByteArray &publicKey, const QString &folder,
                      std::atomic<qint64> &received, const std::stop_token &stop);

/// What to call the file of an item: the last part of its address if that is a plain name.
QString fileNameOf(const UpdateItem &item);
