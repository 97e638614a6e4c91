#include "AppsList.h"

#include "PathText.h"
#include "PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto loadTimeout = 20s;
constexpr PropertyList::Limits limits{.bytes = AppsList::maxBytes, .objects = 20'000, .depth = 16};

std::optional<AppsList> readFromServer(const QString &server, const std::stop_token &stop)
{
    const QByteArray address = (server + u"Apps.plist"_s).toUtf8();
    const HttpReply reply = getConfiguration(address, loadTimeout, AppsList::maxBytes, stop);
    return reply.succeeded() ? AppsList::read(reply.body) : std::nullopt;
}

std::optional<AppsList> readFromFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would wait for ever
        return {};
    return AppsList::read(file.read(AppsList::maxBytes + 1));
}

} // namespace

std::optional<AppsList> AppsList::read(const QByteArray &bytes)
{
    const auto dictionary = PropertyList::readDictionary(bytes, limits);
    return dictionary ? std::optional(AppsList{*dictionary, bytes}) : std::nullopt;
}

QVariantList AppsList::apps() const
{
    QVariantList entries = dictionary.value(u"Apps"_s).toList().mid(0, maxApps);
    for (QVariant &entry : entries)
        entry = entry.toMap();
    return entries;
}

QVariantMap AppsList::social() const
{
    return dictionary.value(u"Social"_s).toMap();
}

std::optional<AppsList> AppsList::load(const QString &server, const QString &folder,
                                       const std::stop_token &stop)
{
    const QString path = appendPathComponent(folder, u"Apps.plist"_s);
    std::optional<AppsList> list = server.isEmpty() ? std::nullopt : readFromServer(server, stop);
    if (!list)
        list = readFromFile(path);
    // The very bytes are kept, so that the list means the same when it is read again.
    if (list && !stop.stop_requested())
        saveFile(path, list->bytes);
    return list;
}

QString configurationServer()
{
    return QSettings()
        .value("Addresses/Configuration"_L1, QLatin1String(TOOLVANE_CONFIGURATION_SERVER))
        .toString();
}

HttpReply getConfiguration(const QByteArray &address, std::chrono::milliseconds timeout,
                           qint64 maxBytes, const std::stop_token &stop)
{
    const bool isSecure = address.left(6).compare("https:", Qt::CaseInsensitive) == 0;
    return httpGet({.address = address,
                    .limits = {.time = timeout,
                               .bytes = maxBytes,
                               .schemes = isSecure ? HttpSchemes::SecureOnly : HttpSchemes::Any},
                    .stop = stop});
}

void saveFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        file.commit();
}
