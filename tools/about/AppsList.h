#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>
#include <stop_token>

/// The configuration of the About page: the maker's applications and social links, a property list
/// whose top level is a dictionary with "Apps" and "Social". Any thread.
struct AppsList {
    QVariantMap dictionary; ///< The whole of it.
    QByteArray bytes; ///< As it was read, at most mostBytes.

    static constexpr qsizetype mostBytes = 256 * 1024;
    static constexpr qsizetype mostApps = 1000;

    /// None for what is no such property list.
    static std::optional<AppsList> read(const QByteArray &bytes);

    /// "Apps", its first thousand entries; what is no dictionary stands as an empty one. Empty when
    /// the key is missing or of another kind.
    QVariantList apps() const;
    QVariantMap social() const; ///< Empty when missing or of another kind.

    /// One blocking load: from `<server>Apps.plist`, else from the file "Apps.plist" in the folder;
    /// what was found is written to that file. An empty server address counts as one that does not
    /// answer. Failures say nothing, and a failed write leaves the file as it was.
    static std::optional<AppsList> load(const QString &server, const QString &folder,
                                        const std::stop_token &stop);
};
