// The speech page speaks with the chosen voice and rate without a word about the end, and saves in
// the chooser's completion with one.

#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"
#include "SynthesisViewController.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

static const QStringList controls{u"voicePopUp"_s,  u"testButton"_s, u"rateSlider"_s,
                                  u"resetButton"_s, u"readButton"_s, u"saveButton"_s};

class SynthesisPageTest : public QObject
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

    void nothingToRead()
    {
        textField().setFocus();
        QTest::keyClick(m_page.get(), Qt::Key_Return); // the page's main action
        QCOMPARE(m_boxes->texts, QStringList{u"[TextNullAlert]"_s});
        QVERIFY(m_page->focusWidget() != &textField()); // not when the box has gone, either
        QVERIFY(isIdle());
        QVERIFY(m_jobs.isEmpty());
    }

    void sampleIgnoresTheText()
    {
        RecordedProgram program("say");
        program.hold();
        press(*m_page, "testButton");
        QVERIFY(isWorking());
        QTRY_VERIFY(program.arguments());
        QCOMPARE(program.arguments()->join(u'|'),
                 u"I love you|--voice=English (America)|--rate=175"_s);
        program.release();
        QTRY_VERIFY(isIdle());
    }

    void readsSilently_data()
    {
        QTest::addColumn<int>("status");
        QTest::newRow("success") << 0;
        QTest::newRow("failure") << 1;
    }

    void readsSilently()
    {
        QFETCH(int, status);
        RecordedProgram program("say");
        program.endWith(status);
        textField().setPlainText(u"--output-file=/x\n\"two\" lines"_s);
        control<QComboBox>(*m_page, "voicePopUp").setCurrentText(u"Norwegian Bokmål"_s);
        control<QSlider>(*m_page, "rateSlider").setValue(300);
        press(*m_page, "readButton");
        QTRY_VERIFY(program.arguments());
        QCOMPARE(program.arguments()->join(u'|'),
                 u"--output-file=/x\n\"two\" lines|--voice=Norwegian Bokmål|--rate=300"_s);
        QTRY_VERIFY(isIdle());
        QVERIFY(m_boxes->texts.isEmpty());
    }

    void resetKeepsTheVoice()
    {
        auto &slider = control<QSlider>(*m_page, "rateSlider");
        auto &voices = control<QComboBox>(*m_page, "voicePopUp");
        voices.setCurrentText(u"German"_s);
        slider.setValue(slider.maximum());
        press(*m_page, "resetButton");
        QCOMPARE(slider.value(), 175);
        QCOMPARE(control<QLabel>(*m_page, "rateValueLabel").text(), u"175"_s);
        QCOMPARE(voices.currentText(), u"German"_s);
        QVERIFY(voices.count() >= 20);
    }

    void saves_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("a text") << u"text"_s << 0 << u"[SaveSuc]"_s;
        QTest::newRow("nothing") << QString() << 0 << u"[SaveSuc]"_s;
        QTest::newRow("failure") << u"text"_s << 1 << u"[SaveFail]"_s;
    }

    void saves()
    {
        QFETCH(QString, text);
        QFETCH(int, status);
        QFETCH(QString, message);
        RecordedProgram program("say");
        program.endWith(status);
        const QTemporaryDir folder;
        bool worksBehindTheBox = false;
        m_boxes->whileShown = [&] { worksBehindTheBox = isWorking(); };
        textField().setPlainText(text);
        press(*m_page, "saveButton");
        QVERIFY(isIdle()); // while one chooses
        answerChooser(*m_page, "saveChooser", folder.filePath(u"speech"_s));
        QTRY_COMPARE(m_boxes->texts, QStringList{message});
        const QStringList expected{text, u"--voice=English (America)"_s, u"--rate=175"_s,
                                   u"--output-file="_s + folder.filePath(u"speech.aiff"_s)};
        QCOMPARE(program.arguments(), expected);
        QVERIFY(worksBehindTheBox);
        QVERIFY(isIdle());
    }

    // The system starts no program with such an argument.
    void textTooLongForOneArgument()
    {
        const QTemporaryDir folder;
        textField().setPlainText(QString(131'072, u'x'));
        press(*m_page, "readButton");
        QVERIFY(isWorking());
        QTRY_VERIFY(isIdle());
        QVERIFY(m_boxes->texts.isEmpty());
        press(*m_page, "saveButton");
        answerChooser(*m_page, "saveChooser", folder.filePath(u"speech"_s));
        QTRY_COMPARE(m_boxes->texts, QStringList{u"[SaveFail]"_s});
        QVERIFY(isIdle());
    }

private:
    QPlainTextEdit &textField() { return control<QPlainTextEdit>(*m_page, "textField"); }
    bool isIdle() { return enabledOf(*m_page, controls) == controls && !textField().isReadOnly(); }
    bool isWorking() { return enabledOf(*m_page, controls).isEmpty() && textField().isReadOnly(); }

    MarkedTexts m_texts;
    JobList m_jobs;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<SynthesisViewController> m_page;
};

QTEST_MAIN(SynthesisPageTest)
#include "tst_synthesis_page.moc"
