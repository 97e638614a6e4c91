#include "Application.h"
#include "Theme.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication qt(argc, argv);
    QApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    Application::prepare();
    Theme::install();
    Application application;
    application.start();
    return QApplication::exec();
}
