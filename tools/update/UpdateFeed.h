#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QVersionNumber>

#include <optional>

/// One version that a feed announces. Every field comes from the server: nothing in it is safe to
/// be interpreted as markup or used as a file name.
struct UpdateItem {
    QVersionNumber version = {}; ///< Normalised: 1.2.0 is 1.2. Never null.
    QString shortVersion = {}; ///< What people call it; else its digits.
    QVersionNumber minimumSystem = {}; ///< Null: runs everywhere.
    QString system = {}; ///< "linux", "macos", …; empty: for all.
    QString channel = {}; ///< Empty: for everybody.
    QString notes = {}; ///< Plain text, whatever the feed holds.
    QByteArray address = {}; ///< Of the file; empty if the item has none.
    qint64 length = 0; ///< Of the file, in bytes; 0 if the feed does not say.
    QByteArray signature = {}; ///< Ed25519, over the file's bytes; may be missing.
    bool withdrawn = false; ///< The maker has taken this version back.
};

/// A feed of versions: RSS 2.0, as the RSS Advisory Board (rssboard.org) keeps it, with the
/// elements that application-cast feeds have added to it. What is read: the channel's
/// `lastBuildDate`; of each item `version`, `shortVersionString`, `minimumSystemVersion`,
/// `channel`, `description` and the `enclosure` with its address, length, system and signature; and
/// of our own name space, the channel's `expires` and an item's `withdrawn`. Everything else is
/// skipped.
struct UpdateFeed {
    QDateTime date = {}; ///< In UTC, as the next; invalid if the feed does not say.
    QDateTime expiry = {}; ///< From then on there should be a newer feed.
    QList<UpdateItem> items = {}; ///< In the feed's order; only those with a numeric version.

    static constexpr qsizetype maxBytes = 256 * 1024;
    static constexpr int maxItems = 200;

    /// Nothing for bytes that are not such a feed: no XML, a document type (and with it, entities),
    /// another top element, more than the limits. Any thread.
    static std::optional<UpdateFeed> read(QByteArrayView bytes);
};

/// A feed and the maker's signature over it, which is its last line:
///
///     <!-- edSignature: (Base64) -->
///
/// What is signed is every byte before that line. One file thus holds both, so that no reader gets
/// a new feed with an old signature while the maker publishes.
struct SignedFeed {
    QByteArrayView feed;
    QByteArray signature = {}; ///< Empty when the feed has no such line.

    static SignedFeed split(QByteArrayView bytes);
};

/// What decides which of a feed's versions suits this program, on this system, for this user.
struct UpdateRules {
    QVersionNumber installed = {};
    QVersionNumber system = {}; ///< Null if unknown; then no minimum keeps a version away.
    QString systemName = {}; ///< As a feed calls it.
    QString channel = {}; ///< The user's choice; empty for the versions that are for everybody.
    QList<QVersionNumber> withdrawn = {}; ///< Seen as withdrawn in any earlier feed.

    /// For the program and the machine that run now. On Linux the system's version is the kernel's:
    /// the one number that means the same in every distribution.
    static UpdateRules current();
};

/// The newest version of the feed that suits, or nothing. What is not offered: a version that is
/// not newer than the installed one, is withdrawn, is for another system or channel, has no
/// signature or no length, is larger than 4 GiB, or lies at an unsafe address. Whether a signature
/// is right is known only when the file is there.
std::optional<UpdateItem> chooseOffer(const UpdateFeed &feed, const UpdateRules &rules);

/// A version made of numbers and dots, normalised; null for anything else ("1.2-beta").
QVersionNumber versionOf(QStringView text);

/// Whether nobody between us and the server of this address can change what it answers: https, or
/// plain http to 127.0.0.1 and [::1], for trying out.
bool isSafeAddress(const QByteArray &address);
