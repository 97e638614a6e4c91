// The video page passes the chosen format's preset on; a list that is broken makes a conversion
// fail, and not the page.

#include "AVConvertViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"

#include <QComboBox>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

class AVConvertPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesThePresetOn_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QString>("arguments");
        const QByteArray list = "<plist><dict><key>b</key><string>PresetB</string><key>number</key>"
                                "<integer>1</integer><key>a</key><string>PresetA</string></dict>"
                                "</plist>";
        QTest::newRow("b") << list << u"--preset|PresetB|--source|/a|--output|/b|-q"_s;
        QTest::newRow("number") << list << u"--preset"_s;
        QTest::newRow("no list") << QByteArray("<plist><array/></plist>") << u"--preset"_s;
    }

    void passesThePresetOn()
    {
        QFETCH(QByteArray, list);
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"list"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(list) == list.size());
        file.close();
        JobList jobs;
        const MessageBoxes boxes;
        RecordedProgram program("avconvert");
        program.endWith(64);
        AVConvertViewController page(jobs, nullptr, file.fileName());
        page.show();
        control<QComboBox>(page, "outputFormatPopUp")
            .setCurrentText(QString::fromLatin1(QTest::currentDataTag()));
        fill(page, "sourceField", u"/a"_s);
        fill(page, "outputField", u"/b"_s);
        press(page, "convertButton");
        QTRY_COMPARE(boxes.texts, QStringList{u"Convert is failed."_s});
        QTEST(program.arguments()->join(u'|'), "arguments");
    }
};

QTEST_MAIN(AVConvertPageTest)
#include "tst_avconvert_page.moc"
