#include "FolderSize.h"
#include "MiscTool.h"
#include "PathText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <pwd.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

QByteArray homeOfRealUser()
{
    std::vector<char> texts(1024);
    struct passwd record = {};
    struct passwd *found = nullptr;
    while (::getpwuid_r(::getuid(), &record, texts.data(), texts.size(), &found) == ERANGE)
        texts.resize(texts.size() * 2);
    return found ? QByteArray(found->pw_dir) : QByteArray();
}

std::optional<std::int64_t> blocksOfRoot(fsblkcnt_t statvfs::*blocks)
{
    struct statvfs status = {};
    if (::statvfs("/", &status) != 0)
        return std::nullopt;
    return static_cast<std::int64_t>(status.f_frsize * status.*blocks);
}

} // namespace

QString MiscTool::getUserHome()
{
    QByteArray home = homeOfRealUser();
    while (home.size() > 1 && home.endsWith('/'))
        home.chop(1);
    return QFile::decodeName(home);
}

QString MiscTool::getDownloadFolder()
{
    const QString home = getUserHome();
    return home.isEmpty() ? home : appendPathComponent(home, u"Downloads"_s);
}

std::optional<std::int64_t> MiscTool::getDiskTotalSize()
{
    return blocksOfRoot(&statvfs::f_blocks);
}

std::optional<std::int64_t> MiscTool::getDiskAvailableSize()
{
    return blocksOfRoot(&statvfs::f_bavail);
}

std::int64_t MiscTool::getLocalFileSize(const QString &path)
{
    struct stat status = {};
    if (path.contains(u'\0') || ::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return 0;
    return status.st_size;
}

std::int64_t MiscTool::getSize(const QString &path)
{
    return folderSize(QFile::encodeName(path));
}

QString MiscTool::getAppDocumentFolder()
{
    // Not the user's own Documents: what we update and remove there would be the user's.
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Toolvane"_L1;
    const QString folder = own + "/Documents"_L1;
    if (!QFileInfo::exists(folder)) {
        // The folders that lead there get the modes that the user's own settings give.
        QDir().mkpath(own);
        QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return folder;
}
