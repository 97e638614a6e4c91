// Proves that speech, saved or read aloud, is the whole of what the synthesiser says, with each
// voice that the page offers, and that a failure or an end leaves the older file and no program.
#include "StandinRun.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{

RunResult save(const QString &text, const QString &output, const QString &rate = u"175"_s,
               const QString &voice = u"English (America)"_s)
{
    return runStandin(
        u"say"_s, {text, u"--voice="_s + voice, u"--rate="_s + rate, u"--output-file="_s + output});
}

QStringList aloud(const QString &text)
{
    return {text, u"--voice=German"_s, u"--rate=175"_s};
}

QByteArray soxi(const QString &question, const QString &path)
{
    const RunResult result = runProgram(u"soxi"_s, {question, path});
    return result.status == 0 ? result.output.trimmed() : result.errors;
}

// No sound server: the desktop's own must not speak in a test.
QProcessEnvironment withoutSoundServer()
{
    QProcessEnvironment environment = plainEnvironment();
    environment.insert(u"PULSE_SERVER"_s, u"unix:/nonexistent"_s);
    return environment;
}

void configureSound(const QByteArray &device)
{
    writeFile(QDir::homePath() + u"/.asoundrc"_s, "pcm.!default { " + device + " }\n");
}

void useFileAsDevice(const QString &path)
{
    configureSound("type file slave.pcm { type null } format raw file \"" + path.toUtf8() + '"');
}

QByteArrayList namesOf(const QList<int> &processes)
{
    QByteArrayList names;
    for (int process : processes)
        names << contentOf(u"/proc/%1/comm"_s.arg(process)).trimmed();
    return names;
}

} // namespace

