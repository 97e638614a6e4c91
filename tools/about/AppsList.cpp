#include "AppsList.h"

#include "PathText.h"
#include "PropertyList.h"
#include "UnpublishedFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QUrlQuery>

#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto loadTimeout = 20s;
constexpr qsizetype maxAddress = 2048; // characters
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

// The query of a mail address with its subject alone, if that is one line.
QString subjectOnly(const QUrl &mail)
{
    const QString subject = QUrlQuery(mail).queryItemValue(u"subject"_s, QUrl::FullyDecoded);
    const bool isLine =
        std::ranges::all_of(subject, [](QChar c) { return c >= u' ' && c != u'\x7f'; });
    return subject.isEmpty() || !isLine
        ? QString()
        : u"subject="_s + QString::fromLatin1(QUrl::toPercentEncoding(subject));
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
    const QString name = u"Apps.plist"_s;
    std::optional<AppsList> list = server.isEmpty() ? std::nullopt : readFromServer(server, stop);
    if (!list)
        list = readFromFile(appendPathComponent(folder, name));
    // The very bytes are kept, so that the list means the same when it is read again.
    if (list && !stop.stop_requested())
        saveFile(folder, name, list->bytes);
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

void saveFile(const QString &folder, const QString &name, const QByteArray &bytes)
{
    UnpublishedFile file(QFile::encodeName(folder));
    QFile target;
    if (file.error() == 0
        && target.open(file.descriptor(), QIODevice::WriteOnly | QIODevice::Unbuffered)
        && target.write(bytes) == bytes.size() && fsync(file.descriptor()) == 0)
        file.replace(QFile::encodeName(name));
}

QUrl addressToOpen(const QString &text)
{
    if (text.size() > maxAddress)
        return {};
    QUrl url(text);
    const bool isWeb = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    const bool isMail = url.scheme() == "mailto"_L1;
    if (!url.isValid() || (isWeb ? url.host() : url.path()).isEmpty() || (!isWeb && !isMail))
        return {};
    if (isMail)
        url.setQuery(subjectOnly(url));
    return url;
}
