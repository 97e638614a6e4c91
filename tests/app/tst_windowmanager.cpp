// Proves on a real window manager that messages take no key from another program or from the user's
// typing, that a minimised window comes back with its message, and that messages stay apart.

#include "Application.h"
#include "MiscTool.h"
#include "SingleInstance.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

constexpr int timeout = 10000;

void end(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(3000))
        process.kill();
    process.waitForFinished();
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

/// An X server with a window manager, for this process and those that it starts.
class Desktop
{
public:
    Desktop()
    {
        for (const char *needed : {"Xvfb", "openbox", "xdotool", "xprop"}) {
            if (QStandardPaths::findExecutable(QLatin1String(needed)).isEmpty())
                missing += QLatin1String(needed);
        }
        if (!missing.isEmpty())
            return;
        qunsetenv("LD_PRELOAD"); // the sanitizer's runtime is not for other programs
        m_server.start(u"Xvfb"_s,
                       {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-screen"_s, u"0"_s,
                        u"1280x900x24"_s});
        m_server.waitForReadyRead(timeout);
        qputenv("DISPLAY", ":" + m_server.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        manager.start(u"openbox"_s, {u"--sm-disable"_s});
        const auto check = [] {
            return outputOf(u"xprop"_s, {u"-root"_s, u"_NET_SUPPORTING_WM_CHECK"_s});
        };
        QDeadlineTimer deadline(timeout);
        while (manager.waitForStarted() && !check().contains("window id") && !deadline.hasExpired())
            continue;
    }
    ~Desktop()
    {
        end(manager);
        end(m_server);
    }
    Q_DISABLE_COPY_MOVE(Desktop)

    QStringList missing; ///< Programs that are not installed; nothing runs then.
    QProcess manager;

private:
    QProcess m_server;
};

/// What runs as another program: prints what is typed into its window.
int typewriter()
{
    QLineEdit edit;
    edit.setWindowTitle(u"typewriter"_s);
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, [](const QString &text) {
        std::printf("%s\n", qPrintable(text));
        std::fflush(stdout);
    });
    edit.show();
    return QApplication::exec();
}

void type(const QString &key)
{
    outputOf(u"xdotool"_s, {u"key"_s, key});
}

QList<QMessageBox *> shownBoxes()
{
    QList<QMessageBox *> boxes;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *box = qobject_cast<QMessageBox *>(window); box && box->isVisible())
            boxes += box;
    }
    return boxes;
}

} // namespace

class TestWindowManager : public QObject
{
    Q_OBJECT

public:
    explicit TestWindowManager(Desktop &desktop) : m_desktop(desktop) { }

private Q_SLOTS:
    void initTestCase()
    {
        if (!m_desktop.missing.isEmpty())
            QSKIP(qPrintable(u"not installed: "_s + m_desktop.missing.join(u", "_s)));
        Application::prepare();
    }

    void init()
    {
        m_application = std::make_unique<Application>();
        m_application->start(u"zip"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_application->window().isActiveWindow(), timeout);
    }

    void cleanup()
    {
        end(m_other);
        m_application.reset();
    }

    void waitsWhileTheUserTypesElsewhere()
    {
        startOther();
        endRun();
        QElapsedTimer sinceKey;
        const int answer = alert([&] {
            type(u"a"_s);
            QTRY_COMPARE_WITH_TIMEOUT(m_other.peek(9), "a\n", timeout);
            QVERIFY(shownBoxes().isEmpty());
            const QString id = QString::number(m_application->window().winId());
            const auto state = [&] {
                return outputOf(u"xprop"_s, {u"-id"_s, id, u"_NET_WM_STATE"_s});
            };
            QTRY_VERIFY_WITH_TIMEOUT(state().contains("DEMANDS_ATTENTION"), timeout);
            end(m_other); // and the window manager turns to our window
            QTRY_COMPARE_WITH_TIMEOUT(shownBoxes().size(), 1, timeout);
            const QMessageBox *box = shownBoxes().constFirst();
            QCOMPARE(box->windowTitle(), u"Zip: a[*][*].zip"_s);
            QTRY_VERIFY_WITH_TIMEOUT(box->isActiveWindow(), timeout);
            for (const auto &key : {u"space"_s, u"Return"_s, u"Escape"_s, u"alt+o"_s}) {
                type(key);
                sinceKey.start();
                QTest::qWait(100);
                QVERIFY2(box->isVisible(), qPrintable(key));
            }
            QTRY_VERIFY(sinceKey.hasExpired(550));
            type(u"space"_s);
            QTRY_VERIFY_WITH_TIMEOUT(shownBoxes().isEmpty(), timeout);
        });
        QCOMPARE(answer, int(QMessageBox::Ok));
    }

