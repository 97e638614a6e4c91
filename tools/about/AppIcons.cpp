#include "AppIcons.h"

#include "AppsList.h"
#include "NamedImage.h"
#include "PathText.h"
#include "PngChunks.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr int maxFetches = 4; // at a time
constexpr int maxDensity = 2;
constexpr auto fetchTimeout = 15s;
constexpr qint64 maxBytes = 512 * 1024; // of a file
constexpr quint32 maxSide = 1024; // of an image, in pixels

// Names come from a server and become file names in the documents folder.
bool isIconName(const QString &name)
{
    static const QRegularExpression plain(uR"(\A[A-Za-z0-9_][A-Za-z0-9._-]{0,99}\z)"_s);
    // The list itself; the database with the journals that SQLite keeps beside it; archives, which
    // the Zip page writes there.
    static const QRegularExpression ours(uR"(\A(Apps\.plist|DB\.sqlite3.*|.*\.zip)\z)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return plain.match(name).hasMatch() && !ours.match(name).hasMatch();
}

// Joined like paths: that makes one slash of every run of slashes, also behind the scheme, and the
// address is used in this form: "https:/host/conf/images/name.png".
QByteArray iconAddress(const QString &server, const QString &file)
{
    static const QRegularExpression slashes(u"/+"_s);
    QString joined = server + u"images/"_s + file + u".png"_s;
    return joined.replace(slashes, u"/"_s).toUtf8();
}

// The one place where bytes that anybody may have written become an image, which is null if they
// are no PNG image within the limits. The decoder gets only what the picture needs: it would unpack
// gigabytes of text before the picture.
struct Icon {
    explicit Icon(const QByteArray &bytes)
        : png(bytes.size() <= maxBytes ? pictureOfPng(bytes, maxSide).value_or(QByteArray())
                                       : QByteArray()),
          image(QImage::fromData(png, "png"))
    {
    }

    QByteArray png;
    QImage image;
};

QString doubleOf(const QString &name)
{
    return name + u"@2x"_s;
}

} // namespace

AppIcons::AppIcons(const QString &folder, QObject *parent) : QObject(parent), m_folder(folder)
{
    m_fetchers.setMaxThreadCount(maxFetches);
    m_readers.setMaxThreadCount(1);
}

AppIcons::~AppIcons()
{
    m_stop.request_stop();
    m_readers.clear();
    m_readers.waitForDone();
    m_fetchers.clear();
}

void AppIcons::setServer(const QString &server)
{
    m_server = server;
    m_icons.removeIf(
        [](const QHash<QString, QIcon>::iterator &entry) { return entry.value().isNull(); });
}

QIcon AppIcons::icon(const QString &name)
{
    if (hasNamedImage(name))
        return namedImage(name);
    if (!isIconName(name) || m_icons.contains(name))
        return m_icons.value(name);
    m_icons.insert(name, {}); // else each repaint would request it again
    const int priority = ++m_requests;
    m_readers.start(
        [this, name, server = m_server, priority] { readOrFetch(name, server, priority); },
        priority);
    return {};
}

// What runs on the threads may use this object: it waits for them before it goes.

void AppIcons::readOrFetch(const QString &name, const QString &server, int priority)
{
    const QImage image = read(name);
    post(name, image);
    const bool isComplete =
        QFileInfo::exists(pathOf(name)) && QFileInfo::exists(pathOf(doubleOf(name)));
    if (!isComplete && !server.isEmpty())
        m_fetchers.start(
            [this, name, server, isShown = !image.isNull()] { fetch(name, server, isShown); },
            priority);
}

void AppIcons::fetch(const QString &name, const QString &server, bool isShown)
{
    fetchFile(name, server);
    if (!isShown)
        post(name, read(name));
    fetchFile(doubleOf(name), server);
}

void AppIcons::fetchFile(const QString &file, const QString &server) const
{
    if (m_stop.stop_requested() || QFileInfo::exists(pathOf(file)))
        return;
    const HttpReply reply =
        getConfiguration(iconAddress(server, file), fetchTimeout, maxBytes, m_stop.get_token());
    if (!reply.succeeded())
        return;
    const Icon icon(reply.body);
    if (!icon.image.isNull())
        saveFile(m_folder, file, icon.png);
}

QImage AppIcons::read(const QString &name) const
{
    QFile file(pathOf(name));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would wait for ever
        return {};
    const QImage image = Icon(file.read(maxBytes + 1)).image;
    const int maxShown = side * maxDensity;
    return image.width() <= maxShown && image.height() <= maxShown
        ? image
        : image.scaled(maxShown, maxShown, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QString AppIcons::pathOf(const QString &file) const
{
    return appendPathComponent(m_folder, file);
}

void AppIcons::post(const QString &name, const QImage &image)
{
    if (image.isNull())
        return;
    const auto take = [this, name, image] {
        const QPixmap pixmap = QPixmap::fromImage(image);
        QIcon icon(pixmap);
        icon.addPixmap(pixmap, QIcon::Selected); // by itself it would be tinted in a selected row
        m_icons.insert(name, icon);
        Q_EMIT arrived(name);
    };
    QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}
