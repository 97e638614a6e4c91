#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QVersionNumber>

struct UpdateFeed;

/// What is kept of earlier checks, in the user defaults. What a feed said is kept for each of the
/// maker's keys: a program that is built with another key begins anew. Interface thread only.
class UpdateMemory
{
public:
    explicit UpdateMemory(const QByteArray &publicKey);

    /// The newest date in a feed with a right signature; invalid before the first. A feed with an
    /// earlier one is a copy that somebody has kept.
    QDateTime newestFeed() const;
    QList<QVersionNumber> withdrawn() const;
    /// Only for a feed whose signature was right. False, and nothing is remembered, if another
    /// program has seen a newer one meanwhile: what is remembered only goes forward.
    bool remember(const UpdateFeed &feed) const;

    /// Null when none is skipped.
    static QVersionNumber skipped();
    static void setSkipped(const QVersionNumber &version);

    /// The last check as the user was told of it: when, and the sentence's key with its argument.
    struct LastCheck {
        QDateTime time; ///< In UTC; invalid before the first check.
        QString result;
        QString argument;

        /// When it was and, if wanted, what it found; empty before the first check.
        QString sentence(bool withResult) const;
    };
    static LastCheck lastCheck();
    static void setLastCheck(const LastCheck &check);

private:
    QString m_group;
};
