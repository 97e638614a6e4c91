#include "ZipCommand.h"

#include "PathText.h"

using namespace Qt::StringLiterals;

QString ZipCommand::compressRatio(int level)
{
    switch (level) {
    case Better:
        return u"-9"_s;
    case Faster:
        return u"-1"_s;
    default:
        return u"-0"_s;
    }
}

Command ZipCommand::pack(const QString &sourceFolder, const QString &archive,
                         const QString &compressRatio)
{
    return {.launchPath = u"/usr/bin/zip"_s,
            .arguments = {u"-r"_s, archive, u"."_s, compressRatio, u"-q"_s},
            .workingDirectory = sourceFolder};
}

QString ZipCommand::temporaryArchive(const QString &workingFolder, const QString &output)
{
    return appendPathComponent(workingFolder, lastPathComponent(output));
}

QString ZipCommand::writtenArchive(const QString &archive)
{
    return lastPathComponent(archive).contains(u'.') ? archive : archive + u".zip"_s;
}
