#include "IconCache.h"

#include "IconFile.h"
#include "IconName.h"
#include "NamedImage.h"

#include <QPixmap>

using Density = IconFile::Density;

namespace
{

constexpr int mostFetches = 4;
constexpr int densest = 2;

} // namespace

IconCache::IconCache(const QString &folder, QObject *parent) : QObject(parent), m_folder(folder)
{
    m_fetchers.setMaxThreadCount(mostFetches);
    m_readers.setMaxThreadCount(1);
}

IconCache::~IconCache()
{
    m_stop.request_stop();
    m_readers.clear();
    m_readers.waitForDone();
    m_fetchers.clear();
}

void IconCache::setServer(const QString &server)
{
    m_server = server;
    m_missing.clear();
}

QIcon IconCache::icon(const QString &name)
{
    if (hasNamedImage(name))
        return namedImage(name);
    if (!isIconName(name) || m_missing.contains(name))
        return {};
    if (const QIcon *known = m_icons.object(name))
        return *known;
    if (!m_requested.contains(name))
        request(name);
    return {};
}

// What runs on the threads may use this object: it waits for them before it goes.

void IconCache::request(const QString &name)
{
    m_requested += name;
    const int priority = ++m_requests;
    m_readers.start(
        [this, name, server = m_server, priority] { readOrFetch(name, server, priority); },
        priority);
}

void IconCache::readOrFetch(const QString &name, const QString &server, int priority)
{
    const QImage image = IconFile::read(m_folder, name, side * densest);
    const bool isComplete = IconFile::exists(m_folder, name, Density::Single)
        && IconFile::exists(m_folder, name, Density::Double);
    const bool isFetched = !isComplete && !server.isEmpty();
    if (!image.isNull() || !isFetched)
        post(name, image);
    if (isFetched)
        m_fetchers.start(
            [this, name, server, isShown = !image.isNull()] { fetch(name, server, isShown); },
            priority);
}

void IconCache::fetch(const QString &name, const QString &server, bool isShown)
{
    IconFile::fetchMissing(server, m_folder, name, Density::Single, m_stop.get_token());
    if (!isShown)
        post(name, IconFile::read(m_folder, name, side * densest));
    IconFile::fetchMissing(server, m_folder, name, Density::Double, m_stop.get_token());
}

void IconCache::post(const QString &name, const QImage &image)
{
    QMetaObject::invokeMethod(
        this, [this, name, image] { take(name, image); }, Qt::QueuedConnection);
}

void IconCache::take(const QString &name, const QImage &image)
{
    m_requested -= name;
    if (image.isNull()) {
        m_missing += name;
        return;
    }
    const QPixmap pixmap = QPixmap::fromImage(image);
    auto *icon = new QIcon(pixmap);
    icon->addPixmap(pixmap, QIcon::Selected); // by itself it would be tinted in a selected row
    m_icons.insert(name, icon, image.sizeInBytes());
    Q_EMIT arrived(name);
}
