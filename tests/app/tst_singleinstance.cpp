// Proves that a second start turns to the first one's window, and that no first one that is dead,
// hung or about to end, and no bus, keeps it from coming up.

#include "Application.h"
#include "HoverTableView.h"
#include "SessionBus.h"
#include "SingleInstance.h"

#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

using Program = std::unique_ptr<QProcess>;

constexpr auto objectPath = "/example/toolvane/toolvane"_L1;
constexpr auto interfaceName = "org.freedesktop.Application"_L1;

Program start(const QStringList &arguments, const QString &token = {})
{
    auto program = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
    program->setProcessEnvironment(environment);
    program->start(QStringLiteral(TOOLVANE_BUILD_DIR "/bin/toolvane"), arguments);
    return program;
}

/// The exit code of a start, waited for in the event loop; -1 if it keeps running or crashes.
int ending(QProcess &program)
{
    QSignalSpy finished(&program, &QProcess::finished);
    const bool ended = program.state() == QProcess::NotRunning || finished.wait(30000);
    return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

/// A bus that accepts every connection and never answers.
class SilentBus
{
public:
    explicit SilentBus(const QByteArray &path) : m_socket(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        QCOMPARE(::bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        QCOMPARE(::listen(m_socket, 5), 0);
    }
    ~SilentBus() { ::close(m_socket); }
    Q_DISABLE_COPY_MOVE(SilentBus)

private:
    int m_socket;
};

} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "needs folders of its own");
        QVERIFY(m_bus.connect(u"stranger"_s).isConnected());
        Application::prepare();
    }

    void init() { qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8()); }

    void cleanup() { QTRY_COMPARE(instances(), QStringList()); }

    void secondStartOpensItsPageInTheFirst()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        Application application;
        QString token;
        application.start(u"iso"_s);
        application.window().showMinimized();
        first.serve([&](const StartRequest &request) {
            token = request.activationToken;
            return application.open(request);
        });
        QCOMPARE(ending(*start({u"unzip"_s}, u"the token"_s)), 0);
        QCOMPARE(application.window().tableView().currentIndex().row(), 4);
        QVERIFY(!application.window().isMinimized());
        QCOMPARE(token, u"the token"_s);
        QCOMPARE(ending(*start({}, QString(4000, u't'))), 0); // the page stays
        QCOMPARE(application.window().tableView().currentIndex().row(), 4);
        QCOMPARE(token, QString());
    }

    // Any program on the bus may call.
    void opensNothingButTools()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        QList<StartRequest> requests;
        first.serve([&](const StartRequest &request) {
            requests += request;
            return true;
        });
        const QVariantMap withToken{{u"activation-token"_s, u"token"_s}};
        QVERIFY(!isAnswered(u"Open"_s, {QStringList(u"file:///"_s), withToken}));
        QVERIFY(!isAnswered(u"ActivateAction"_s, {u"unzip"_s}));
        QVERIFY(!isAnswered(u"Activate"_s, {u"unzip"_s}));
        QVERIFY(!isAnswered(u"deleteLater"_s, {}));
        QCOMPARE(requests.size(), 0);
        const QVariantList none;
        const QVariantMap wrongToken{{u"activation-token"_s, QVariantList{withToken}}};
        QVERIFY(isAnswered(u"ActivateAction"_s, {u"../none"_s, none, wrongToken}));
        QVERIFY(isAnswered(u"ActivateAction"_s, {QString(1'000'000, u'x'), none, withToken}));
        QVERIFY(isAnswered(u"ActivateAction"_s, {u"unzip"_s, none, withToken}));
        QCOMPARE(requests.size(), 3);
        QCOMPARE(requests[0].page + requests[0].activationToken + requests[1].page, QString());
        QCOMPARE(requests[2].page + requests[2].activationToken, u"unziptoken"_s);
    }

    void isAProgramOfItsOwnWithoutABus()
    {
        const QByteArray path = qgetenv("TMPDIR") + "/silent";
        const SilentBus silent(path);
        for (const QByteArray &address : {QByteArray(), QByteArray("unix:path=/none"),
                                          QByteArray("no address"), "unix:path=" + path}) {
            qputenv("DBUS_SESSION_BUS_ADDRESS", address);
            QElapsedTimer clock;
            clock.start();
            SingleInstance alone;
            QVERIFY(!alone.passOn({}));
            alone.serve([](const StartRequest &) { return true; });
            QVERIFY2(clock.elapsed() < 6000, qPrintable(QString::number(clock.elapsed())));
        }
        QVERIFY(!qgetenv("DBUS_SESSION_BUS_ADDRESS").contains(path)); // nor does Qt wait for it
    }

    void otherSettingsAreAnotherProgram()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        bool isHeard = false;
        first.serve([&](const StartRequest &) { return isHeard = true; });
        const QByteArray settings = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", settings + "/other");
        const Program other = start({u"zip"_s});
        qputenv("XDG_CONFIG_HOME", settings);
        QTRY_COMPARE_WITH_TIMEOUT(instances().size(), 2, 20000);
        QCOMPARE(other->state(), QProcess::Running);
        QVERIFY(!isHeard);
        other->kill();
        QVERIFY(other->waitForFinished());
    }

    void takesThePlaceOfOneThatEnds()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        Application application; // its window is not shown any more
        bool isAsked = false;
        first.serve([&](const StartRequest &request) {
            isAsked = true;
            return application.open(request);
        });
        const Program next = start({u"zip"_s});
        QTRY_VERIFY_WITH_TIMEOUT(isAsked, 20000);
        QCOMPARE(ending(*start({})), 0); // the next one serves it
        QCOMPARE(next->state(), QProcess::Running);
        next->terminate();
        QVERIFY(next->waitForFinished());
    }

    void aHungFirstIsLeftAloneAndAKilledOneReplaced()
    {
        const Program first = start({u"zip"_s});
        QTRY_COMPARE_WITH_TIMEOUT(instances().size(), 1, 20000);
        QCOMPARE(ending(*start({})), 0); // it serves
        ::kill(static_cast<pid_t>(first->processId()), SIGSTOP);
        SingleInstance next;
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!next.passOn({}));
        QVERIFY2(clock.elapsed() < 6000, qPrintable(QString::number(clock.elapsed())));
        bool isHeard = false;
        next.serve([&](const StartRequest &) { return isHeard = true; });
        ::kill(static_cast<pid_t>(first->processId()), SIGCONT);
        QCOMPARE(ending(*start({})), 0);
        QVERIFY(!isHeard); // the next one does not own the name

        first->kill();
        QVERIFY(first->waitForFinished());
        SingleInstance heir;
        QVERIFY(!heir.passOn({}));
        heir.serve([&](const StartRequest &) { return isHeard = true; });
        QCOMPARE(ending(*start({})), 0);
        QVERIFY(isHeard);
    }

private:
    QStringList instances() const
    {
        QStringList names =
            QDBusConnection(u"stranger"_s)
                .call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                     u"org.freedesktop.DBus"_s, u"ListNames"_s))
                .arguments()
                .value(0)
                .toStringList();
        names.removeIf([](const QString &name) { return !name.startsWith("example.toolvane"_L1); });
        return names;
    }
    bool isAnswered(const QString &method, const QVariantList &arguments) const
    {
        auto call =
            QDBusMessage::createMethodCall(instances().value(0), objectPath, interfaceName, method);
        call.setArguments(arguments);
        const auto reply = QDBusConnection(u"stranger"_s).call(call, QDBus::BlockWithGui);
        return reply.type() == QDBusMessage::ReplyMessage;
    }

    SessionBus m_bus;
};

QTEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