    void quittingEndsTheWaitAndShowsNothing()
    {
        startOther();
        Job job = m_application->jobs().begin({.page = u"ZIPViewController"_s, .title = u"Zip"_s});
        bool isShown = false;
        bool isLate = false;
        QTimer::singleShot(0, this, [&] {
            m_application->window().quit();
            isShown = !shownBoxes().isEmpty();
        });
        QTimer::singleShot(timeout, this, [&] {
            isLate = true;
            closeBoxes();
        });
        QCOMPARE(MiscTool::showAlert(u"The run has ended."_s, {}), 0);
        QVERIFY(!isShown && !isLate);
    }

    void aMinimisedWindowComesBackWithItsMessage_data()
    {
        QTest::addColumn<QString>("token");
        QTest::newRow("a start without a token") << QString();
        QTest::newRow("a click whose time is known") << u"server-1_TIME%1"_s;
    }
    void aMinimisedWindowComesBackWithItsMessage()
    {
        QFETCH(const QString, token);
        alert([&] {
            QTRY_VERIFY_WITH_TIMEOUT(
                shownBoxes().size() == 1 && shownBoxes().constFirst()->isActiveWindow(), timeout);
            const QMessageBox *box = shownBoxes().constFirst();
            MainWindow &window = m_application->window();
            window.showMinimized();
            QTRY_VERIFY_WITH_TIMEOUT(!isMapped(window), timeout);
            startOther();
            type(u"b"_s); // the user's last key is not in our window
            // The server's clock is the machine's.
            const qint64 now = QDeadlineTimer::current().deadline();
            QVERIFY(m_application->open(
                {.page = {}, .activationToken = token.isEmpty() ? token : token.arg(now)}));
            QTRY_VERIFY_WITH_TIMEOUT(isMapped(window) && isMapped(*box), timeout);
            QVERIFY(!window.isMinimized());
            QTRY_VERIFY_WITH_TIMEOUT(box->isActiveWindow(), timeout);
        });
    }

    void twoMessagesDoNotLieOnEachOther()
    {
        alert([this] {
            QTRY_VERIFY_WITH_TIMEOUT(
                shownBoxes().size() == 1 && shownBoxes().constFirst()->isActiveWindow(), timeout);
            alert([] {
                QTRY_COMPARE_WITH_TIMEOUT(shownBoxes().size(), 2, timeout);
                const auto boxes = shownBoxes();
                QTest::qWait(300); // the window manager has put its frames around them
                QVERIFY(!boxes[0]->frameGeometry().intersects(boxes[1]->frameGeometry()));
            });
        });
    }

    // The last one: there is no way back.
    void doesNotWaitWithoutAWindowManager()
    {
        startOther();
        end(m_desktop.manager);
        outputOf(u"xdotool"_s, {u"search"_s, u"--name"_s, u"typewriter"_s, u"windowfocus"_s});
        QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activeWindow(), timeout);
        alert([] { QTRY_COMPARE_WITH_TIMEOUT(shownBoxes().size(), 1, timeout); });
    }

private:
    // The keyboard is in another program's window afterwards.
    void startOther()
    {
        m_other.start(QCoreApplication::applicationFilePath(), {u"typewriter"_s});
        const auto hasKeyboard = [] { // tried again until the window is managed
            outputOf(u"xdotool"_s,
                     {u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"typewriter"_s,
                      u"windowactivate"_s});
            return outputOf(u"xdotool"_s, {u"getactivewindow"_s, u"getwindowname"_s})
                .contains("typewriter");
        };
        QTRY_VERIFY_WITH_TIMEOUT(hasKeyboard() && !QApplication::activeWindow(), timeout);
    }
    void endRun()
    {
        m_application->jobs()
            .begin({.page = u"ZIPViewController"_s,
                    .title = u"Zip"_s,
                    .subject = u"/home/a"_s,
                    .output = u"/home/a[*].zip"_s})
            .end(JobOutcome::Succeeded);
    }
    /// Goes through the steps in the message's own loop. What they leave open is closed.
    int alert(const std::function<void()> &steps)
    {
        QTimer::singleShot(0, this, [this, steps] {
            steps();
            closeBoxes();
        });
        return MiscTool::showAlert(u"The run has ended."_s, {});
    }
    void closeBoxes()
    {
        const auto boxes = m_application->window().findChildren<QMessageBox *>();
        for (QMessageBox *box : boxes)
            box->close();
    }
    static bool isMapped(const QWidget &window)
    {
        return outputOf(u"xprop"_s, {u"-id"_s, QString::number(window.winId()), u"WM_STATE"_s})
            .contains("Normal");
    }

    Desktop &m_desktop;
    QProcess m_other;
    std::unique_ptr<Application> m_application;
};

int main(int argc, char *argv[])
{
    if (argc == 2 && qstrcmp(argv[1], "typewriter") == 0) {
        const QApplication qt(argc, argv);
        return typewriter();
    }
    Desktop desktop;
    const QApplication qt(argc, argv);
    TestWindowManager test(desktop);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_windowmanager.moc"
