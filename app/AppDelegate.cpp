#include "AppDelegate.h"

#include "MiscTool.h"

#include <QDesktopServices>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

// The user's settings first, then what was compiled in.
static QString webSiteAddress()
{
    return QSettings().value("Addresses/WebSite"_L1, QLatin1String(TOOLVANE_WEB_SITE)).toString();
}

void AppDelegate::applicationDidFinishLaunching()
{
    MiscTool::showWindow(window);
    MiscTool::hideWindow(loginWindow);
}

void AppDelegate::goWebsite()
{
    QDesktopServices::openUrl(QUrl(webSiteAddress()));
}
