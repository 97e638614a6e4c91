// Proves that a second start turns to the first one's window, and that no first one that is dead,
// hung or about to end keeps it from coming up.

#include "Application.h"
#include "HoverTableView.h"
#include "SingleInstance.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

using Program = std::unique_ptr<QProcess>;

Program start(const QStringList &arguments, const QString &token = {})
{
    auto program = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
    program->setProcessEnvironment(environment);
    program->start(QStringLiteral(TOOLVANE_BUILD_DIR "/bin/toolvane"), arguments);
    return program;
}

/// How a start ends, while this process lives on; -1 when it stays.
int ending(QProcess &program)
{
    QSignalSpy finished(&program, &QProcess::finished);
    const bool ended = program.state() == QProcess::NotRunning || finished.wait(30000);
    return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

QDir runtimeFolder()
{
    return QDir(qEnvironmentVariable("XDG_RUNTIME_DIR"));
}

QString socketPath()
{
    const QStringList sockets =
        runtimeFolder().entryList({u"toolvane-*.socket"_s}, QDir::System | QDir::Files);
    return sockets.size() == 1 ? runtimeFolder().filePath(sockets.first()) : QString();
}

/// Whether whatever listens there answers this packet with anything but a closed connection.
bool isAnswered(const QByteArray &packet)
{
    const auto script = uR"(import socket, sys
peer = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
peer.connect(sys.argv[1])
peer.send(bytes.fromhex(sys.argv[2]))
try:
    print(len(peer.recv(1)))
except ConnectionResetError:
    print(0))"_s;
    QProcess peer;
    peer.start(u"env"_s,
               {u"-u"_s, u"LD_PRELOAD"_s, u"python3"_s, u"-c"_s, script, socketPath(),
                QString::fromLatin1(packet.toHex())});
    if (ending(peer) != 0)
        QTest::qFail("the packet was not heard", __FILE__, __LINE__);
    return peer.readAllStandardOutput() == "1\n";
}

} // namespace

class tst_SingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "needs folders of its own");
        Application::prepare();
    }
    void cleanup() { QCOMPARE(runtimeFolder().entryList({u"*.socket"_s}, QDir::System).size(), 0); }
    void secondStartOpensItsPageInTheFirst()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        QCOMPARE(QFile::permissions(socketPath()) & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::ReadOwner | QFile::WriteOwner);
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

    void hearsOnlyWhatIsWellFormed()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        Application application;
        application.start(u"zip"_s);
        first.serve([&](const StartRequest &request) { return application.open(request); });
        const QByteArray mark("toolvane-start-1\0", 17);
        QVERIFY(!isAnswered("unzip"));
        QVERIFY(!isAnswered(mark + "unzip"));
        QVERIFY(!isAnswered(mark + "unzip" + QByteArray(20'000, '\0')));
        QVERIFY(
            isAnswered(mark + QByteArray("../none\0\0", 9))); // heard, but there is no such page
        QCOMPARE(application.window().tableView().currentIndex().row(), 3);
        QVERIFY(isAnswered(mark + QByteArray("unzip\0\0", 7)));
        QCOMPARE(application.window().tableView().currentIndex().row(), 4);
    }

    void standsAloneWithoutAFolderOfTheUser()
    {
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        const QByteArray missing = before + "/none";
        const QByteArray openToOthers = before + "/open";
        const QByteArray tooLongForASocket = before + '/' + QByteArray(90, 'x');
        QCOMPARE(::mkdir(openToOthers.constData(), 0750), 0);
        QCOMPARE(::mkdir(tooLongForASocket.constData(), 0700), 0);
        for (const QByteArray &folder : {missing, openToOthers, tooLongForASocket}) {
            qputenv("XDG_RUNTIME_DIR", folder);
            SingleInstance alone;
            QVERIFY(!alone.passOn({}));
            alone.serve([](const StartRequest &) { return true; });
            QCOMPARE(socketPath(), QString());
        }
        qputenv("XDG_RUNTIME_DIR", before);
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
        QCOMPARE(ending(*start({})), 0); // the next one hears it
        QCOMPARE(next->state(), QProcess::Running);
        next->terminate();
        QVERIFY(next->waitForFinished());
        QFile::remove(socketPath());
    }

    void aHungFirstIsLeftAloneAndAKilledOneReplaced()
    {
        const Program first = start({u"zip"_s});
        QTRY_VERIFY_WITH_TIMEOUT(!socketPath().isEmpty(), 20000);
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
        QVERIFY(!isHeard); // nobody knows of the next one yet

        first->kill();
        QVERIFY(first->waitForFinished());
        QVERIFY(!socketPath().isEmpty()); // it could not tidy up
        SingleInstance heir;
        QVERIFY(!heir.passOn({}));
        heir.serve([&](const StartRequest &) { return isHeard = true; });
        QCOMPARE(ending(*start({})), 0);
        QVERIFY(isHeard);
    }
};

QTEST_MAIN(tst_SingleInstance)
#include "tst_singleinstance.moc"
