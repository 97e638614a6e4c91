#include "FilePlacement.h"

#include "FileCopy.h"
#include "UnpublishedFile.h"

#include <QDebug>
#include <QFile>
#include <QtConcurrentRun>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

struct Place {
    explicit Place(const QString &given) : path(QFile::encodeName(given))
    {
        const qsizetype slash = path.lastIndexOf('/');
        folder = slash < 0 ? QByteArray(".") : path.left(slash + 1);
        name = path.mid(slash + 1);
    }

    QByteArray path;
    QByteArray folder;
    QByteArray name;
};

bool isSame(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// Two spellings of one name; two hard links of one file are not.
bool isSameEntry(const Place &one, const Place &other)
{
    struct stat first = {};
    struct stat second = {};
    return one.name == other.name && stat(one.folder.constData(), &first) == 0
        && stat(other.folder.constData(), &second) == 0 && isSame(first, second);
}

int copyInto(const UnpublishedFile &target, const QByteArray &source, const std::stop_token &stop)
{
    if (target.error() != 0)
        return target.error();
    const FileDescriptor from(open(source.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat origin = {};
    if (!from || fstat(from.get(), &origin) != 0)
        return errno;
    if (!S_ISREG(origin.st_mode)) // a pipe would never end
        return EINVAL;
    if (const int error = copyBytes(from.get(), target.descriptor(), stop); error != 0)
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

int copyTo(const Place &from, const Place &to, const std::stop_token &stop)
{
    struct stat standing = {};
    if (lstat(to.path.constData(), &standing) == 0)
        return EEXIST; // before gigabytes are copied for nothing
    UnpublishedFile target(to.folder);
    if (const int error = copyInto(target, from.path, stop); error != 0)
        return error;
    return stop.stop_requested() ? ECANCELED : target.publish(to.name);
}

FilePlacement place(const Place &from, const Place &to, const std::stop_token &stop)
{
    struct stat source = {};
    if (isSameEntry(from, to))
        return lstat(from.path.constData(), &source) == 0
            ? FilePlacement(FilePlacement::End::AlreadyThere, 0)
            : FilePlacement(FilePlacement::End::NotPlaced, errno);
    int error = ECANCELED;
    if (!stop.stop_requested()) {
        if (renameat2(AT_FDCWD, from.path.constData(), AT_FDCWD, to.path.constData(),
                      RENAME_NOREPLACE)
            == 0)
            return {FilePlacement::End::Renamed, 0};
        error = errno == EEXIST ? EEXIST : copyTo(from, to, stop);
    }
    if (error != ECANCELED) // who stops a run loses nothing
        unlink(from.path.constData());
    return error == 0 ? FilePlacement(FilePlacement::End::Copied, 0)
                      : FilePlacement(FilePlacement::End::NotPlaced, error);
}

FilePlacement placeAndLog(const QString &from, const QString &to, const std::stop_token &stop)
{
    const FilePlacement placement = place(Place(from), Place(to), stop);
    if (!placement.succeeded())
        qWarning().noquote() << to.simplified() + u": "_s + placement.description();
    return placement;
}

} // namespace

bool FilePlacement::wasStopped() const
{
    return m_end == End::NotPlaced && m_error == ECANCELED;
}

QString FilePlacement::description() const
{
    switch (m_end) {
    case End::Renamed:
        return u"renamed into place"_s;
    case End::Copied:
        return u"copied into place"_s;
    case End::AlreadyThere:
        return u"already in its place"_s;
    case End::NotPlaced:
        return u"not placed: "_s + qt_error_string(m_error).simplified();
    }
    Q_UNREACHABLE();
}

QFuture<FilePlacement> placeFile(const QString &from, const QString &to,
                                 const std::stop_token &stop)
{
    return QtConcurrent::run(placeAndLog, from, to, stop);
}
