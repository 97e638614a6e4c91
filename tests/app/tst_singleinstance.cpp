// Proves that a second start turns to the first one's window, and that no first one that is dead,
// hung or about to end keeps it from coming up.

#include "Application.h"
#include "HoverTableView.h"
#include "SingleInstance.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>

#include <csignal>
#include <cstring>
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
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, qPrintable(socketPath()), sizeof address.sun_path - 1);
    const int peer = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    const bool isSent = connect(peer, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0
        && send(peer, packet.constData(), size_t(packet.size()), MSG_NOSIGNAL) == packet.size();
    char byte = 0;
    ssize_t size = -1;
    const auto hasEnded = [&] {
        size = recv(peer, &byte, 1, MSG_DONTWAIT);
        return size >= 0 || errno != EAGAIN;
    };
    const bool ended = QTest::qWaitFor(hasEnded, 10000);
    close(peer);
    if (!isSent || !ended)
        QTest::qFail("the packet was not heard", __FILE__, __LINE__);
    return size > 0;
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
        QVERIFY(!isAnswered(mark + QByteArray("unzip\0a\0b\0", 10)));
        QVERIFY(!isAnswered(mark + "unzip" + QByteArray(100'000, '\0')));
        QVERIFY(
            isAnswered(mark + QByteArray("../none\0\0", 9))); // heard, but there is no such page
        QCOMPARE(application.window().tableView().currentIndex().row(), 3);
        QVERIFY(isAnswered(mark + QByteArray("unzip\0\0", 7)));
        QCOMPARE(application.window().tableView().currentIndex().row(), 4);
    }

    void standsAloneWithoutAFolderOfTheUser_data()
    {
        QTest::addColumn<QString>("folder"); // below the real one
        QTest::newRow("missing") << u"/none"_s;
        QTest::newRow("open to others") << u"/open"_s;
        QTest::newRow("too long for a socket") << u'/' + QString(90, u'x');
    }

    void standsAloneWithoutAFolderOfTheUser()
    {
        QFETCH(QString, folder);
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        const QString given = QString::fromLocal8Bit(before) + folder;
        if (folder != "/none"_L1)
            QVERIFY(QDir().mkpath(given));
        const auto open =
            folder == "/open"_L1 ? QFile::ReadGroup | QFile::ExeGroup : QFile::Permission();
        QFile::setPermissions(given, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | open);
        qputenv("XDG_RUNTIME_DIR", given.toLocal8Bit());
        SingleInstance alone;
        QVERIFY(!alone.passOn({}));
        alone.serve([](const StartRequest &) { return true; });
        QCOMPARE(socketPath(), QString());
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

    void aKilledFirstIsReplaced()
    {
        const Program first = start({u"zip"_s});
        QTRY_VERIFY_WITH_TIMEOUT(!socketPath().isEmpty(), 20000);
        QCOMPARE(ending(*start({})), 0);
        first->kill();
        QVERIFY(first->waitForFinished());
        QVERIFY(!socketPath().isEmpty()); // it could not tidy up
        SingleInstance next;
        QVERIFY(!next.passOn({}));
        bool isHeard = false;
        next.serve([&](const StartRequest &) { return isHeard = true; });
        QCOMPARE(ending(*start({})), 0);
        QVERIFY(isHeard);
    }

    void aHungFirstIsLeftAlone()
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
        next.serve([](const StartRequest &) { return true; }); // of which nobody knows
        ::kill(static_cast<pid_t>(first->processId()), SIGCONT);
        QCOMPARE(ending(*start({})), 0);
        first->kill();
        QVERIFY(first->waitForFinished());
        QFile::remove(socketPath());
    }
};

QTEST_MAIN(tst_SingleInstance)
#include "tst_singleinstance.moc"
