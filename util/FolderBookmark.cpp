#include "FolderBookmark.h"

#include <QDataStream>
#include <QIODevice>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cerrno>

namespace
{

constexpr quint32 magic = 0x5476426d; // "TvBm"
constexpr quint16 formatNumber = 1;

// Inode numbers are used again at once after a removal, and device numbers change with the order in
// which disks are found at start-up; the moment of birth does neither. So the device number stands
// only where the file system does not keep that moment, which is all zero then.
struct Identity {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 bornSeconds = 0;
    quint32 bornNanoseconds = 0;
    bool operator==(const Identity &) const = default;
};

std::optional<Identity> identityOf(const QByteArray &path)
{
    if (!path.startsWith('/') || path.contains('\0')) {
        errno = EINVAL;
        return std::nullopt;
    }
    struct statx status = {};
    if (::statx(AT_FDCWD, path.constData(), 0, STATX_INO | STATX_BTIME, &status) != 0)
        return std::nullopt;
    if ((status.stx_mask & STATX_BTIME) == 0)
        return Identity{.device = makedev(status.stx_dev_major, status.stx_dev_minor),
                        .inode = status.stx_ino};
    return Identity{.device = 0,
                    .inode = status.stx_ino,
                    .bornSeconds = status.stx_btime.tv_sec,
                    .bornNanoseconds = status.stx_btime.tv_nsec};
}

QDataStream &operator<<(QDataStream &stream, const Identity &identity)
{
    return stream << identity.device << identity.inode << identity.bornSeconds
                  << identity.bornNanoseconds;
}

QDataStream &operator>>(QDataStream &stream, Identity &identity)
{
    return stream >> identity.device >> identity.inode >> identity.bornSeconds
        >> identity.bornNanoseconds;
}

} // namespace

std::optional<QByteArray> FolderBookmark::make(const QByteArray &path)
{
    const std::optional<Identity> identity = identityOf(path);
    if (!identity)
        return std::nullopt;
    QByteArray bookmark;
    QDataStream stream(&bookmark, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << magic << formatNumber << *identity << path;
    return bookmark;
}

std::optional<QByteArray> FolderBookmark::resolve(const QByteArray &bookmark)
{
    quint32 foundMagic = 0;
    quint16 foundFormat = 0;
    Identity remembered;
    QByteArray path;
    QDataStream stream(bookmark);
    stream.setVersion(QDataStream::Qt_6_4);
    stream >> foundMagic >> foundFormat >> remembered >> path;
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || foundMagic != magic
        || foundFormat != formatNumber) {
        errno = EBADMSG;
        return std::nullopt;
    }
    const std::optional<Identity> present = identityOf(path);
    if (!present)
        return std::nullopt;
    if (*present != remembered) {
        errno = ESTALE;
        return std::nullopt;
    }
    return path;
}
