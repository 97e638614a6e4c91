#pragma once

#include <QString>

// Paths as texts: nothing here asks the file system.

/// The last name of a path, trailing slashes aside: "c" of "/a/b/c/", "/" of "/", empty of empty.
QString lastPathComponent(const QString &path);

/// The component below the folder, with exactly one slash between them.
QString appendPathComponent(const QString &folder, const QString &component);
