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

// A program that keeps putting new items into the folder must not keep this going for ever.
constexpr int maxPasses = 4;

QString reason(int error)
{
    return error == EXDEV ? u"something is mounted there"_s : qt_error_string(error);
}

FolderRemovalResult refusal(int error, const QByteArray &base, const QByteArray &path)
{
    qInfo().noquote() << u"Nothing removed at \"%1\" below \"%2\": %3"_s.arg(
        QFile::decodeName(path), QFile::decodeName(base), reason(error));
    return {.refused = 1, .firstError = error};
}

bool isPlainPath(const QByteArray &path)
{
    const QList<QByteArray> names = path.split('/');
    return !path.contains('\0') && std::ranges::none_of(names, [](const QByteArray &name) {
        return name.isEmpty() || name == "." || name == "..";
    });
}

// The base folder; none, with errno set, if nothing may be removed from it.
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

// Removes the named item if it need not be emptied first; true if it is a folder to be emptied.
bool openOrRemove(int parent, const char *name, FileDescriptor &folder, FolderRemovalResult &total)
{
    folder = FolderAccess::openFolderOfSameMount(parent, name);
    if (folder || errno == ENOENT)
        return static_cast<bool>(folder);
    const int error = errno;
    if (error == EXDEV) {
        total.refuse(error);
        return false;
    }
    const int flags = error == ENOTDIR || error == ELOOP ? 0 : AT_REMOVEDIR;
    const auto entry = FolderAccess::entry(parent, name);
    if (::unlinkat(parent, name, flags) == 0)
        total.gone(flags == 0 && entry ? entry->freed : 0);
    else
        total.refuse(error == EACCES ? EACCES : errno);
    return false;
}

FolderRemovalResult removeItem(int parent, const char *name, const std::stop_token &stop,
                               FreedBytes freed)
{
    const unsigned helpers = std::clamp(std::thread::hardware_concurrency(), 1u, 2u) - 1;
    FolderRemovalResult total;
    for (int pass = 0; pass < maxPasses; ++pass) {
        // What could not be removed once may go in the next pass: only the last one counts what
        // stays.
        total.refused = 0;
        total.firstError = 0;
        FileDescriptor folder;
        if (!openOrRemove(parent, name, folder, total))
            return total;
        const FolderRemovalResult emptied =
            emptyFolder(std::move(folder), pass == 0 ? helpers : 0, stop, freed);
        total.add(emptied);
        if (::unlinkat(parent, name, AT_REMOVEDIR) == 0) {
            total.gone(0);
            return total;
        }
        const int error = stop.stop_requested() ? ECANCELED : errno;
        if (error == ECANCELED || emptied.removed == 0 || pass + 1 == maxPasses) {
            if (total.refused == 0)
                total.refuse(error);
            break;
        }
    }
    return total;
}

} // namespace

void FolderRemovalResult::gone(std::uint64_t bytes)
{
    ++removed;
    freed += bytes;
}

void FolderRemovalResult::refuse(int error)
{
    ++refused;
    if (firstError == 0)
        firstError = error;
}

void FolderRemovalResult::add(const FolderRemovalResult &other)
{
    removed += other.removed;
    freed += other.freed;
    refused += other.refused;
    if (firstError == 0)
        firstError = other.firstError;
}

FolderRemovalResult removeBelow(const QByteArray &base, const QByteArray &path,
                                const std::stop_token &stop, FreedBytes freed)
{
    if (stop.stop_requested())
        return refusal(ECANCELED, base, path);
    if (!isPlainPath(path))
        return refusal(EINVAL, base, path);
    FileDescriptor parent = openBase(base);
    if (!parent)
        return refusal(errno, base, path);
    const qsizetype slash = path.lastIndexOf('/');
    if (slash > 0) {
        parent = FolderAccess::openFolderBelow(parent.get(), path.first(slash).constData());
        if (!parent && errno == ENOENT)
            return {};
        if (!parent)
            return refusal(errno, base, path);
    }
    const FolderRemovalResult result =
        removeItem(parent.get(), path.mid(slash + 1).constData(), stop, freed);
    if (result.refused > 0)
        qInfo().noquote() << u"%1 items stayed at \"%2\" below \"%3\": %4"_s.arg(
            QString::number(result.refused), QFile::decodeName(path), QFile::decodeName(base),
            reason(result.firstError));
    return result;
}
