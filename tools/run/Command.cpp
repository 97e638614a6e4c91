#include "Command.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

JobOutcome CommandResult::outcome() const
{
    if (succeeded())
        return JobOutcome::Succeeded;
    const bool isStopped = end == End::Cancelled || end == End::OwnerGone;
    return isStopped ? JobOutcome::Stopped : JobOutcome::Failed;
}

QString CommandResult::description() const
{
    switch (end) {
    case End::CouldNotStart:
        return u"could not start: %1"_s.arg(reason.simplified());
    case End::Exited:
        return u"exited with status %1"_s.arg(number);
    case End::Killed:
        return u"killed by signal %1"_s.arg(number);
    case End::Cancelled:
        return u"stopped on request"_s;
    case End::OwnerGone:
        return u"stopped because its owner is gone"_s;
    }
    Q_UNREACHABLE();
}

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

bool reportsProgress(const QString &program, const QString &folder)
{
    static constexpr QLatin1StringView names[] = {"zip"_L1, "unzip"_L1, "hdiutil"_L1,
                                                  "avconvert"_L1, "say"_L1};
    return std::ranges::any_of(
        names, [&](QLatin1StringView name) { return program == folder + u'/' + name; });
}
