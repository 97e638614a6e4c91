// The program as it starts for a user, up to its first painted window.

#include "Application.h"
#include "FirstPaint.h"
#include "Theme.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication qt(argc, argv);
    Application::prepare();
    Theme::install();
    Application application;
    const FirstPaint end(application.window());
    application.start();
    return QApplication::exec();
}
