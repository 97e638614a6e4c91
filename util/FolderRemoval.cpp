#include "FolderRemoval.h"

#include "FolderAccess.h"
#include "FolderEmptier.h"

#include <QDebug>
#include <QFile>
#include <QString>

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <thread>

using namespace Qt::StringLiterals;

namespace
{

// Who puts new things into the folder while it is removed must not keep us for ever.
constexpr int mostPasses = 4;

FolderRemovalResult refusal(int error, const QByteArray &base, const QByteArray &path)
{
    qInfo().noquote() << u"Nothing removed at \"%1\" below \"%2\": %3"_s.arg(
        QFile::decodeName(path), QFile::decodeName(base), qt_error_string(error));
    return {.removed = 0, .refused = 1, .firstError = error};
}

bool isPlainWay(const QByteArray &path)
{
    const QList<QByteArray> names = path.split('/');
    return !path.contains('\0') && std::ranges::none_of(names, [](const QByteArray &name) {
        return name.isEmpty() || name == "." || name == "..";
    });
}

// The base folder; none with errno set where it is not one to remove anything from.
FileDescriptor openBase(const QByteArray &base)
{
    if (!base.startsWith('/') || base.contains('\0')) {
        errno = EINVAL;
        return {};
    }
    FileDescriptor folder(::open(base.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return {};
    const FileDescriptor root(::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    const auto identity = FolderAccess::identity(folder.get());
    if (!root || !identity || identity == FolderAccess::identity(root.get())) {
        errno = EPERM;
        return {};
    }
    return folder;
}

// Removes the named item if that takes no emptying; true where a folder was left to be emptied.
bool openOrRemove(int parent, const char *name, FileDescriptor &folder, EmptyingTally &tally)
{
    folder = FolderAccess::openFolder(parent, name);
    if (folder || errno == ENOENT)
        return static_cast<bool>(folder);
    const int error = errno;
    const int flags = error == ENOTDIR || error == ELOOP ? 0 : AT_REMOVEDIR;
    if (::unlinkat(parent, name, flags) == 0)
        ++tally.removed;
    else
        tally.refuse(error == EACCES ? EACCES : errno);
    return false;
}

EmptyingTally removeItem(int parent, const char *name, const std::stop_token &stop)
{
    const unsigned helpers = std::clamp(std::thread::hardware_concurrency(), 1u, 2u) - 1;
    EmptyingTally total;
    for (int pass = 0; pass < mostPasses; ++pass) {
        // What refused once may refuse again or not: only the last pass knows what stays.
        total.refused = 0;
        total.firstError = 0;
        FileDescriptor folder;
        if (!openOrRemove(parent, name, folder, total))
            return total;
        const EmptyingTally tally = emptyFolder(std::move(folder), pass == 0 ? helpers : 0, stop);
        total.add(tally);
        if (::unlinkat(parent, name, AT_REMOVEDIR) == 0) {
            ++total.removed;
            return total;
        }
        const int error = stop.stop_requested() ? ECANCELED : errno;
        if (error == ECANCELED || tally.removed == 0 || pass + 1 == mostPasses) {
            if (total.refused == 0)
                total.refuse(error);
            break;
        }
    }
    return total;
}

} // namespace

FolderRemovalResult removeBelow(const QByteArray &base, const QByteArray &path,
                                const std::stop_token &stop)
{
    if (stop.stop_requested())
        return refusal(ECANCELED, base, path);
    if (!isPlainWay(path))
        return refusal(EINVAL, base, path);
    FileDescriptor parent = openBase(base);
    if (!parent)
        return refusal(errno, base, path);
    const qsizetype slash = path.lastIndexOf('/');
    if (slash > 0) {
        parent = FolderAccess::openWayDown(parent.get(), path.first(slash).constData());
        if (!parent && errno == ENOENT)
            return {};
        if (!parent)
            return refusal(errno, base, path);
    }
    const EmptyingTally tally = removeItem(parent.get(), path.mid(slash + 1).constData(), stop);
    if (tally.refused > 0)
        qInfo().noquote() << u"%1 items stayed at \"%2\" below \"%3\": %4"_s.arg(
            QString::number(tally.refused), QFile::decodeName(path), QFile::decodeName(base),
            qt_error_string(tally.firstError));
    return {.removed = tally.removed, .refused = tally.refused, .firstError = tally.firstError};
}
