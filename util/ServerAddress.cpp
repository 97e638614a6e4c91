#include "ServerAddress.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace
{

struct Source {
    QLatin1String settingsKey;
    QLatin1String compiledIn;
};

Source sourceOf(Server server)
{
    switch (server) {
    case Server::WebSite:
        return {"Addresses/WebSite"_L1, QLatin1String(TOOLVANE_WEB_SITE)};
    case Server::Configuration:
        return {"Addresses/Configuration"_L1, QLatin1String(TOOLVANE_CONFIGURATION_SERVER)};
    case Server::UpdateFeed:
        return {"Addresses/UpdateFeed"_L1, QLatin1String(TOOLVANE_UPDATE_FEED)};
    case Server::WebService:
        return {"Addresses/WebService"_L1, QLatin1String(TOOLVANE_WEB_SERVICE)};
    }
    Q_UNREACHABLE();
}

} // namespace

QString serverAddress(Server server)
{
    const Source source = sourceOf(server);
    return QSettings().value(source.settingsKey, source.compiledIn).toString();
}
