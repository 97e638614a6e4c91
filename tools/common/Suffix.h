#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>

/// Whether a path ends in a dot and one of the suffixes ("zip", without the dot), in any case.
inline bool endsInSuffix(const QString &path, const QStringList &suffixes)
{
    return std::ranges::any_of(suffixes, [&path](const QString &suffix) {
        return path.endsWith(u'.' + suffix, Qt::CaseInsensitive);
    });
}
