#include "AppsList.h"

#include "ConfigurationRequest.h"
#include "PathText.h"
#include "PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto loadTime = 20s;
constexpr PropertyList::Limits limits{.bytes = AppsList::mostBytes, .objects = 20'000, .depth = 16};

std::optional<AppsList> readFromServer(const QString &server, const std::stop_token &stop)
{
    const QByteArray address = (server + u"Apps.plist"_s).toUtf8();
    const HttpReply reply =
        httpGet(configurationRequest(address, loadTime, AppsList::mostBytes, stop));
    return reply.succeeded() ? AppsList::read(reply.body) : std::nullopt;
}

std::optional<AppsList> readFromFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would wait for ever
        return {};
    return AppsList::read(file.read(AppsList::mostBytes + 1));
}

void write(const QByteArray &bytes, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        file.commit();
}

} // namespace

std::optional<AppsList> AppsList::read(const QByteArray &bytes)
{
    const auto dictionary = PropertyList::readDictionary(bytes, limits);
    return dictionary ? std::optional(AppsList{*dictionary, bytes}) : std::nullopt;
}

QVariantList AppsList::apps() const
{
    QVariantList entries = dictionary.value(u"Apps"_s).toList().mid(0, mostApps);
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
        write(list->bytes, path);
    return list;
}
