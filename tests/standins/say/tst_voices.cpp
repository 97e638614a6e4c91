// Proves that each voice which the page offers speaks, and that they are of at least twenty
// languages.
#include "StandinRun.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace
{

bool goToPopUp(QXmlStreamReader &reader)
{
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.attributes().value(u"name"_s) == u"voicePopUp"_s)
            return true;
    }
    return false;
}

// <item><property name="text"><string>Title</string></property></item>
QStringList offeredVoices()
{
    QFile file(u"" TOOLVANE_SOURCE_DIR "/resources/interface/SynthesisViewController.ui"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(&file);
    QStringList titles;
    if (!goToPopUp(reader))
        return {};
    while (reader.readNextStartElement()) {
        if (reader.name() == u"item"_s)
            titles << reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        else
            reader.skipCurrentElement();
    }
    return titles;
}

} // namespace

class TestVoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaks_data()
    {
        QTest::addColumn<QString>("voice");
        for (const QString &title : offeredVoices())
            QTest::newRow(qPrintable(title)) << title;
    }
    void speaks()
    {
        QFETCH(QString, voice);
        const QString output = m_dir.filePath(u"out.aiff"_s);
        const RunResult result = runStandin(u"say"_s,
                                            {u"I love you"_s, u"--voice="_s + voice,
                                             u"--rate=175"_s, u"--output-file="_s + output});
        QVERIFY2(result.status == 0, result.errors.constData());
        const QByteArray seconds = runProgram(u"soxi"_s, {u"-D"_s, output}).output;
        QVERIFY2(seconds.toDouble() > 0.3 && seconds.toDouble() < 5, seconds.constData());
    }

    void offersTwentyLanguages()
    {
        QSet<QString> languages;
        for (const QString &title : offeredVoices())
            languages << title.section(u' ', 0, 0); // "English (America)"
        QVERIFY2(languages.size() >= 20, QByteArray::number(languages.size()).constData());
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestVoices)
#include "tst_voices.moc"
