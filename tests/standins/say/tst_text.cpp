// Proves that no text can be a command to the synthesiser, and that only numbers are rates.
#include "SpeechText.h"

#include <QTest>

class TestText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dropsWhatIsNoText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *title, const char *text, const char *expected) {
            QTest::newRow(title) << QByteArray(text) << QByteArray(expected);
        };
        row("plain", "One, two.\n\tThree", "One, two.\n\tThree");
        row("every length", "a\u00e9\u20ac\U0001f600", "a\u00e9\u20ac\U0001f600");
        row("embedded command",
            "\x01"
            "450Shello",
            "450Shello");
        row("ASCII controls",
            "a\r\x1b\x7f\x08"
            "b",
            "ab");
        row("Latin-1 controls", "a\u0085\u009f\u00a0b", "a\u00a0b");
        row("phonemes", "[[h@l'oU]] [[[", "[ [h@l'oU]] [ [ [");
        row("phonemes around what is dropped", "[\x01[x", "[ [x");
        row("stray continuation",
            "a\x80"
            "b",
            "ab");
        row("overlong",
            "a\xc0\xaf"
            "b\xe0\x80\xaf"
            "c\xf0\x80\x80\xaf",
            "abc");
        row("surrogate",
            "a\xed\xa0\x80"
            "b",
            "ab");
        row("beyond Unicode",
            "a\xf4\x90\x80\x80"
            "b",
            "ab");
        row("cut at the end", "a\xe2\x82", "a");
        row("cut before a letter", "\xe2\x82z", "z");
    }
    void dropsWhatIsNoText()
    {
        QFETCH(QByteArray, text);
        const std::string result = standin::speakableText({text.data(), size_t(text.size())});
        QTEST(QByteArray::fromStdString(result), "expected");
    }

    void readsRates_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("expected"); // 0: refused
        const auto row = [](const char *text, int expected) {
            QTest::newRow(text) << QByteArray(text) << expected;
        };
        row("175", 175);
        row("175.5", 176);
        row("175,25", 175);
        row("80.0", 80);
        row("0", 80);
        row("-7", 80);
        row("99999999999999999999", 900);
        for (const char *wrong :
             {"", " ", "fast", "175x", " 175", "1e3", "0x50", "inf", "nan", "1.2.3"})
            row(wrong, 0);
    }
    void readsRates()
    {
        QFETCH(QByteArray, text);
        QTEST(standin::speakingRate(text.toStdString()).value_or(0), "expected");
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
