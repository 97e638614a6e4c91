#include "AppDelegate.h"

#include "MiscTool.h"
#include "ServerAddress.h"

#include <QDesktopServices>
#include <QUrl>

void AppDelegate::applicationDidFinishLaunching()
{
    MiscTool::showWindow(window);
    MiscTool::hideWindow(loginWindow);
}

void AppDelegate::goWebsite()
{
    QDesktopServices::openUrl(QUrl(serverAddress(Server::WebSite)));
}
