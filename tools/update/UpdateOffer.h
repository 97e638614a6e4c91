#pragma once

#include "UpdateFeed.h"

#include <QByteArray>
#include <QString>
#include <QVersionNumber>

/// What decides which of a feed's versions suits this program, on this system, for this user.
struct UpdateRules {
    QVersionNumber installed = {};
    QVersionNumber system = {}; ///< Null where unknown; then no minimum keeps a version away.
    QString systemName = {}; ///< As a feed calls it.
    QString channel = {}; ///< Of the user's choice; empty for the versions that are for everybody.
    QList<QVersionNumber> withdrawn = {}; ///< Seen as withdrawn in any feed before.

    /// For the program and the machine that run now. On Linux the system's version is the kernel's:
    /// the one number that means the same in every distribution.
    static UpdateRules current();
};

/// The newest version of the feed that suits; none when there is none. What is not offered: a
/// version that is not newer than the installed one, is withdrawn, is for another system or
/// channel, has no signature or no length, or lies at an address that anybody on the way could
/// answer for (plain http, except on this machine itself). Whether a signature is right is known
/// only when the file is there.
std::optional<UpdateItem> chooseOffer(const UpdateFeed &feed, const UpdateRules &rules);

/// Whether nobody between us and the server of this address can change what it answers: https, or
/// plain http to 127.0.0.1 and [::1], for trying out.
bool isSafeAddress(const QByteArray &address);

/// Whether the address is plain http; of a safe one: whether it leads to this machine.
bool isPlainHttp(const QByteArray &address);
