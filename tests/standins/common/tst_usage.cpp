// Proves that each stand-in program takes the arguments that the pages send and no others.
#include "StandinRun.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestUsage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refuses_data()
    {
        QTest::addColumn<QString>("line");
        for (const char *line :
             {"avconvert", "avconvert --preset Preset640x480 --source a --output b",
              "avconvert --source a --preset Preset640x480 --output b -q",
              "avconvert --preset Preset640x480 --source a --output b -q -q", "hdiutil",
              "hdiutil makehybrid -hfs -o /no/a -default-volume-name V -ov -quiet",
              "hdiutil makehybrid -hfs -o /no/a -default-volume-name V -ov -quiet /no/b more",
              "hdiutil makehybrid -hfs -o /no/a -default-volume-name V -quiet -ov /no/b",
              "hdiutil create -hfs -o /no/a -default-volume-name V -ov -quiet /no/b",
              "hdiutil makehybrid -iso -o /no/a -default-volume-name V -ov -quiet /no/b", "open",
              "open -a Finder", "open -a Mail /", "open -a Finder / /", "say",
              "say text --rate=175 --voice=German --output-file=/no/a", "unzip", "unzip -l a -d b",
              "unzip -q a -d b c"})
            QTest::newRow(line) << QString::fromLatin1(line);
    }
    void refuses()
    {
        QFETCH(QString, line);
        QStringList words = line.split(u' ');
        const QString program = words.takeFirst();
        const RunResult result = runStandin(program, words);
        QCOMPARE(result.status, 64);
        QVERIFY(result.errors.startsWith("usage: " + program.toUtf8() + ' '));
        QCOMPARE(result.errorLines().size(), 1);
        QCOMPARE(result.output, QByteArray());
    }
};

QTEST_GUILESS_MAIN(TestUsage)
#include "tst_usage.moc"