class TestSay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY2(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"), "writes into the home folder");
        m_dir = std::make_unique<QTemporaryDir>();
        m_output = m_dir->filePath(u"out.aiff"_s);
    }

    void savesWhatTheSynthesiserSays()
    {
        const QString text = u"Ninety-nine bottles. "_s.repeated(200);
        const RunResult result = save(text, m_output, u"219,6"_s);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(result.output + result.errors, QByteArray());
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.aiff"_s});
        QCOMPARE(runProgram(u"file"_s, {u"-b"_s, m_output}).output, "IFF data, AIFF audio\n");

        const QString wave = m_dir->filePath(u"peer.wav"_s);
        runProgram(u"espeak-ng"_s, {u"-v"_s, u"en-us"_s, u"-s"_s, u"220"_s, u"-w"_s, wave, text});
        const auto samples = [](const QString &path) {
            return runProgram(u"sox"_s, {path, u"-t"_s, u"s16"_s, u"-"_s}).output;
        };
        QVERIFY(!samples(wave).isEmpty());
        QVERIFY(samples(m_output) == samples(wave));
        for (const QString &question : {u"-s"_s, u"-r"_s, u"-c"_s, u"-b"_s})
            QCOMPARE(soxi(question, m_output), soxi(question, wave));
    }

    void takesAnyTextFirst()
    {
        // The last is as long as the kernel lets one argument be; the controls are dropped, so that
        // it is soon spoken.
        for (const QString &text : {u"--voice=German"_s, u"-h"_s, u"--version"_s,
                                    u"<speak><break time=\"30s\"/></speak>"_s,
                                    u"Gr\u00fc\u00dfe \u65e5\u672c \U0001f600"_s,
                                    u"Hello"_s + QString(131066, QChar(2))}) {
            const RunResult result = save(text, m_output, u"900"_s);
            QVERIFY2(result.status == 0, result.errors.constData());
            const double seconds = soxi(u"-D"_s, m_output).toDouble();
            QVERIFY2(seconds > 0.05 && seconds < 10,
                     qPrintable(text.left(50))); // no markup is heard
        }
        for (const QString &text : {QString(), u"\x01\x02"_s}) {
            QCOMPARE(save(text, m_output).status, 0);
            QCOMPARE(soxi(u"-s"_s, m_output), "2205"); // a moment of silence
        }
    }

    void leavesTheOlderFile()
    {
        writeFile(m_output, "older");
        for (const auto &[voice, rate] :
             {std::pair(u"No Such"_s, u"175"_s), std::pair(u"gmw/de"_s, u"175"_s), // a path
              std::pair(QString(), u"175"_s), std::pair(u"German"_s, QString())}) {
            const RunResult result = save(u"text"_s, m_output, rate, voice);
            QCOMPARE(result.status, 64);
            QCOMPARE(result.errorLines().size(), 1);
        }
        QCOMPARE(contentOf(m_output), "older");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.aiff"_s});
    }

    void speaksWithEachVoice()
    {
        const QString page = QString::fromUtf8(
            contentOf(u"" TOOLVANE_SOURCE_DIR "/resources/interface/SynthesisViewController.ui"_s));
        const QString popUp =
            page.section(u"name=\"voicePopUp\""_s, 1).section(u"</widget>"_s, 0, 0);
        static const QRegularExpression title(u"<item>\\s*<property name=\"text\">\\s*"
                                              "<string[^>]*>([^<]+)</string>"_s);
        QSet<QString> languages;
        for (const auto &match : title.globalMatch(popUp)) {
            const QString voice = match.captured(1);
            languages << voice.section(u' ', 0, 0); // "English (America)"
            const RunResult result = save(u"I love you"_s, m_output, u"175"_s, voice);
            QVERIFY2(result.status == 0, result.errors.constData());
            const double seconds = soxi(u"-D"_s, m_output).toDouble();
            QVERIFY2(seconds > 0.3 && seconds < 5, qPrintable(voice));
        }
        QVERIFY2(languages.size() >= 20, QByteArray::number(languages.size()).constData());
    }

    void playsTheSpeech()
    {
        const QString played = m_dir->filePath(u"played"_s);
        useFileAsDevice(played);
        const RunResult result =
            runStandin(u"say"_s, aloud(u"Hello there"_s), withoutSoundServer());
        QVERIFY2(result.status == 0, result.errors.constData());
        const QByteArray wave =
            runProgram(u"espeak-ng"_s,
                       {u"-v"_s, u"de"_s, u"-s"_s, u"175"_s, u"--stdout"_s, u"Hello there"_s})
                .output;
        QVERIFY(wave.size() > 10000);
        QVERIFY(contentOf(played).startsWith(wave.mid(44)));
    }

    void failsWithoutDevice()
    {
        configureSound("type hw card 31");
        const RunResult result =
            runStandin(u"say"_s, aloud(u"word "_s.repeated(20000)), withoutSoundServer());
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errorLines().size(), 1);
        QVERIFY2(result.errors.startsWith("say: aplay: "), result.errors.constData());
        QCOMPARE(runStandin(u"say"_s, aloud(QString()), withoutSoundServer()).status, 0);
    }

    // The device is a fifo that nobody reads: the player waits for it, the synthesiser for the
    // player.
    void endsTheWholePipeline()
    {
        const QString device = m_dir->filePath(u"fifo"_s);
        QCOMPARE(::mkfifo(qPrintable(device), 0600), 0);
        useFileAsDevice(device);
        for (const int signal : {SIGTERM, SIGKILL}) {
            QProcess process;
            process.setProcessEnvironment(withoutSoundServer());
            process.start(standinPath(u"say"_s), aloud(u"word "_s.repeated(20000)));
            QTRY_VERIFY_WITH_TIMEOUT(namesOf(childrenOf(process.processId())).contains("aplay"),
                                     20000);
            const QList<int> children = childrenOf(process.processId());
            QVERIFY(namesOf(children).contains("espeak-ng"));
            ::kill(static_cast<pid_t>(process.processId()), signal);
            QVERIFY(process.waitForFinished(5000));
            if (signal == SIGTERM)
                QCOMPARE(process.exitCode(), 143);
            for (int child : children)
                QTRY_VERIFY(!isRunning(child));
        }
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_output;
};

QTEST_GUILESS_MAIN(TestSay)
#include "tst_say.moc"
