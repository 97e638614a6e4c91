// Proves that a folder or file reaches the file manager, on the bus or else by xdg-open, and that
// the status says whether it did.
#include "SessionBus.h"
#include "StandinRun.h"

#include <QDBusContext>
#include <QSignalSpy>

#include <sys/stat.h>

#include <csignal>

using namespace Qt::StringLiterals;

// A file manager that writes down what it is asked.
class RecordingFileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;
    bool refuses = false;

public Q_SLOTS:
    void ShowFolders(const QStringList &addresses, const QString &) { show(addresses); }
    void ShowItems(const QStringList &addresses, const QString &)
    {
        shown << u"selected"_s;
        show(addresses);
    }

private:
    void show(const QStringList &addresses)
    {
        shown << addresses;
        if (refuses)
            sendErrorReply(QDBusError::Failed, u"refused"_s);
    }
};

class TestOpen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "writes into the home folder");
        QVERIFY(m_bus.connect(u"test"_s).registerObject(
            u"/org/freedesktop/FileManager1"_s, &m_manager, QDBusConnection::ExportAllSlots));
    }

    void init()
    {
        m_manager.shown.clear();
        m_manager.refuses = false;
    }

    void showsFolderOrSelectsItem()
    {
        offerFileManager();
        const QDir folder(m_dir.path());
        QVERIFY(folder.mkpath(u"plain"_s) && folder.mkpath(u"a, b#c?d%41;\u00fc"_s));
        const auto scripts = u"中文 й ع"_s;
        const auto codedScripts = u"%E4%B8%AD%E6%96%87%20%D0%B9%20%D8%B9"_s;
        QVERIFY(folder.mkpath(scripts));
        writeFile(folder.filePath(u"plain/-f, 1"_s), {});
        QFile::link(u"/nowhere"_s, folder.filePath(u"link"_s));
        const auto coded = u"a%2C%20b%23c%3Fd%2541%3B%C3%BC"_s;
        // The path, what "open -a Finder" shows, and what "open -R" selects.
        for (const auto &[path, shown, selected] :
             {std::tuple(u"plain/"_s, u"plain/"_s, u"plain"_s),
              std::tuple(u"a, b#c?d%41;\u00fc"_s, coded, coded),
              std::tuple(u"plain/-f, 1"_s, u"plain"_s, u"plain/-f%2C%201"_s),
              std::tuple(scripts, codedScripts, codedScripts),
              std::tuple(u"link"_s, QString(), u"link"_s)}) {
            m_manager.shown.clear();
            QStringList expected{u"selected"_s, u"file://"_s + folder.filePath(selected)};
            const RunResult result = open({u"-R"_s, folder.filePath(path)});
            QCOMPARE(result.output + result.errors, QByteArray());
            QCOMPARE(result.status, 0);
            if (!shown.isEmpty()) {
                QCOMPARE(open({u"-a"_s, u"Finder"_s, folder.filePath(path)}).status, 0);
                expected << u"file://"_s + folder.filePath(shown);
            }
            QCOMPARE(m_manager.shown, expected);
        }
    }

    void saysWhenNothingShowsIt()
    {
        offerFileManager();
        m_manager.refuses = true;
        const RunResult refused = open({u"-a"_s, u"Finder"_s, m_dir.path()});
        QCOMPARE(refused.status, 1);
        QCOMPARE(refused.errorLines().size(), 1);
        QVERIFY2(refused.errors.contains("refused"), refused.errors.constData());

        withdrawFileManager();
        QCOMPARE(open({u"-a"_s, u"Finder"_s, m_dir.path()}).status, 1);
        QCOMPARE(m_manager.shown.size(), 1);
    }

    // xdg-open on a desktop that it does not know starts the application that is registered for
    // folders.
    void fallsBackToOpener()
    {
        writeFile(m_dir.filePath(u"file"_s), {});
        withdrawFileManager();
        QProcessEnvironment environment = onBus();
        environment.insert(u"DISPLAY"_s, u":250"_s);
        for (const auto &[script, status] :
             {std::pair("exit 0", 0), std::pair("exit 4", 1),
              std::pair("echo $$ > \"$HOME/number\"; exec sleep 60", 0)}) {
            registerApplication("echo \"$1\" > \"$HOME/opened\"; "_ba + script);
            const RunResult result = open({u"-R"_s, m_dir.filePath(u"file"_s)}, environment);
            QCOMPARE(result.status, status);
            QFile opened(QDir::homePath() + u"/opened"_s);
            const QByteArray address = contentOf(opened.fileName()).trimmed();
            QVERIFY2(address.endsWith(m_dir.path().toUtf8()), address.constData());
            QVERIFY(opened.remove());
        }
        const int number = contentOf(QDir::homePath() + u"/number"_s).trimmed().toInt();
        QVERIFY(isRunning(number));
        ::kill(number, SIGKILL);
    }

    void refusesWhatDoesNotExist()
    {
        for (const QStringList &arguments : {QStringList{u"-a"_s, u"Finder"_s, QString()},
                                             {u"-a"_s, u"Finder"_s, u"/none"_s},
                                             {u"-R"_s, u"/none"_s}}) {
            const RunResult result = open(arguments);
            QCOMPARE(result.status, 1);
            QCOMPARE(result.errors,
                     "open: The file " + arguments.last().toUtf8() + " does not exist.\n");
        }
        QCOMPARE(m_manager.shown, QStringList());
    }

private:
    QProcessEnvironment onBus() const
    {
        QProcessEnvironment environment = plainEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        return environment;
    }

    RunResult open(const QStringList &arguments) const { return open(arguments, onBus()); }

    // The event loop runs meanwhile, as the file manager lives in this process.
    static RunResult open(const QStringList &arguments, const QProcessEnvironment &environment)
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        QSignalSpy finished(&process, &QProcess::finished);
        process.start(standinPath(u"open"_s), arguments);
        if (!finished.wait(30000))
            return {};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    static void offerFileManager()
    {
        QVERIFY(QDBusConnection(u"test"_s).registerService(u"org.freedesktop.FileManager1"_s));
    }

    static void withdrawFileManager()
    {
        QDBusConnection(u"test"_s).unregisterService(u"org.freedesktop.FileManager1"_s);
    }

    static void registerApplication(const QByteArray &script)
    {
        const QDir home = QDir::home();
        QVERIFY(home.mkpath(u".local/share/applications"_s));
        QVERIFY(home.mkpath(u".config"_s));
        const QString program = home.filePath(u"folders.sh"_s);
        writeFile(program, "#!/bin/sh\n" + script + "\n");
        QCOMPARE(::chmod(qPrintable(program), 0700), 0);
        writeFile(
            home.filePath(u".local/share/applications/folders.desktop"_s),
            "[Desktop Entry]\nType=Application\nName=Folders\nMimeType=inode/directory;\nExec="
                + program.toUtf8() + " %u\n");
        writeFile(home.filePath(u".config/mimeapps.list"_s),
                  "[Default Applications]\ninode/directory=folders.desktop\n");
    }

    QTemporaryDir m_dir;
    RecordingFileManager m_manager;
    SessionBus m_bus;
};

QTEST_GUILESS_MAIN(TestOpen)
#include "tst_open.moc"
