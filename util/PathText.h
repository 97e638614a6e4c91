#pragma once

#include <QString>

// Paths as texts: nothing here reads the file system. Any thread.

namespace PathText
{
inline QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}
} // namespace PathText

/// The last name of a path, trailing slashes aside: "c" of "/a/b/c/", "/" of "/", empty of empty.
inline QString lastPathComponent(const QString &path)
{
    const QString trimmed = PathText::withoutTrailingSlashes(path);
    return trimmed.size() == 1 ? trimmed : trimmed.mid(trimmed.lastIndexOf(u'/') + 1);
}

/// The component below the folder, with exactly one slash between them.
inline QString appendPathComponent(const QString &folder, const QString &component)
{
    const QString trimmed = PathText::withoutTrailingSlashes(folder);
    return trimmed.endsWith(u'/') ? trimmed + component : trimmed + u'/' + component;
}
