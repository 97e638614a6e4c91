#include "UnzipCommand.h"

#include "PathText.h"

using namespace Qt::StringLiterals;

constexpr qsizetype extensionLength = 4;

std::optional<QString> UnzipCommand::destination(const QString &archive,
                                                 const QString &outputFolder)
{
    const QString fileName = lastPathComponent(archive);
    if (fileName.size() < extensionLength)
        return std::nullopt;
    const QString name = fileName.chopped(extensionLength);
    return outputFolder.isEmpty() ? name : appendPathComponent(outputFolder, name);
}

Command UnzipCommand::extract(const QString &archive, const QString &destination)
{
    return {.launchPath = u"/usr/bin/unzip"_s,
            .arguments = {u"-q"_s, archive, u"-d"_s, destination}};
}
