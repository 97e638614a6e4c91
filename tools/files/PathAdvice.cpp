#include "PathAdvice.h"

#include "FileNames.h"
#include "FolderSize.h"
#include "MiscTool.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

bool allows(const QString &path, int access)
{
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), access, AT_EACCESS) == 0;
}

QString folderOf(const QString &path)
{
    return QFileInfo(path).path();
}

// Where a folder that is missing would be made.
QString nearestExisting(QString folder)
{
    while (!QFileInfo::exists(folder) && folder != folderOf(folder))
        folder = folderOf(folder);
    return folder;
}

std::optional<qint64> available(const QString &folder)
{
    struct statvfs status = {};
    if (::statvfs(QFile::encodeName(folder).constData(), &status) != 0 || status.f_blocks == 0)
        return std::nullopt;
    return static_cast<qint64>(status.f_bavail * status.f_frsize);
}

QString adviceAboutSource(bool wantsFolder, const PathFacts &facts)
{
    if (!facts.exists)
        return qtTrId(wantsFolder ? "Path.NoSuchFolder" : "Path.NoSuchFile");
    if (facts.isFolder != wantsFolder)
        return qtTrId(wantsFolder ? "Path.NoFolder" : "Path.NoFile");
    if (!facts.isReadable)
        return qtTrId("Path.Unreadable");
    return {};
}

QString adviceAboutFolder(const PathFacts &facts)
{
    if (facts.exists && !facts.isFolder)
        return qtTrId("Path.NoFolder");
    if (!facts.isWritable)
        return qtTrId("Path.Unwritable");
    return facts.isMadeTaken ? qtTrId("Path.FolderTaken") : QString();
}

QString adviceAboutFile(bool isReplaced, const PathFacts &facts)
{
    if (facts.exists && !isReplaced)
        return qtTrId("Path.Taken");
    if (facts.isFolder)
        return qtTrId("Path.NoFile");
    if (!facts.hasFolder)
        return qtTrId("Path.NoPlace");
    if (!facts.isWritable)
        return qtTrId("Path.Unwritable");
    return {};
}

QString adviceAboutFailure(PathUse use, const PathFacts &facts)
{
    switch (use) {
    case PathUse::SourceFolder:
    case PathUse::SourceFile:
        return adviceAboutSource(use == PathUse::SourceFolder, facts);
    case PathUse::OutputFolder:
        return adviceAboutFolder(facts);
    case PathUse::NewFile:
    case PathUse::ReplacedFile:
        return adviceAboutFile(use == PathUse::ReplacedFile, facts);
    }
    Q_UNREACHABLE();
}

QString sizeText(qint64 bytes)
{
    return MiscTool::convertBytes(static_cast<std::uint64_t>(bytes));
}

// It works, but perhaps not as the user thinks.
QString adviceAboutSurprise(const PathQuestion &question, const PathFacts &facts)
{
    if (question.needed && facts.available && *question.needed > *facts.available)
        return qtTrId("Path.NoRoom").arg(sizeText(*question.needed), sizeText(*facts.available));
    if (question.use == PathUse::ReplacedFile && facts.exists)
        return qtTrId("Path.Replaced");
    if (question.path.isEmpty())
        return qtTrId("Path.CurrentFolder").arg(QDir::currentPath());
    if (!QDir::isAbsolutePath(question.path))
        return qtTrId("Path.Relative").arg(QDir::currentPath());
    if (question.use == PathUse::OutputFolder && !facts.exists)
        return qtTrId("Path.WillBeMade");
    return {};
}

} // namespace

PathFacts pathFacts(const PathQuestion &question)
{
    const QFileInfo item(question.path.isEmpty() ? u"."_s : question.path);
    PathFacts facts{.exists = itemExists(item.filePath()), .isFolder = item.isDir()};
    facts.isReadable = allows(item.filePath(), facts.isFolder ? R_OK | X_OK : R_OK);
    const bool isOutputFolder = question.use == PathUse::OutputFolder;
    const QString folder = isOutputFolder ? nearestExisting(item.filePath()) : item.path();
    facts.hasFolder = QFileInfo(folder).isDir();
    facts.isWritable = facts.hasFolder && allows(folder, W_OK | X_OK);
    facts.isMadeTaken = !question.made.isEmpty() && itemExists(question.made);
    facts.available = available(folder);
    return facts;
}

QString pathAdvice(const PathQuestion &question, const PathFacts &facts)
{
    const PathUse use = question.use;
    if (question.path.isEmpty() && (use != PathUse::OutputFolder || question.made.isEmpty()))
        return {}; // the field's own words say what belongs there
    const QString failure = adviceAboutFailure(use, facts);
    return failure.isEmpty() ? adviceAboutSurprise(question, facts) : failure;
}

qint64 sourceSize(const QString &path, const std::stop_token &stop)
{
    const QFileInfo source(path);
    return source.isDir() ? folderSize(QFile::encodeName(path), stop) : source.size();
}

QString withHomeFolder(const QString &path)
{
    return path.startsWith("~/"_L1) ? QDir::homePath() + path.mid(1) : path;
}
