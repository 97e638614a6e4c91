// How responsive the Zip page stays while it packs 500 MB, and what the runner adds to a command.
// The exit status is 1 if a figure is over its limit.

#include "CommandRunner.h"
#include "JobList.h"
#include "Row.h"
#include "ZIPViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr int files = 50;
constexpr qint64 fileSize = 10'000'000;
constexpr int runs = 41;

double milliseconds(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

// A pause is the time between two timer events minus the interval.
class Pauses : public QObject
{
public:
    Pauses()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(beat);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            longest = std::max(longest, milliseconds(m_clock) - beat);
            m_clock.start();
        });
        m_clock.start();
        m_timer.start();
    }
    double longest = 0; ///< Milliseconds.

private:
    static constexpr int beat = 2;
    QTimer m_timer;
    QElapsedTimer m_clock;
};

void makeFolder(const QDir &folder)
{
    QByteArray content(fileSize, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : content) {
        state = state * 1664525 + 1013904223;
        byte = char((state >> 24) % 64); // packs to about three quarters
    }
    for (int i = 0; i < files; ++i) {
        QFile file(folder.filePath(QString::number(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the sample folder");
    }
}

bool staysAlive()
{
    const QTemporaryDir own;
    const QDir folder(own.path());
    folder.mkdir(u"source"_s);
    makeFolder(QDir(folder.filePath(u"source"_s)));
    JobList jobs;
    ZIPViewController page(jobs);
    page.resize(820, 600);
    page.show();
    if (!QTest::qWaitForWindowExposed(&page))
        return false;
    page.findChild<QLineEdit *>(u"srcFolderField"_s)->setText(folder.filePath(u"source"_s));
    page.findChild<QLineEdit *>(u"outputField"_s)->setText(folder.filePath(u"out.zip"_s));
    QTest::qWait(200); // the cost of showing the window is not measured

    Pauses pauses;
    double longest = 0;
    QTimer::singleShot(0, page.findChild<QPushButton *>(u"generateButton"_s), &QPushButton::click);
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            longest = pauses.longest; // up to the message: the run is over
            box->button(QMessageBox::Ok)->click();
        }
    });
    answer.start(20);
    const bool finished = QTest::qWaitFor([&] { return longest > 0; }, 300'000);
    const Row row{.work = "zip of 500 MB, longest pause of the window",
                  .figure = longest,
                  .limit = 50,
                  .unit = "ms"};
    return row.print() && finished;
}

double throughRunner()
{
    JobList jobs;
    CommandRunner runner(jobs);
    QElapsedTimer clock;
    clock.start();
    const auto run = runner.run({.launchPath = u"/bin/true"_s, .arguments = {}},
                                jobs.begin({.page = {}, .title = {}}));
    QFutureWatcher<CommandResult> watcher;
    QEventLoop loop; // woken by the end itself, without polling
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(run);
    loop.exec();
    const double taken = milliseconds(clock);
    if (!run.result().succeeded())
        qFatal("/bin/true failed");
    return taken;
}

double plain()
{
    QElapsedTimer clock;
    clock.start();
    if (QProcess::execute(u"/bin/true"_s, {}) != 0)
        qFatal("/bin/true failed");
    return milliseconds(clock);
}

bool addsLittle()
{
    std::vector<double> added;
    for (int i = 0; i < runs; ++i)
        added.push_back(throughRunner() - plain());
    return Row{.work = "runner, added to a command",
               .figure = median(std::move(added)),
               .limit = 20,
               .unit = "ms"}
        .print();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication qt(argc, argv);
    const bool little = addsLittle();
    const bool alive = staysAlive();
    return little && alive ? 0 : 1;
}
