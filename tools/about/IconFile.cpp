#include "IconFile.h"

#include "ConfigurationRequest.h"
#include "IconName.h"
#include "PathText.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto fetchTime = 15s;

// Read from the header: a picture of any size is refused before it takes up memory.
bool isAcceptable(QIODevice &device)
{
    QImageReader reader(&device, "png");
    const QSize size = reader.size();
    return size.isValid() && size.width() <= IconFile::longestSide
        && size.height() <= IconFile::longestSide;
}

bool isWholeImage(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    if (!isAcceptable(buffer) || !buffer.seek(0))
        return false;
    return !QImageReader(&buffer, "png").read().isNull();
}

void fetch(const QString &server, const QString &name, const QString &path,
           const std::stop_token &stop)
{
    const HttpReply reply = httpGet(
        configurationRequest(iconAddress(server, name), fetchTime, IconFile::mostBytes, stop));
    if (!reply.succeeded() || !isWholeImage(reply.body))
        return;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(reply.body) == reply.body.size())
        file.commit();
}

QString fileName(const QString &name, IconFile::Density density)
{
    return density == IconFile::Density::Double ? name + u"@2x"_s : name;
}

} // namespace

bool IconFile::exists(const QString &folder, const QString &name, Density density)
{
    return QFileInfo::exists(appendPathComponent(folder, fileName(name, density)));
}

void IconFile::fetchMissing(const QString &server, const QString &folder, const QString &name,
                            Density density, const std::stop_token &stop)
{
    if (server.isEmpty() || stop.stop_requested() || exists(folder, name, density))
        return;
    const QString file = fileName(name, density);
    fetch(server, file, appendPathComponent(folder, file), stop);
}

QImage IconFile::read(const QString &folder, const QString &name, int side)
{
    const QFileInfo info(appendPathComponent(folder, name));
    QFile file(info.filePath());
    if (!info.isFile() || info.size() > mostBytes || !file.open(QIODevice::ReadOnly)
        || !isAcceptable(file) || !file.seek(0))
        return {};
    const QImage image = QImageReader(&file, "png").read();
    if (image.width() <= side && image.height() <= side)
        return image;
    return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
