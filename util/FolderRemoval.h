#pragma once

#include <QByteArray>

#include <cstdint>
#include <stop_token>

/// Whether a removal adds up what it frees, which costs a look at each item before it goes.
enum class FreedBytes { Ignore, Count };

/// The result of a removal.
struct FolderRemovalResult {
    std::uint64_t removed = 0; ///< Files, links and folders that are gone.
    std::uint64_t freed =
        0; ///< If counted: what they had on the disk, in bytes; the item's own entry aside.
    std::uint64_t refused = 0; ///< Items that stayed, not counting the folders around them.
    int firstError = 0; ///< errno of one of the refusals; 0 without any.

    void add(const FolderRemovalResult &other);
    void gone(std::uint64_t bytes); ///< Counts one item that was removed.
    void refuse(int error); ///< Counts one item that stayed.
};

/// Removes the item at a relative path below a base folder, with everything in it; an item that
/// does not exist is not an error. Meant for folders that the user gave up, while other programs
/// still work in them:
/// - A link is never followed. Links inside are removed as links; if the item itself is a link,
///   only that link goes. If a folder on the way to the item is a link (the base's own path
///   excepted), nothing is removed: what is behind it may belong to something else.
/// - Nothing that is mounted is entered, neither the item itself nor anything below it; it stays,
///   as do the folders around it. The error is then EXDEV. The folders on the way to the item may
///   be mounted.
/// - What cannot be removed (immutable, in a folder without permission) stays, and the rest goes.
///   Permissions are never changed.
/// - Names are bytes; any depth, with a few dozen descriptors and some megabytes of memory.
///
/// Refused as a whole, with a line in the system log: a base that is empty, relative, unreadable or
/// "/" under whatever name; a path that is empty, absolute, or has an empty, "." or ".." component;
/// a NUL in either. Otherwise one line says how much stayed, if anything did.
/// Uses two threads; may be called on any thread, takes as long as it takes. After a stop request
/// it leaves what it has not removed yet; the error is then ECANCELED unless something else was
/// refused before.
FolderRemovalResult removeBelow(const QByteArray &base, const QByteArray &path,
                                const std::stop_token &stop = {},
                                FreedBytes freed = FreedBytes::Ignore);
