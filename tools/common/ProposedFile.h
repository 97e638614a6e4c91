#pragma once

#include <QString>

/// A path for a new file in the folder, named after its source with the suffix ("/x/Photos" gives
/// "Photos.zip", "clip.avi" gives "clip.m4v"), or after the folder where there is no source. A
/// number follows the name while something stands there ("Photos 2.zip").
QString proposedFile(const QString &folder, const QString &source, const QString &suffix);
