// The program as it starts for a user, up to its first painted window. If there is a session bus,
// it takes its name there as well.

#include "Application.h"
#include "FirstPaint.h"
#include "SingleInstance.h"
#include "Theme.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication qt(argc, argv);
    Application::prepare();
    SingleInstance instance;
    if (instance.passOn({}))
        qFatal("Toolvane runs already");
    Theme::install();
    Application application;
    const FirstPaint end(application.window());
    application.start();
    return QApplication::exec();
}
