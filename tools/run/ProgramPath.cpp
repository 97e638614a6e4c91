#include "ProgramPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString ownProgramsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../libexec/toolvane"_L1);
}

QString programPath(const QString &launchPath, const QString &folder)
{
    const QString name = launchPath.section(u'/', -1);
    if (name.isEmpty())
        return launchPath;
    const QFileInfo own(folder + u'/' + name);
    return own.isFile() && own.isExecutable() ? own.filePath() : launchPath;
}
