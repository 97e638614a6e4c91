#include "FilePlacement.h"

#include "FileNames.h"
#include "UnpublishedFile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::size_t chunk = 1U << 20U; // between two looks at the stop token

// Two spellings of one name give the same; two hard links of one file do not.
QString entryOf(const QString &path)
{
    const QFileInfo item(path);
    return QDir(item.path()).canonicalPath() + u'/' + item.fileName();
}

int copyBytes(int from, int to, const std::stop_token &stop)
{
    std::vector<char> buffer(chunk);
    while (!stop.stop_requested()) {
        const ssize_t count = read(from, buffer.data(), buffer.size());
        if (count <= 0)
            return count == 0 ? 0 : errno;
        for (ssize_t done = 0; done < count;) {
            const ssize_t written =
                write(to, buffer.data() + done, static_cast<std::size_t>(count - done));
            if (written < 0)
                return errno;
            done += written;
        }
    }
    return ECANCELED;
}

int copyInto(const UnpublishedFile &target, const QString &source, const std::stop_token &stop)
{
    const FileDescriptor from(
        open(QFile::encodeName(source).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat origin = {};
    if (!from || fstat(from.get(), &origin) != 0)
        return errno;
    if (!S_ISREG(origin.st_mode)) // a pipe would never end
        return EINVAL;
    if (const int error = copyBytes(from.get(), target.descriptor(), stop))
        return error;
    // What the target's file system cannot keep is no reason to lose the content.
    [[maybe_unused]] const int mode = fchmod(target.descriptor(), origin.st_mode & 07777U);
    const timespec times[] = {origin.st_atim, origin.st_mtim};
    futimens(target.descriptor(), times);
    struct stat copy = {};
    if (fsync(target.descriptor()) != 0 || fstat(target.descriptor(), &copy) != 0)
        return errno;
    return copy.st_size == origin.st_size ? 0 : EIO;
}

int copyTo(const QString &from, const QString &to, const std::stop_token &stop)
{
    if (itemExists(to))
        return EEXIST; // before gigabytes are copied for nothing
    const QFileInfo place(to);
    UnpublishedFile target(QFile::encodeName(place.path()));
    if (target.error() != 0)
        return target.error();
    if (const int error = copyInto(target, from, stop))
        return error;
    return stop.stop_requested() ? ECANCELED : target.publish(QFile::encodeName(place.fileName()));
}

int place(const QString &from, const QString &to, const std::stop_token &stop)
{
    if (entryOf(from) == entryOf(to))
        return itemExists(from) ? 0 : ENOENT;
    if (stop.stop_requested())
        return ECANCELED;
    if (renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD,
                  QFile::encodeName(to).constData(), RENAME_NOREPLACE)
        == 0)
        return 0;
    const int error = errno == EEXIST ? EEXIST : copyTo(from, to, stop);
    if (error == 0)
        QFile::remove(from);
    return error;
}

} // namespace

int placeFile(const QString &from, const QString &to, const std::stop_token &stop)
{
    const int error = place(from, to, stop);
    if (error != 0)
        qWarning().noquote() << to.simplified() + u": not placed: "_s
                + qt_error_string(error).simplified();
    return error;
}
