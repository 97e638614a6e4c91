#include "Application.h"
#include "CommandLine.h"
#include "DesktopLook.h"
#include "SingleInstance.h"
#include "TerminationSignals.h"
#include "Theme.h"

#include <QApplication>

#include <cstdio>

namespace
{

int printAndEnd(const CommandLine &commandLine)
{
    const int status = commandLine.exitStatus().value_or(0);
    std::fputs(qPrintable(commandLine.text()), status == 0 ? stdout : stderr);
    return status;
}

// Of the desktop that started us. Qt removes both once it has a window.
QString activationToken()
{
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

} // namespace

int main(int argc, char *argv[])
{
    if (CommandLine::asksForText(argc, argv)) {
        const QCoreApplication qt(argc, argv);
        Application::prepare();
        return printAndEnd(CommandLine(QCoreApplication::arguments()));
    }
    const QString token = activationToken();
    QApplication qt(argc, argv);
    QApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    Application::prepare();
    const CommandLine commandLine(QCoreApplication::arguments());
    if (commandLine.exitStatus())
        return printAndEnd(commandLine);
    const StartRequest request{.page = commandLine.page(), .activationToken = token};
    SingleInstance instance;
    if (instance.passOn(request))
        return 0;

    Theme::install();
    const DesktopLook look;
    Application application;
    application.start(request.page);
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, &application.window(),
                     &MainWindow::quit);
    instance.serve([&application](const StartRequest &later) { return application.open(later); });
    return QApplication::exec();
}
