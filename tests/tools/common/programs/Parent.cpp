// An application that runs one command for as long as it lives, to be killed by a test.
// usage: command_parent PROGRAM ARGUMENT...

#include "CommandRunner.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    JobList jobs;
    CommandRunner runner(jobs);
    const Command command{arguments.value(1), arguments.mid(2)};
    const JobDescription description{QStringLiteral("Parent"), QStringLiteral("parent")};
    runner.run(command, description);
    return application.exec();
}
