#pragma once

#include "Command.h"

/// What the pages of disk images ask of the system's image program. Free of side effects.
namespace ImageCommand
{

enum class FileSystem {
    Hfs, ///< One plain HFS volume.
    Hybrid, ///< Whatever the program puts into an image that several systems can read.
};

/// Makes an image of everything in the source folder. A file at the output path is replaced.
Command makeHybrid(FileSystem fileSystem, const QString &output, const QString &volumeName,
                   const QString &sourceFolder);

} // namespace ImageCommand
