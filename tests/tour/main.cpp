// Shows the program at work on a machine without a screen: drives the real window through its pages
// on sample data that it makes itself and saves a picture of each state.
// usage: tests/support/isolated tour FOLDER

#include "Application.h"
#include "Stops.h"
#include "Theme.h"
#include "Tour.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication qt(argc, argv);
    if (argc != 2 || qEnvironmentVariableIsEmpty("TOOLVANE_TEST_SANDBOX")) {
        std::fprintf(stderr, "usage: tests/support/isolated %s FOLDER\n", argv[0]);
        return 64;
    }
    Application::prepare();
    Theme::install();
    Application application;
    application.start();
    if (!QTest::qWaitForWindowExposed(&application.window()))
        return 1;

    Tour tour(application, QDir(QString::fromLocal8Bit(argv[1])));
    visitWelcome(tour);
    visitZip(tour);
    visitUnzip(tour);
    visitImages(tour);
    visitVideo(tour);
    visitSpeech(tour);
    visitUserCache(tour);
    visitUpdate(tour);
    std::printf("%s\n", qUtf8Printable(tour.summary()));
    return tour.succeeded() ? 0 : 1;
}
