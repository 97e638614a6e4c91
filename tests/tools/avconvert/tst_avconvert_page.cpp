// The video page passes the chosen format's preset on, and a list of formats that is broken makes a
// conversion fail, not the page. Each language has its own list of the same presets.

#include "AVConvertViewController.h"
#include "JobList.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "PropertyList.h"
#include "RecordedProgram.h"

#include <QComboBox>
#include <QDir>
#include <QTemporaryDir>
#include <QTranslator>

using namespace PageControls;
using namespace Qt::StringLiterals;

class AVConvertPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesThePresetOn()
    {
        JobList jobs;
        MessageBoxes boxes;
        const QByteArray list = "<plist><dict><key>b</key><string>PresetB</string><key>number</key>"
                                "<integer>1</integer><key>a</key><string>PresetA</string></dict>"
                                "</plist>";
        for (const auto &[content, format, arguments] :
             {std::tuple(list, u"b"_s, u"--preset|PresetB|--source|/a|--output|/b|-q"_s),
              std::tuple(list, u"number"_s, u"--preset"_s),
              std::tuple(QByteArray("<plist><array/></plist>"), QString(), u"--preset"_s)}) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(u"list"_s);
            Files::write(path, content);
            RecordedProgram program("avconvert");
            program.endWith(64);
            AVConvertViewController page(jobs, nullptr, path);
            page.show();
            control<QComboBox>(page, "outputFormatPopUp").setCurrentText(format);
            fill(page, "sourceField", u"/a"_s);
            fill(page, "outputField", u"/b"_s);
            press(page, "convertButton");
            QTRY_COMPARE(boxes.texts, QStringList{u"Convert is failed."_s});
            boxes.texts.clear();
            QCOMPARE(program.arguments()->join(u'|'), arguments);
        }
    }

    void offersTheFormatsInEachLanguage()
    {
        JobList jobs;
        const auto listIn = [&jobs](const QString &table) {
            QTranslator texts;
            if (!texts.load(u":/localisation/"_s + table) || !qApp->installTranslator(&texts))
                return QVariantMap();
            const QString path = AVConvertViewController::presetListOfLanguage();
            const QVariantMap list = PropertyList::readDictionaryFile(path).value_or(QVariantMap());
            const AVConvertViewController page(jobs);
            const auto &popUp = control<QComboBox>(page, "outputFormatPopUp");
            if (popUp.count() != list.size()
                || list.value(popUp.currentText()) != u"Preset3840x2160"_s)
                QTest::qFail(qPrintable(table), __FILE__, __LINE__);
            return list;
        };
        const QVariantMap english = listIn(u"toolvane_en.qm"_s);
        const auto presetsOf = [](const QVariantMap &list) {
            QStringList presets = QVariant(list.values()).toStringList();
            presets.sort();
            return presets;
        };
        const QStringList tables = QDir(u":/localisation"_s).entryList();
        QCOMPARE(tables.size(), 13);
        for (const QString &table : tables) {
            const QVariantMap list = listIn(table);
            QCOMPARE(presetsOf(list), presetsOf(english));
            QCOMPARE(list == english, table.endsWith(u"_en.qm"));
        }
    }
};

QTEST_MAIN(AVConvertPageTest)
#include "tst_avconvert_page.moc"
