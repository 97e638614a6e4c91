#pragma once

#include "UpdateFeed.h"
#include "UpdateSource.h"

#include <sys/types.h>

#include <atomic>
#include <stop_token>

/// Why a feed or a file did not arrive as it should have.
struct UpdateProblem {
    enum class Kind {
        None,
        UnsafeAddress,
        Unreachable, ///< Nothing answered.
        BrokenOff,
        Garbled, ///< What answered makes no sense.
        Certificate,
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
        Changed, ///< The downloaded file is not the one that was checked.
        NothingOpens, ///< No program could open the downloaded file.
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

/// A file that was checked, and how to see later that it is still the same one.
struct CheckedFile {
    QString path = {}; ///< Absolute; empty: none.
    dev_t device = 0;
    ino_t inode = 0;
    QByteArray hash = {}; ///< UpdateSignature::hash() of it.

    /// Whether the path leads to this very file, with the bytes that were checked. Blocks for as
    /// long as it takes to read the file; false after a stop request.
    bool isUnchanged(const std::stop_token &stop) const;
};

struct FetchedFile {
    UpdateProblem problem;
    CheckedFile file = {}; ///< None if there is a problem.
};

/// Fetches an offered file into the folder, which is made when missing. The file appears there only
/// once it is whole, of the stated length and rightly signed; under its own name, or, if that name
/// is taken, with a number before its suffix. Nothing else is left in the folder. `received` counts
/// the bytes as they come.
FetchedFile fetchFile(const UpdateItem &item, const QByteArray &publicKey, const QString &folder,
                      std::atomic<qint64> &received, const std::stop_token &stop);

/// What to call the file of an item: the last part of its address if that is a plain name.
QString fileNameOf(const UpdateItem &item);
