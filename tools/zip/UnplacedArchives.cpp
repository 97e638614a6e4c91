#include "UnplacedArchives.h"

#include "MiscTool.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

static QString keepingFolder()
{
    return MiscTool::getAppDocumentFolder() + "/Unplaced"_L1;
}

// Each has a folder of its own, because two can have the same name.
static bool isKept(const QString &archive)
{
    return QFileInfo(QFileInfo(archive).path()).path() == keepingFolder();
}

QString UnplacedArchives::keep(const QString &archive)
{
    if (!QFileInfo(archive).isFile())
        return {};
    if (isKept(archive) || !QDir().mkpath(keepingFolder()))
        return archive;
    QTemporaryDir own(keepingFolder() + "/XXXXXX"_L1);
    const QString kept = own.filePath(QFileInfo(archive).fileName());
    if (!own.isValid() || !QDir().rename(archive, kept))
        return archive;
    own.setAutoRemove(false);
    return kept;
}

QString UnplacedArchives::newest()
{
    const auto folders =
        QDir(keepingFolder()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo &folder : folders) {
        const auto files =
            QDir(folder.filePath()).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
        if (!files.isEmpty())
            return files.constFirst().filePath();
    }
    return {};
}

void UnplacedArchives::remove(const QString &archive)
{
    QFile::remove(archive);
    if (isKept(archive))
        QDir().rmdir(QFileInfo(archive).path());
}
