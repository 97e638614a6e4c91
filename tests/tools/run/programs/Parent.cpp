// An application that runs one command for as long as it lives, to be killed by a test.
// usage: command_parent PROGRAM ARGUMENT...

#include "CommandRunner.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QObject keeper;
    CommandRunner runner(keeper);
    runner.run({arguments.value(1), arguments.mid(2)});
    return application.exec();
}
