// The speech page reads a text, or a sample of its own, with the chosen voice and rate, and says
// nothing about how that ended.

#include "JobList.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"
#include "SynthesisViewController.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QSlider>

using namespace PageControls;
using namespace Qt::StringLiterals;

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
        QCOMPARE(m_boxes->texts, QStringList{u"TextNullAlert"_s});
        QVERIFY(m_page->focusWidget() != &textField()); // not when the box has gone, either
        QVERIFY(m_jobs.isEmpty());
    }

    // One argument holds 131,071 bytes; reading would fail without a word.
    void saysBeforeWhatWillFail()
    {
        const auto &hint = control<QLabel>(*m_page, "textHint");
        for (const auto &[text, advice] :
             {std::pair(QString(131'071, u'x'), QString()),
              std::pair(QString(131'072, u'x'), u"Speech.TooLong"_s),
              std::pair(QString(43'690, u'日'), QString()), // of three bytes each
              std::pair(QString(43'691, u'日'), u"Speech.TooLong"_s)}) {
            textField().setPlainText(text);
            QCOMPARE(hint.text(), advice);
            QCOMPARE(textField().accessibleDescription(), advice);
        }
        textField().setPlainText(u"short"_s);
        const QString program = programPath(u"/usr/bin/say"_s);
        const auto permissions = QFile::permissions(program);
        const auto restored = qScopeGuard([&] { QFile::setPermissions(program, permissions); });
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner)); // as good as missing
        m_page->hide();
        m_page->show();
        QCOMPARE(hint.text().isEmpty(), QFileInfo(u"/usr/bin/say"_s).isExecutable());
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

QTEST_MAIN(SynthesisPageTest)
#include "tst_synthesis_page.moc"
