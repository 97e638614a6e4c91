#include "ImageCommand.h"

using namespace Qt::StringLiterals;

Command ImageCommand::makeHybrid(FileSystem fileSystem, const QString &output,
                                 const QString &volumeName, const QString &sourceFolder)
{
    QStringList arguments{u"makehybrid"_s};
    if (fileSystem == FileSystem::Hfs)
        arguments << u"-hfs"_s;
    arguments << u"-o"_s << output << u"-default-volume-name"_s << volumeName << u"-ov"_s
              << u"-quiet"_s << sourceFolder;
    return {.launchPath = u"/usr/bin/hdiutil"_s, .arguments = arguments};
}
