#pragma once

#include "Http.h"

#include <QString>

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
    QString detail = {}; ///< A number or the system's own words, to stand in the sentence.

    explicit operator bool() const { return kind != Kind::None; }

    /// None for a reply with the file that was asked for.
    static UpdateProblem of(const HttpReply &reply);
    /// One sentence for the user.
    QString sentence() const;
};
