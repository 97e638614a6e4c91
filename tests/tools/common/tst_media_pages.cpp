// The video page passes the chosen format's preset on, and a list of formats that is broken makes a
// conversion fail, not the page. The speech page reads a text, or a sample of its own, with the
// chosen voice and rate, and says nothing about how that ended.

#include "AVConvertViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "PropertyList.h"
#include "RecordedProgram.h"
#include "SynthesisViewController.h"

#include <QComboBox>
#include <QDir>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTemporaryDir>
#include <QTranslator>

using namespace PageControls;
using namespace Qt::StringLiterals;

class MediaPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_boxes = std::make_unique<MessageBoxes>();
        m_page = std::make_unique<SynthesisViewController>(m_jobs);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    void passesThePresetOn()
    {
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
            AVConvertViewController page(m_jobs, nullptr, path);
            page.show();
            control<QComboBox>(page, "outputFormatPopUp").setCurrentText(format);
            fill(page, "sourceField", u"/a"_s);
            fill(page, "outputField", u"/b"_s);
            press(page, "convertButton");
            QTRY_COMPARE(m_boxes->texts, QStringList{u"Convert is failed."_s});
            m_boxes->texts.clear();
            QCOMPARE(program.arguments()->join(u'|'), arguments);
        }
    }

    void offersTheFormatsInEachLanguage()
    {
        const auto listIn = [this](const QString &table) {
            QTranslator texts;
            if (!texts.load(u":/localisation/"_s + table) || !qApp->installTranslator(&texts))
                return QVariantMap();
            const QString path = AVConvertViewController::presetListOfLanguage();
            const QVariantMap list = PropertyList::readDictionaryFile(path).value_or(QVariantMap());
            const AVConvertViewController page(m_jobs);
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

    void nothingToRead()
    {
        textField().setFocus();
        QTest::keyClick(m_page.get(), Qt::Key_Return); // the page's main action
        QCOMPARE(m_boxes->texts, QStringList{u"TextNullAlert"_s});
        QVERIFY(m_page->focusWidget() != &textField()); // not when the box has gone, either
        QVERIFY(m_jobs.isEmpty());
    }

    void goesWhileItRefuses()
    {
        m_boxes->whileShown = [this] { m_page.reset(); };
        press(*m_page, "readButton");
        QVERIFY(!m_page);
    }

    void readsSilently()
    {
        textField().setPlainText(u"--output-file=/x\n\"two\" lines"_s);
        control<QComboBox>(*m_page, "voicePopUp").setCurrentText(u"Norwegian Bokmål"_s);
        control<QSlider>(*m_page, "rateSlider").setValue(300);
        expectWords("readButton", 1,
                    u"--output-file=/x\n\"two\" lines|--voice=Norwegian Bokmål|--rate=300"_s);
        press(*m_page, "resetButton");
        expectWords("testButton", 0, u"I love you|--voice=Norwegian Bokmål|--rate=175"_s);
    }

private:
    QPlainTextEdit &textField() { return control<QPlainTextEdit>(*m_page, "textField"); }
    bool isIdle() { return control<QWidget>(*m_page, "readButton").isEnabled(); }

    void expectWords(const char *button, int status, const QString &arguments)
    {
        RecordedProgram program("say");
        program.endWith(status);
        press(*m_page, button);
        QVERIFY(!isIdle());
        QTRY_VERIFY(program.arguments() && isIdle());
        QCOMPARE(program.arguments()->join(u'|'), arguments);
        QVERIFY(m_boxes->texts.isEmpty());
    }

    JobList m_jobs;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<SynthesisViewController> m_page;
};

QTEST_MAIN(MediaPagesTest)
#include "tst_media_pages.moc"
