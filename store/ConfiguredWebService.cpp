#include "ConfiguredWebService.h"

#include "DB.h"
#include "Http.h"
#include "ServerAddress.h"

#include <QSettings>

using namespace Qt::StringLiterals;

void openConfiguredWebService()
{
    const QString address = serverAddress(Server::WebService);
    if (address.isEmpty())
        return;
    DB::open(address);
    const int seconds = QSettings().value(u"WebService/TimeoutSeconds"_s).toInt();
    if (seconds < 1 || seconds > 3600)
        return;
    HttpLimits limits = DB::webServiceLimits();
    limits.time = std::chrono::seconds(seconds);
    DB::setWebServiceLimits(limits);
}
