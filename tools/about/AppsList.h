#pragma once

#include "Http.h"

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVariant>

#include <optional>

/// The configuration of the About page: the maker's applications and social links, a property list
/// whose top level is a dictionary with "Apps" and "Social". Any thread.
struct AppsList {
    QVariantMap dictionary; ///< The whole of it.
    QByteArray bytes; ///< As it was read, at most maxBytes.

    static constexpr qsizetype maxBytes = 256 * 1024;
    static constexpr qsizetype maxApps = 1000;

    /// Nothing for bytes that are not such a property list.
    static std::optional<AppsList> read(const QByteArray &bytes);

    /// "Apps", its first thousand entries; an empty dictionary in place of an entry that is none.
    /// Empty when the key is missing or of another kind.
    QVariantList apps() const;
    QVariantMap social() const; ///< Empty when missing or of another kind.

    /// One blocking load: from `<server>Apps.plist`, else from the file "Apps.plist" in the folder;
    /// what was found is written to that file. An empty server address counts as one that does not
    /// answer. Failures are not reported, and a failed write leaves the file as it was.
    static std::optional<AppsList> load(const QString &server, const QString &folder,
                                        const std::stop_token &stop);
};

/// The address of the maker's configuration server, whose path ends in "/conf/": what the user
/// defaults hold under "Addresses/Configuration", else what was compiled in, else empty. Any
/// thread.
QString configurationServer();

/// A blocking request to that server. What begins with https stays with https, whereto the server
/// may redirect.
HttpReply getConfiguration(const QByteArray &address, std::chrono::milliseconds timeout,
                           qint64 maxBytes, const std::stop_token &stop);

/// Writes the whole file in the folder, or leaves it as it was. A link of that name is replaced and
/// not followed: else it would let anybody who can plant one write to the user's own files.
void saveFile(const QString &folder, const QString &name, const QByteArray &bytes);

/// The web or mail address that a server sent, fit to be opened; empty for anything else: a file, a
/// script, another program's scheme, more than 2,048 characters. A mail keeps its address and
/// subject alone, because what else it says could name the user's files as attachments.
QUrl addressToOpen(const QString &text);
