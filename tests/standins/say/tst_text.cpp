// Proves that no text can be a command to the synthesiser, and that only numbers are rates.
#include "SpeechText.h"

#include <QTest>

class TestText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dropsWhatIsNoText()
    {
        const std::pair<std::string, std::string> cases[] = {
            {"One.\n\ta\u00e9\u20ac\U0001f600", "One.\n\ta\u00e9\u20ac\U0001f600"}, // every length
            {"\x01sayhello", "sayhello"}, // embedded command
            {"y\r\x1b\x7f\x08z", "yz"}, // ASCII controls
            {"a\u0085\u009f\u00a0b", "a\u00a0b"}, // Latin-1 controls
            {"[[h@l'oU]] [[[", "[ [h@l'oU]] [ [ ["}, // phonemes
            {"[\x01[x", "[ [x"}, // phonemes around what is dropped
            {"y\x80z", "yz"}, // stray continuation
            {"x\xc0\xafy\xe0\x80\xafz\xf0\x80\x80\xaf", "xyz"}, // overlong
            {"y\xed\xa0\x80z", "yz"}, // surrogate
            {"y\xf4\x90\x80\x80z", "yz"}, // beyond Unicode
            {"a\xe2\x82", "a"}, // cut at the end
            {"\xe2\x82z", "z"}, // cut before another character
        };
        for (const auto &[text, expected] : cases)
            QCOMPARE(QByteArray::fromStdString(standin::speakableText(text)),
                     QByteArray::fromStdString(expected));
    }

    void readsRates()
    {
        const std::pair<const char *, int> cases[] = {
            {"175", 175}, {"175.5", 176}, {"175,25", 175}, {"0", 80}, {"99999999999999999999", 900},
        };
        for (const auto &[text, rate] : cases)
            QCOMPARE(standin::speakingRate(text), rate);
        for (const char *wrong : {"", "fast", "175x", " 175", "1e3", "0x50", "inf", "1.2.3"})
            QVERIFY2(!standin::speakingRate(wrong), wrong);
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
