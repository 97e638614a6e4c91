#pragma once

#include "Command.h"

/// How the Zip page uses the system's zip program. Everything here is free of side effects.
namespace ZipCommand
{

/// How hard zip is to try; the values are the tags of the page's pop-up.
enum Level { Store = 0, Faster = 1, Better = 2 };

/// The program's option for a level; a level that is none of the three stores only.
QString compressRatio(int level);

/// Packs everything in the folder, the folder's own name left out, into the archive.
Command pack(const QString &sourceFolder, const QString &archive, const QString &compressRatio);

/// The archive is first written in the working folder, under the file name of the output.
QString temporaryArchive(const QString &workingFolder, const QString &output);

/// The file that zip really writes for an archive name: it adds ".zip" to a name without a dot.
QString writtenArchive(const QString &archive);

} // namespace ZipCommand
