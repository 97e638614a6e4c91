// The video page passes the chosen format's preset on, and a list of formats that is broken makes a
// conversion fail, not the page.

#include "AVConvertViewController.h"
#include "JobList.h"
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
};

QTEST_MAIN(AVConvertPageTest)
#include "tst_avconvert_page.moc"
