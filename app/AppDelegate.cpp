#include "AppDelegate.h"

#include "MiscTool.h"

#include <QDesktopServices>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

void AppDelegate::applicationDidFinishLaunching()
{
    MiscTool::showWindow(window);
    MiscTool::hideWindow(loginWindow);
}

void AppDelegate::goWebsite()
{
    const QLatin1String compiledIn(TOOLVANE_WEB_SITE);
    QDesktopServices::openUrl(QSettings().value("Addresses/WebSite"_L1, compiledIn).toUrl());
}
