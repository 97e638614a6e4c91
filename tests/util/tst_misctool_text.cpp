// Proves that the texts which MiscTool makes are exact to the character in every locale.

#include "FixedText.h"
#include "MiscTool.h"

#include <QRegularExpression>
#include <QTest>

#include <clocale>
#include <limits>

using namespace Qt::StringLiterals;

class tst_MiscTool_Text : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { std::setlocale(LC_ALL, ""); }

    void convertBytes()
    {
        QCOMPARE(MiscTool::convertBytes(0), u"--"_s);
        QCOMPARE(MiscTool::convertBytes(1023), u"1023 Bytes"_s);
        QCOMPARE(MiscTool::convertBytes(1024), u"1.0 KB"_s);
        QCOMPARE(MiscTool::convertBytes(1280), u"1.2 KB"_s); // A tie, to the even digit.
        QCOMPARE(MiscTool::convertBytes(1048575), u"1024.0 KB"_s);
        QCOMPARE(MiscTool::convertBytes(1048576), u"1.0 MB"_s);
        QCOMPARE(MiscTool::convertBytes(1073741823), u"1.00 GB"_s); // In single precision 2^30.
        QCOMPARE(MiscTool::convertBytes(1073741759), u"1024.0 MB"_s); // The last that is not.
        QCOMPARE(MiscTool::convertBytes(std::numeric_limits<quint64>::max()),
                 u"17179869184.00 GB"_s);
    }

    void fixedTextRoundsExactly()
    {
        QCOMPARE(fixedText(-2.5, 0), u"-2"_s);
        QCOMPARE(fixedText(1.005, 2), u"1.00"_s); // The double lies below.
        QCOMPARE(fixedText(1234567.891, 2), u"1234567.89"_s);
        QCOMPARE(fixedText(std::numeric_limits<double>::max(), 100).size(), 309 + 1 + 100);
        QCOMPARE(fixedText(-std::numeric_limits<double>::infinity(), 2), u"-inf"_s);
    }

    void sqlPieces()
    {
        QCOMPARE(MiscTool::UInteger2SQLString(7, true), u"7"_s);
        QCOMPARE(MiscTool::UInteger2SQLString(std::numeric_limits<quint64>::max(), false),
                 u"18446744073709551615,"_s);
        QCOMPARE(MiscTool::NSString2SQLString(u"O'Neil"_s, false), u"'O'Neil',"_s);
        QCOMPARE(MiscTool::NSString2SQLString(QString(), true), u"''"_s);
    }

    void byteStrings()
    {
        QCOMPARE(MiscTool::getNSString(nullptr), u""_s);
        QVERIFY(!MiscTool::getNSString(nullptr).isNull());
        QCOMPARE(MiscTool::getNSString("Gr\xc3\xbc\xc3\x9f"), u"Grüß"_s);
        QCOMPARE(MiscTool::getNSString("\xef\xbb\xbfx"), u"\ufeffx"_s);
        QCOMPARE(MiscTool::getNSString("a\xff"), u"a\ufffd"_s);
    }

    void logLine()
    {
        QTest::ignoreMessage(QtInfoMsg, "[DB]->(open):cannot open");
        MiscTool::printMsg(u"DB"_s, u"open"_s, u"cannot open"_s);
        QTest::ignoreMessage(QtInfoMsg, "[]->(a b):\"quoted\" \\ %s %1\nnext ");
        MiscTool::printMsg(QString(), u"a b"_s, u"\"quoted\" \\ %s %1\nnext "_s);
    }

    void percentEscapes()
    {
        const QString kept = u"AZaz09-_.!~*'();/?:@&=+$,#"_s;
        const std::pair<QString, QString> escapes[] = {
            {kept, kept},
            {u" \"%<>[\\]^`{|}\u007f%41"_s, u"%20%22%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D%7F%2541"_s},
            {u"\ufeffé€😀"_s, u"%EF%BB%BF%C3%A9%E2%82%AC%F0%9F%98%80"_s},
            {u"a\n\u0000b"_s, u"a%0A%00b"_s},
            {u"Iiıİ"_s, u"Ii%C4%B1%C4%B0"_s},
        };
        for (const auto &[text, escaped] : escapes) {
            QCOMPARE(MiscTool::encode2UTF8(text), escaped);
            QCOMPARE(MiscTool::decodeFromUTF8(escaped), text);
        }
        const QString torn = QString(u'a') + QChar(0xd83d) + u'b' + QChar(0xde00);
        QCOMPARE(MiscTool::encode2UTF8(torn), u"a%EF%BF%BDb%EF%BF%BD"_s);
        QCOMPARE(MiscTool::decodeFromUTF8(torn), u"a\ufffdb\ufffd"_s);
    }

    void decoding()
    {
        QCOMPARE(MiscTool::decodeFromUTF8(u"é%c3%a9+"_s), u"éé+"_s);
        for (const QString &text : {u"100% %zz %4 %"_s, u"%4\u0661"_s}) // No digits of ASCII.
            QCOMPARE(MiscTool::decodeFromUTF8(text), text);
        QCOMPARE(MiscTool::decodeFromUTF8(u"%EF%BF%BE"_s), QString(QChar(0xfffe)));
        for (const QString &text : {u"%E9"_s, u"a%E2%82"_s, u"%C0%AF"_s, u"%ED%A0%80"_s})
            QVERIFY2(!MiscTool::decodeFromUTF8(text), qPrintable(text));
    }

    void nowIsWrittenWithoutPadding()
    {
        static const QRegularExpression shape(
            u"^\\d+-[1-9]\\d?-[1-9]\\d? (\\d|1\\d|2[0-3]):(\\d|[1-5]\\d):(\\d|[1-5]\\d)$"_s);
        QVERIFY2(shape.match(MiscTool::getNow()).hasMatch(), qPrintable(MiscTool::getNow()));
        // A second boundary may lie between the calls, hardly two.
        const auto joined = [] { return MiscTool::getToday() + u' ' + MiscTool::getTime(); };
        QVERIFY(MiscTool::getNow() == joined() || MiscTool::getNow() == joined());
        QCOMPARE(MiscTool::getDefaultStartDate(), u"1970-01-01"_s);
        QCOMPARE(MiscTool::getDefaultStartTime(), u"1970-01-01 00:00:00"_s);
    }
};

QTEST_GUILESS_MAIN(tst_MiscTool_Text)
#include "tst_misctool_text.moc"
