// Proves that saved speech is a whole AIFF file of the text that was given, by what soxi says, and
// that a failure leaves the older file.
#include "StandinRun.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

RunResult say(const QString &text, const QString &output, const QString &rate = u"175"_s,
              const QString &voice = u"English (America)"_s,
              const QProcessEnvironment &environment = plainEnvironment())
{
    return runStandin(
        u"say"_s, {text, u"--voice="_s + voice, u"--rate="_s + rate, u"--output-file="_s + output},
        environment);
}

QByteArray soxi(const QString &question, const QString &path)
{
    const RunResult result = runProgram(u"soxi"_s, {question, path});
    return result.status == 0 ? result.output.trimmed() : result.errors;
}

} // namespace

class TestSaved : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_output = m_dir->filePath(u"out.aiff"_s);
    }

    void writesAiff()
    {
        const RunResult result = say(u"Hello there, world."_s, m_output);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(result.output + result.errors, QByteArray());
        QCOMPARE(soxi(u"-t"_s, m_output), "aiff");
        QCOMPARE(soxi(u"-r"_s, m_output), "22050");
        QCOMPARE(soxi(u"-c"_s, m_output), "1");
        QCOMPARE(soxi(u"-b"_s, m_output), "16");
        const QByteArray kind = runProgram(u"file"_s, {u"-b"_s, m_output}).output;
        QCOMPARE(kind, "IFF data, AIFF audio\n");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.aiff"_s});
    }

    // The very samples of the synthesiser's own file, and as many as the header says.
    void holdsWhatTheSynthesiserSays()
    {
        const QString text = u"Ninety-nine bottles. "_s.repeated(200);
        const QString wave = m_dir->filePath(u"peer.wav"_s);
        QCOMPARE(say(text, m_output).status, 0);
        QCOMPARE(runProgram(u"espeak-ng"_s,
                            {u"-v"_s, u"en-us"_s, u"-s"_s, u"175"_s, u"-w"_s, wave, text})
                     .status,
                 0);
        const auto samples = [](const QString &path) {
            return runProgram(u"sox"_s, {path, u"-t"_s, u"s16"_s, u"-"_s}).output;
        };
        QVERIFY(!samples(wave).isEmpty());
        QVERIFY(samples(m_output) == samples(wave));
        QCOMPARE(soxi(u"-s"_s, m_output), soxi(u"-s"_s, wave));
    }

    void takesAnyTextFirst_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString &text : {u"--voice=German"_s, u"-h"_s, u"--help"_s, u"--version"_s,
                                    u"<speak><break time=\"30s\"/></speak>"_s,
                                    u"Gr\u00fc\u00dfe \u65e5\u672c \U0001f600"_s})
            QTest::newRow(qPrintable(text)) << text;
        // What the kernel lets one argument hold; the controls are dropped, so that it is soon
        // said.
        QTest::newRow("as long as can be") << u"Hello"_s + QString(131066, QChar(2));
    }
    void takesAnyTextFirst()
    {
        QFETCH(QString, text);
        const RunResult result = say(text, m_output, u"900"_s);
        QVERIFY2(result.status == 0, result.errors.constData());
        QVERIFY(soxi(u"-s"_s, m_output).toInt() > 1000);
        if (text.size() < 100)
            QVERIFY(soxi(u"-D"_s, m_output).toDouble() < 10); // no markup: half a minute of silence
    }

    void writesSilenceForNoText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("nothing but controls") << u"\x01\x02"_s;
    }
    void writesSilenceForNoText()
    {
        QFETCH(QString, text);
        QCOMPARE(say(text, m_output).status, 0);
        QCOMPARE(soxi(u"-s"_s, m_output), "2205");
    }

    void followsTheRateInEveryLocale()
    {
        QProcessEnvironment german = plainEnvironment();
        german.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
        const auto seconds = [&](const QString &rate) {
            const RunResult result =
                say(u"One two three four five six"_s, m_output, rate, u"German"_s, german);
            return result.status == 0 ? soxi(u"-D"_s, m_output).toDouble() : -1.0;
        };
        const double usual = seconds(u"175"_s);
        QVERIFY(usual > 1);
        QVERIFY(seconds(u"350.5"_s) < usual * 0.7);
        QVERIFY(seconds(u"87.5"_s) > usual * 1.5);
    }

    void leavesTheOlderFile_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        QTest::newRow("unknown voice") << QStringList{u"--voice=No Such"_s, u"--rate=175"_s} << 64;
        QTest::newRow("path as voice") << QStringList{u"--voice=gmw/de"_s, u"--rate=175"_s} << 64;
        QTest::newRow("no voice") << QStringList{u"--voice="_s, u"--rate=175"_s} << 64;
        QTest::newRow("no rate") << QStringList{u"--voice=German"_s, u"--rate="_s} << 64;
        QTest::newRow("other order") << QStringList{u"--rate=175"_s, u"--voice=German"_s} << 64;
        QTest::newRow("nothing") << QStringList{} << 64;
    }
    void leavesTheOlderFile()
    {
        QFETCH(QStringList, options);
        writeFile(m_output, "older");
        const RunResult result = runStandin(u"say"_s,
                                            QStringList{u"text"_s} + options
                                                + QStringList{u"--output-file="_s + m_output});
        QTEST(result.status, "status");
        QCOMPARE(result.errorLines().size(), 1);
        QCOMPARE(contentOf(m_output), "older");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.aiff"_s});
    }

    void refusesTheOutputFolder()
    {
        const RunResult result = say(u"text"_s, m_dir->filePath(u"none/out.aiff"_s));
        QCOMPARE(result.status, 1);
        QVERIFY(result.errors.endsWith("/none: No such file or directory\n"));
    }

    void leavesTheOlderFileOnFullDisk()
    {
        const RunResult result = runOnSmallDisk(
            m_dir->path(), 200,
            u"printf older > \"$0/out.aiff\"\n"
            "\"$1\" \"$2\" '--voice=English (America)' --rate=175 --output-file=\"$0/out.aiff\"\n"
            "echo $?; ls -A \"$0\"; cat \"$0/out.aiff\"\n"_s,
            {standinPath(u"say"_s), u"Ninety-nine bottles. "_s.repeated(50)});
        if (result.status == 77)
            QSKIP("mounting a small file system is not permitted here");
        QCOMPARE(result.output, "1\nout.aiff\nolder");
        QVERIFY2(result.errors.contains("No space left"), result.errors.constData());
        QCOMPARE(result.errorLines().size(), 1);
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_output;
};

QTEST_GUILESS_MAIN(TestSaved)
#include "tst_saved.moc"
