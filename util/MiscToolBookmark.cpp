// A bookmark is "TvBm", a format number, the folder's identity and its path, big-endian. It is
// checked on the way in: whatever the data hold, they cause one file status and no more.

#include "MiscTool.h"

#include <QDataStream>
#include <QDebug>
#include <QFile>
#include <QIODevice>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace
{

constexpr quint32 magic = 0x5476426d; // "TvBm"
constexpr quint16 formatNumber = 1;
constexpr int identitySize = 8 + 8 + 8 + 4;

// The path as the bytes of the file system: a file address can name what no QString can.
QByteArray localPath(const QUrl &url)
{
    if (!url.isLocalFile() || !url.host().isEmpty())
        return {};
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
}

QUrl localUrl(const QByteArray &path)
{
    const QString text = QFile::decodeName(path);
    return QFile::encodeName(text) == path
        ? QUrl::fromLocalFile(text)
        : QUrl::fromEncoded("file://" + path.toPercentEncoding("/"));
}

// Inode numbers are used again at once after a removal, and device numbers change with the order in
// which disks are found at start-up; the moment of birth does neither. So the device number is kept
// only if the file system does not record that moment, which is all zero then.
void writeIdentity(QDataStream &stream, const struct statx &status)
{
    const bool hasBirth = (status.stx_mask & STATX_BTIME) != 0;
    const auto birth = hasBirth ? status.stx_btime : statx_timestamp{};
    const quint64 device = hasBirth ? 0 : makedev(status.stx_dev_major, status.stx_dev_minor);
    stream << device << quint64(status.stx_ino) << qint64(birth.tv_sec) << quint32(birth.tv_nsec);
}

// The bookmark of the folder at an absolute path; none, with errno set, if it cannot be read.
std::optional<QByteArray> bookmarkOf(const QByteArray &path)
{
    if (!path.startsWith('/') || path.contains('\0')) {
        errno = EINVAL;
        return std::nullopt;
    }
    struct statx status = {};
    if (::statx(AT_FDCWD, path.constData(), 0, STATX_INO | STATX_BTIME, &status) != 0)
        return std::nullopt;
    QByteArray bookmark;
    QDataStream stream(&bookmark, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << magic << formatNumber;
    writeIdentity(stream, status);
    stream << path;
    return bookmark;
}

// The path of a bookmark; none, with errno set: EBADMSG for data that bookmarkOf() did not make,
// ESTALE if another folder is at the path now, else why its status cannot be read.
std::optional<QByteArray> pathOf(const QByteArray &bookmark)
{
    quint32 foundMagic = 0;
    quint16 foundFormat = 0;
    QByteArray path;
    QDataStream stream(bookmark);
    stream.setVersion(QDataStream::Qt_6_4);
    stream >> foundMagic >> foundFormat;
    stream.skipRawData(identitySize);
    stream >> path;
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || foundMagic != magic
        || foundFormat != formatNumber) {
        errno = EBADMSG;
        return std::nullopt;
    }
    const std::optional<QByteArray> present = bookmarkOf(path);
    if (!present)
        return std::nullopt;
    if (*present != bookmark) {
        errno = ESTALE;
        return std::nullopt;
    }
    return path;
}

} // namespace

std::optional<QByteArray> MiscTool::bookmarkForURL(const QUrl &url)
{
    std::optional<QByteArray> bookmark = bookmarkOf(localPath(url));
    if (!bookmark)
        qInfo().noquote() << u"No bookmark for %1: %2"_s.arg(url.toDisplayString(),
                                                             qt_error_string(errno));
    return bookmark;
}

std::optional<QUrl> MiscTool::urlForBookmark(const QByteArray &bookmark)
{
    const std::optional<QByteArray> path = pathOf(bookmark);
    if (!path) {
        qInfo().noquote() << u"The bookmark is of no use any more: %1"_s.arg(
            qt_error_string(errno));
        return std::nullopt;
    }
    return localUrl(*path);
}
