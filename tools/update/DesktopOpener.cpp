#include "DesktopOpener.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <QProcess>

#include <unistd.h>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// The toolkit's own way starts the same program and does not look at what came of it.
void openWithDesktop(const QString &path, QObject &context, std::function<void()> failed)
{
    auto *opener = new QProcess; // without a parent: destroying it would end what it started
    opener->setProcessChannelMode(QProcess::ForwardedChannels);
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->setChildProcessModifier([] { ::setsid(); });
    // Where nothing runs in the background, the opener is the program itself, and what it ends with
    // later has nothing to do with opening.
    const QDeadlineTimer deadline(10s);
    const auto end = [opener, deadline, guard = QPointer<QObject>(&context),
                      failed = std::move(failed)](bool isOpened) {
        opener->deleteLater();
        if (!isOpened && guard && !deadline.hasExpired())
            failed();
    };
    QObject::connect(opener, &QProcess::finished, opener,
                     [end](int status, QProcess::ExitStatus exit) {
                         end(status == 0 && exit == QProcess::NormalExit);
                     });
    QObject::connect(opener, &QProcess::errorOccurred, opener, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // the others end in finished()
            end(false);
    });
    opener->start(u"xdg-open"_s, {path});
}
