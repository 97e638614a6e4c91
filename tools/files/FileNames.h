#pragma once

#include <QString>
#include <QStringList>

/// Whether a path ends in a dot and one of the suffixes ("zip", without the dot), in any case.
bool endsInSuffix(const QString &path, const QStringList &suffixes);

/// Whether anything exists at the path. A link that leads nowhere counts: its name is taken, too.
bool itemExists(const QString &path);

/// A path for a new file in the folder, named after its source with the suffix ("/x/Photos" gives
/// "Photos.zip", "clip.avi" gives "clip.m4v"), or after the folder if there is no source. A number
/// follows the name while something of that name exists ("Photos 2.zip").
QString proposedFile(const QString &folder, const QString &source, const QString &suffix);
