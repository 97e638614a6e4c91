// Proves that reading aloud brings the synthesiser's samples to the sound device, fails without
// one, and ends as a whole.
#include "StandinRun.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <csignal>

using namespace Qt::StringLiterals;

class TestAloud : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "writes into the home folder");
        m_dir = std::make_unique<QTemporaryDir>();
        QFile::remove(configuration());
    }

    void playsTheSpeech()
    {
        const QString played = m_dir->filePath(u"played"_s);
        useFileAsDevice(played);
        const RunResult result = runStandin(u"say"_s, arguments(u"Hello there"_s), environment());
        QVERIFY2(result.status == 0, result.errors.constData());
        const QByteArray wave =
            runProgram(u"espeak-ng"_s,
                       {u"-v"_s, u"de"_s, u"-s"_s, u"175"_s, u"--stdout"_s, u"Hello there"_s})
                .output;
        QVERIFY(wave.size() > 10000);
        QVERIFY(contentOf(played).startsWith(wave.mid(44)));
    }

    void saysNothingAtOnce()
    {
        const RunResult result = runStandin(u"say"_s, arguments(QString()), environment());
        QCOMPARE(result.status, 0);
        QCOMPARE(result.errors, QByteArray());
    }

    void failsWithoutDevice()
    {
        writeFile(configuration(), "pcm.!default { type hw card 31 }\n");
        const RunResult result =
            runStandin(u"say"_s, arguments(u"word "_s.repeated(20000)), environment());
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errorLines().size(), 1);
        QVERIFY2(result.errors.startsWith("say: aplay: "), result.errors.constData());
    }

    void endsTheWholePipeline_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("TERM") << SIGTERM;
        QTest::newRow("KILL") << SIGKILL;
    }
    // The device is a fifo that nobody reads: the player waits for it, the synthesiser for the
    // player.
    void endsTheWholePipeline()
    {
        QFETCH(int, signal);
        const QString device = m_dir->filePath(u"fifo"_s);
        QCOMPARE(::mkfifo(qPrintable(device), 0600), 0);
        useFileAsDevice(device);
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(standinPath(u"say"_s), arguments(u"word "_s.repeated(20000)));
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(namesOf(childrenOf(process.processId())).contains("aplay"), 20000);
        const QList<int> children = childrenOf(process.processId());
        QVERIFY(namesOf(children).contains("espeak-ng"));
        ::kill(static_cast<pid_t>(process.processId()), signal);
        QVERIFY(process.waitForFinished(5000));
        if (signal == SIGTERM)
            QCOMPARE(process.exitCode(), 143);
        for (int child : children)
            QTRY_VERIFY(!isRunning(child));
    }

private:
    static QStringList arguments(const QString &text)
    {
        return {text, u"--voice=German"_s, u"--rate=175"_s};
    }

    static QString configuration() { return QDir::homePath() + u"/.asoundrc"_s; }

    // No sound server: the desktop's own must not speak in a test.
    static QProcessEnvironment environment()
    {
        QProcessEnvironment environment = plainEnvironment();
        environment.insert(u"PULSE_SERVER"_s, u"unix:/nonexistent"_s);
        return environment;
    }

    static void useFileAsDevice(const QString &path)
    {
        writeFile(configuration(),
                  "pcm.nothing { type null }\n"
                  "pcm.!default { type file slave.pcm nothing format raw file \""
                      + path.toUtf8() + "\" }\n");
    }

    static QByteArrayList namesOf(const QList<int> &processes)
    {
        QByteArrayList names;
        for (int process : processes)
            names << contentOf(u"/proc/%1/comm"_s.arg(process)).trimmed();
        return names;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestAloud)
#include "tst_aloud.moc"
