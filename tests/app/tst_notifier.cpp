// Proves that a run which ends while its window is inactive is notified once, truthfully and as
// plain text, and that only the answer of the server that showed it brings its page up. Task bars
// hear how far the one run is, or how many there are.

#include "Application.h"
#include "ContainerBox.h"
#include "Notifier.h"
#include "SessionBus.h"
#include "TaskBar.h"

#include <QApplication>
#include <QDBusMessage>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto service = "org.freedesktop.Notifications"_L1;
constexpr auto objectPath = "/org/freedesktop/Notifications"_L1;

// Keeps what it was called to show.
class NotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification {
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
    };
    QList<Notification> shown;
    QStringList capabilities;

public Q_SLOTS:
    QStringList GetCapabilities() { return capabilities; }
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &actions, const QVariantMap &hints, int)
    {
        shown += {summary, body, actions, hints};
        return static_cast<uint>(shown.size());
    }

Q_SIGNALS:
    void ActivationToken(uint id, const QString &token);
    void ActionInvoked(uint id, const QString &action);
    void NotificationClosed(uint id, uint reason);
};

// What a task bar shows of the program.
class Dock : public QObject
{
    Q_OBJECT

public:
    QStringList shown;

public Q_SLOTS:
    void onUpdate(const QString &program, const QVariantMap &properties)
    {
        QString text = program;
        if (properties[u"progress-visible"_s].toBool())
            text += u" at %1"_s.arg(properties[u"progress"_s].toDouble());
        if (properties[u"count-visible"_s].toBool())
            text += u" runs %1"_s.arg(properties[u"count"_s].toLongLong());
        shown += text;
    }
};

const JobDescription zipOfLetters{
    .page = u"ZIPViewController"_s, .title = u"Zip"_s, .subject = u"/home/a <b>&amp;"_s};

} // namespace

class TestNotifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
        QVERIFY(m_bus.connect(u"server"_s).isConnected());
        QVERIFY(m_bus.connect(u"stranger"_s).isConnected());
        QVERIFY(bus().registerObject(objectPath, &m_server, QDBusConnection::ExportAllContents));
        Application::prepare();
    }

    void init()
    {
        QVERIFY(bus().registerService(service));
        m_server.shown.clear();
        m_server.capabilities = {u"body"_s, u"actions"_s};
        m_jobs = std::make_unique<JobList>();
        m_window = std::make_unique<QWidget>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QApplication::setActiveWindow(nullptr);
        m_notifier = std::make_unique<Notifier>(*m_jobs, *m_window);
    }

    void showsHowARunEnded()
    {
        m_server.capabilities = {u"body"_s};
        run(*m_jobs, JobOutcome::Succeeded);
        QTRY_COMPARE(m_server.shown.size(), 1);
        QCOMPARE(m_server.shown[0].summary, qtTrId("Notice.Succeeded").arg(u"Zip"_s));
        QCOMPARE(m_server.shown[0].body, zipOfLetters.subject);
        QCOMPARE(m_server.shown[0].actions, QStringList());
        QCOMPARE(m_server.shown[0].hints.value(u"desktop-entry"_s), u"toolvane"_s);

        m_server.capabilities = {u"actions"_s, u"body"_s, u"body-markup"_s};
        run(*m_jobs, JobOutcome::Failed);
        QTRY_COMPARE(m_server.shown.size(), 2);
        QCOMPARE(m_server.shown[1].summary, qtTrId("Notice.Failed").arg(u"Zip"_s));
        QCOMPARE(m_server.shown[1].body, u"/home/a &lt;b&gt;&amp;amp;"_s);
        QCOMPARE(m_server.shown[1].actions.value(0), u"default"_s);
    }

    void showsNothingThatTheUserHasSeen()
    {
        for (const JobOutcome outcome : {JobOutcome::Stopped, JobOutcome::Failed}) {
            Job stopped = m_jobs->begin(zipOfLetters);
            m_jobs->stopAll();
            stopped.end(outcome);
        }
        run(*m_jobs, JobOutcome::Stopped); // by a button of its page
        QApplication::setActiveWindow(m_window.get());
        run(*m_jobs, JobOutcome::Failed);
        QApplication::setActiveWindow(nullptr);
        m_window->hide(); // as when the program is quit and ends its runs
        run(*m_jobs, JobOutcome::Failed);
        m_window->show();
        QApplication::setActiveWindow(nullptr);

        JobDescription news = zipOfLetters;
        news.title = u"Told"_s;
        run(*m_jobs, JobOutcome::Failed, news);
        QTRY_COMPARE(m_server.shown.size(), 1);
        QCOMPARE(m_server.shown.constFirst().summary, qtTrId("Notice.Failed").arg(u"Told"_s));
    }

    void onlyTheServersClickCounts()
    {
        QSignalSpy wanted(m_notifier.get(), &Notifier::pageWanted);
        const auto click = [this](const QString &token) {
            Q_EMIT m_server.ActivationToken(1, token);
            Q_EMIT m_server.ActionInvoked(1, u"default"_s);
        };
        run(*m_jobs, JobOutcome::Succeeded);
        QTRY_COMPARE(m_server.shown.size(), 1);
        settle(); // the notifier has its answer
        click(u"first"_s);
        QTRY_COMPARE(wanted.size(), 1);
        const auto forge = [](const QString &signal, const QString &text) {
            QDBusMessage forged = QDBusMessage::createSignal(objectPath, service, signal);
            forged << 1U << text;
            QDBusConnection stranger(u"stranger"_s);
            stranger.send(forged);
            waitForBus(stranger);
        };
        forge(u"ActionInvoked"_s, u"default"_s);
        forge(u"ActivationToken"_s, u"forged"_s);
        forge(u"ActionInvoked"_s, u"default"_s);
        Q_EMIT m_server.ActionInvoked(7, u"default"_s); // another program's notification
        click(u"last"_s);
        QTRY_COMPARE(wanted.constLast(), (QVariantList{u"ZIPViewController"_s, u"last"_s}));
        for (const QVariantList &arguments : std::as_const(wanted))
            QVERIFY(QStringList({u"first"_s, u"last"_s}).contains(arguments.at(1).toString()));

        const qsizetype clicks = wanted.size();
        Q_EMIT m_server.NotificationClosed(1, 2);
        click(u"late"_s);
        run(*m_jobs, JobOutcome::Succeeded);
        QTRY_COMPARE(m_server.shown.size(), 2);
        QCOMPARE(wanted.size(), clicks);
    }

    void aClickBringsTheWindowAndThePage()
    {
        Application application;
        application.start();
        application.window().showMinimized();
        QApplication::setActiveWindow(nullptr);
        m_notifier.reset();
        run(application.jobs(), JobOutcome::Succeeded);
        QTRY_COMPARE(m_server.shown.size(), 1);
        settle(); // the notifier has its answer
        Q_EMIT m_server.ActionInvoked(1, u"show"_s);
        QTRY_COMPARE(application.delegate().container->contentView()->objectName(),
                     u"ZIPViewController"_s);
        QVERIFY(!application.window().isMinimized());
        QVERIFY(application.window().isActiveWindow());
        application.window().hide();
        Q_EMIT m_server.ActionInvoked(1, u"show"_s);
        settle();
        QVERIFY(!application.window().isVisible()); // what is closed stays closed
    }

    void aTaskBarShowsHowFarItIs()
    {
        Dock dock;
        QVERIFY(bus().connect({}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, &dock,
                              SLOT(onUpdate(QString, QVariantMap))));
        waitForBus(bus());
        const TaskBar taskBar(*m_jobs);
        run(*m_jobs, JobOutcome::Succeeded); // nothing to show
        Job first = m_jobs->begin(zipOfLetters);
        first.setItems(12, 34);
        first.setProgress(431, 1000);
        first.setProgress(432, 1000); // the same percentage
        Job second = m_jobs->begin(zipOfLetters);
        second.setProgress(1, 2);
        first.end(JobOutcome::Succeeded);
        second.end(JobOutcome::Failed);
        const QString program = u"application://toolvane.desktop"_s;
        QTRY_COMPARE(dock.shown,
                     QStringList({program + u" at 0.43"_s, program + u" runs 2"_s,
                                  program + u" at 0.5"_s, program}));
    }

    void silentWithoutAServer()
    {
        settle(); // what an earlier test caused has arrived
        m_server.shown.clear();
        QVERIFY(bus().unregisterService(service));
        QTest::failOnWarning(QRegularExpression(u"."_s));
        run(*m_jobs, JobOutcome::Failed);
        settle();
        QVERIFY(bus().registerService(service));
        run(*m_jobs, JobOutcome::Failed); // one that comes later is found
        QTRY_COMPARE(m_server.shown.size(), 1);
    }

private:
    void run(JobList &jobs, JobOutcome outcome, const JobDescription &job = zipOfLetters)
    {
        jobs.begin(job).end(outcome);
    }
    // Answered only after the bus has passed on whatever this connection sent before.
    static void waitForBus(const QDBusConnection &connection)
    {
        connection.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                       u"org.freedesktop.DBus"_s, u"GetId"_s));
    }
    // Afterwards the notifier has received what the server sent.
    void settle() const
    {
        waitForBus(bus());
        waitForBus(QDBusConnection::sessionBus());
        QCoreApplication::sendPostedEvents();
    }
    QDBusConnection bus() const { return QDBusConnection(u"server"_s); }

    NotificationServer m_server;
    SessionBus m_bus;
    std::unique_ptr<JobList> m_jobs;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Notifier> m_notifier;
};

QTEST_MAIN(TestNotifier)
#include "tst_notifier.moc"
