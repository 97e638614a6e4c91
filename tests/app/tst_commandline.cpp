// Proves what the program prints and how it ends when no window is wanted, and in which language
// and direction it speaks.

#include "CommandLine.h"
#include "Language.h"
#include "Tool.h"

#include <QApplication>
#include <QLocale>
#include <QProcess>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ends_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        const QString pages = u"video, cache, speech, zip, unzip, dmg, iso, update."_s;
        QTest::newRow("help") << QStringList{u"--help"_s} << 0 << u"The page to open: "_s + pages;
        QTest::newRow("version") << QStringList{u"-v"_s} << 0 << u"Toolvane 0."_s;
        QTest::newRow("unknown page")
            << QStringList{u"-platform"_s, u"offscreen"_s, u"ZIP"_s} << 64
            << u"There is no page \"ZIP\". These are the pages: "_s + pages;
        QTest::newRow("unknown option") << QStringList{u"--page=zip"_s} << 64 << u"page"_s;
    }

    // The two that ask for a text do so without a screen.
    void ends()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, text);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        if (status == 0)
            environment.insert(u"QT_QPA_PLATFORM"_s, u"none at all"_s);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        if (arguments.contains(u"-v"_s))
            environment.insert(u"LANGUAGE"_s, u"ar"_s); // windows from right to left, if there were
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TOOLVANE_BUILD_DIR "/bin/toolvane"), arguments);
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), status);
        const QString out = QString::fromUtf8(program.readAllStandardOutput()).simplified();
        const QString error = QString::fromUtf8(program.readAllStandardError()).simplified();
        QVERIFY2((status == 0 ? out : error).contains(text), qPrintable(out + u'|' + error));
        QCOMPARE(status == 0 ? error : out, QString());
    }

    void opensEveryTool()
    {
        for (int row = 0; row < allTools().size(); ++row)
            QCOMPARE(rowOfTool(CommandLine({u"toolvane"_s, toolCommandNames().at(row)}).page()),
                     row);
        QVERIFY(CommandLine({u"toolvane"_s}).page().isEmpty());
    }

    void speaks_data()
    {
        QTest::addColumn<QString>("cancel"); // as Qt's own buttons say it
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("de_AT") << u"Abbrechen"_s << Qt::LeftToRight;
        QTest::newRow("ar_EG") << u"ألغِ"_s << Qt::RightToLeft;
        QTest::newRow("he_IL") << u"Cancel"_s << Qt::LeftToRight; // no table: all English
    }

    void speaks()
    {
        QFETCH(QString, cancel);
        QFETCH(Qt::LayoutDirection, direction);
        QLocale::setDefault(QLocale(QString::fromLatin1(QTest::currentDataTag())));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        Language::install();
        const QString button = QCoreApplication::translate("QPlatformTheme", "Cancel");
        QCOMPARE(QGuiApplication::layoutDirection(), direction);
        const bool isEnglish = qtTrId("ShowInFolder") == "Show in Fol&der"_L1;
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
        QLocale::setDefault(QLocale::c());
        QCOMPARE(button, cancel);
        QCOMPARE(isEnglish, cancel == "Cancel"_L1);
    }
};

QTEST_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
