// Proves what the program prints and how it ends when no window is wanted, and that language and
// direction are those of the user if there are texts for them.

#include "Application.h"
#include "CommandLine.h"
#include "Tool.h"

#include <QApplication>
#include <QLocale>
#include <QProcess>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The two that print a text work without a screen.
    void ends()
    {
        const QString pages = u"video, cache, speech, zip, unzip, dmg, iso, update."_s;
        for (const auto &[arguments, status, text] :
             {std::tuple(u"--help"_s, 0, u"The page to open: "_s + pages),
              std::tuple(u"-v"_s, 0, u"Toolvane 0."_s),
              std::tuple(u"-platform offscreen ZIP"_s, 64,
                         u"There is no page \"ZIP\". These are the pages: "_s + pages),
              std::tuple(u"--page=zip"_s, 64, u"page"_s)}) {
            QProcess program;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            if (status == 0)
                environment.insert(u"QT_QPA_PLATFORM"_s, u"none at all"_s);
            environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
            if (arguments == u"-v")
                environment.insert(u"LANGUAGE"_s,
                                   u"ar"_s); // would set a direction if there were windows
            program.setProcessEnvironment(environment);
            program.start(QStringLiteral(TOOLVANE_BUILD_DIR "/bin/toolvane"),
                          arguments.split(u' '));
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitCode(), status);
            const QString out = QString::fromUtf8(program.readAllStandardOutput()).simplified();
            const QString error = QString::fromUtf8(program.readAllStandardError()).simplified();
            QVERIFY2((status == 0 ? out : error).contains(text), qPrintable(out + u'|' + error));
            QCOMPARE(status == 0 ? error : out, QString());
        }
    }

    void opensEveryTool()
    {
        for (int row = 0; row < allTools().size(); ++row)
            QCOMPARE(rowOfTool(CommandLine({u"toolvane"_s, toolCommandNames().at(row)}).page()),
                     row);
        QVERIFY(CommandLine({u"toolvane"_s}).page().isEmpty());
    }

    void followsTheLanguage()
    {
        // We have no table for the last: everything is English, Qt's own button too.
        for (const auto &[locale, cancel, direction] :
             {std::tuple(u"de_AT"_s, u"Abbrechen"_s, Qt::LeftToRight),
              std::tuple(u"ar_EG"_s, u"ألغِ"_s, Qt::RightToLeft),
              std::tuple(u"he_IL"_s, u"Cancel"_s, Qt::LeftToRight)}) {
            QLocale::setDefault(QLocale(locale));
            QGuiApplication::setLayoutDirection(Qt::LeftToRight);
            Application::prepare();
            const QString button = QCoreApplication::translate("QPlatformTheme", "Cancel");
            QCOMPARE(QGuiApplication::layoutDirection(), direction);
            const bool isEnglish = qtTrId("ShowInFolder") == "Show in Fol&der"_L1;
            qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
            QLocale::setDefault(QLocale::c());
            QCOMPARE(button, cancel);
            QCOMPARE(isEnglish, cancel == "Cancel"_L1);
        }
    }
};

QTEST_MAIN(TestCommandLine)
#include "tst_commandline.moc"
