// Proves that saved speech is a whole AIFF file of the text that was given, by what soxi says, with
// each voice that the page offers, and that a failure leaves the older file.
#include "StandinRun.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

RunResult say(const QString &text, const QString &output, const QString &rate = u"175"_s,
              const QString &voice = u"English (America)"_s)
{
    return runStandin(
        u"say"_s, {text, u"--voice="_s + voice, u"--rate="_s + rate, u"--output-file="_s + output});
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
        for (const auto &[question, answer] : {std::pair("-t", "aiff"), std::pair("-r", "22050"),
                                               std::pair("-c", "1"), std::pair("-b", "16")})
            QCOMPARE(soxi(QString::fromLatin1(question), m_output), answer);
        QCOMPARE(runProgram(u"file"_s, {u"-b"_s, m_output}).output, "IFF data, AIFF audio\n");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.aiff"_s});
    }

    // The very samples of the synthesiser's own file, and as many as the header says.
    void holdsWhatTheSynthesiserSays()
    {
        const QString text = u"Ninety-nine bottles. "_s.repeated(200);
        const QString wave = m_dir->filePath(u"peer.wav"_s);
        QCOMPARE(say(text, m_output, u"219,6"_s).status, 0);
        QCOMPARE(runProgram(u"espeak-ng"_s,
                            {u"-v"_s, u"en-us"_s, u"-s"_s, u"220"_s, u"-w"_s, wave, text})
                     .status,
                 0);
        const auto samples = [](const QString &path) {
            return runProgram(u"sox"_s, {path, u"-t"_s, u"s16"_s, u"-"_s}).output;
        };
        QVERIFY(!samples(wave).isEmpty());
        QVERIFY(samples(m_output) == samples(wave));
        QCOMPARE(soxi(u"-s"_s, m_output), soxi(u"-s"_s, wave));
    }

    void takesAnyTextFirst()
    {
        // The last is as long as the kernel lets one argument be; the controls are dropped, so that
        // it is soon said.
        for (const QString &text : {u"--voice=German"_s, u"-h"_s, u"--version"_s,
                                    u"<speak><break time=\"30s\"/></speak>"_s,
                                    u"Gr\u00fc\u00dfe \u65e5\u672c \U0001f600"_s,
                                    u"Hello"_s + QString(131066, QChar(2))}) {
            const RunResult result = say(text, m_output, u"900"_s);
            QVERIFY2(result.status == 0, result.errors.constData());
            const double seconds = soxi(u"-D"_s, m_output).toDouble();
            QVERIFY2(seconds > 0.05 && seconds < 10,
                     qPrintable(text.left(50))); // no markup is heard
        }
    }

    void writesSilenceForNoText()
    {
        for (const QString &text : {QString(), u"\x01\x02"_s}) {
            QCOMPARE(say(text, m_output).status, 0);
            QCOMPARE(soxi(u"-s"_s, m_output), "2205");
        }
    }

    void leavesTheOlderFile()
    {
        writeFile(m_output, "older");
        const auto refused = [this](const QString &voice, const QString &rate) {
            const RunResult result = say(u"text"_s, m_output, rate, voice);
            return result.status == 64 && result.errorLines().size() == 1;
        };
        QVERIFY(refused(u"No Such"_s, u"175"_s));
        QVERIFY(refused(u"gmw/de"_s, u"175"_s)); // a path of the synthesiser's
        QVERIFY(refused(QString(), u"175"_s));
        QVERIFY(refused(u"German"_s, QString()));
        QCOMPARE(contentOf(m_output), "older");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.aiff"_s});
    }

    void speaksWithEachVoice_data()
    {
        QTest::addColumn<QString>("voice");
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
            QTest::newRow(qPrintable(voice)) << voice;
        }
        QVERIFY2(languages.size() >= 20, QByteArray::number(languages.size()).constData());
    }
    void speaksWithEachVoice()
    {
        QFETCH(QString, voice);
        const RunResult result = say(u"I love you"_s, m_output, u"175"_s, voice);
        QVERIFY2(result.status == 0, result.errors.constData());
        const double seconds = soxi(u"-D"_s, m_output).toDouble();
        QVERIFY2(seconds > 0.3 && seconds < 5, QByteArray::number(seconds).constData());
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_output;
};

QTEST_GUILESS_MAIN(TestSaved)
#include "tst_saved.moc"
