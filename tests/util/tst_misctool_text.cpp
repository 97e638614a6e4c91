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

    void convertBytes_data()
    {
        QTest::addColumn<quint64>("count");
        QTest::addColumn<QString>("text");
        const auto row = [](quint64 count, const char *text) {
            QTest::addRow("%llu", count) << count << QString::fromLatin1(text);
        };
        row(0, "--");
        row(1, "1 Bytes");
        row(1023, "1023 Bytes");
        row(1024, "1.0 KB");
        row(1280, "1.2 KB"); // A tie, to the even digit.
        row(1536, "1.5 KB");
        row(1048575, "1024.0 KB");
        row(1048576, "1.0 MB");
        row(1073741823, "1.00 GB"); // Single precision makes it 2^30.
        row(1073741759, "1024.0 MB"); // The last one that it does not.
        row(5368709120, "5.00 GB");
        row(1000000000000, "931.32 GB");
        row(std::numeric_limits<quint64>::max(), "17179869184.00 GB");
    }
    void convertBytes()
    {
        QFETCH(quint64, count);
        QTEST(MiscTool::convertBytes(count), "text");
    }

    void fixedTextRoundsExactly()
    {
        QCOMPARE(fixedText(0.125, 2), u"0.12"_s);
        QCOMPARE(fixedText(-2.5, 0), u"-2"_s);
        QCOMPARE(fixedText(1.005, 2), u"1.00"_s); // The double lies below.
        QCOMPARE(fixedText(1234567.891, 2), u"1234567.89"_s);
        QCOMPARE(fixedText(0.1, 6), u"0.100000"_s);
        QCOMPARE(fixedText(-0.0, 1), u"-0.0"_s);
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

    void percentEscapes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("escaped");
        const QString kept = u"AZaz09-_.!~*'();/?:@&=+$,#"_s;
        QTest::newRow("what may stand") << kept << kept;
        QTest::newRow("what may not")
            << u" \"%<>[\\]^`{|}\u007f"_s << u"%20%22%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D%7F"_s;
        QTest::newRow("beyond ASCII") << u"é€😀"_s << u"%C3%A9%E2%82%AC%F0%9F%98%80"_s;
        QTest::newRow("control") << u"a\n\u0000b"_s << u"a%0A%00b"_s;
        QTest::newRow("byte order mark") << u"\ufeffa"_s << u"%EF%BB%BFa"_s;
        QTest::newRow("escaped already") << u"%41"_s << u"%2541"_s;
        QTest::newRow("Turkish i") << u"Iiıİ"_s << u"Ii%C4%B1%C4%B0"_s;
        QTest::newRow("empty") << u""_s << u""_s;
    }
    void percentEscapes()
    {
        QFETCH(QString, text);
        QTEST(MiscTool::encode2UTF8(text), "escaped");
        QCOMPARE(MiscTool::decodeFromUTF8(MiscTool::encode2UTF8(text)), text);
    }

    void unpairedSurrogates()
    {
        const QString torn = QString(u'a') + QChar(0xd83d) + u'b' + QChar(0xde00);
        QCOMPARE(MiscTool::encode2UTF8(torn), u"a%EF%BF%BDb%EF%BF%BD"_s);
        QCOMPARE(MiscTool::decodeFromUTF8(torn), u"a\ufffdb\ufffd"_s);
    }

    void decoding_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<QString>>("decoded");
        using Result = std::optional<QString>;
        QTest::newRow("lower case") << u"%c3%a9+"_s << Result(u"é+"_s);
        QTest::newRow("no digits") << u"100% %zz %4 %"_s << Result(u"100% %zz %4 %"_s);
        QTest::newRow("digit of another script") << u"%4\u0661"_s << Result(u"%4\u0661"_s);
        QTest::newRow("plain text") << u"é"_s << Result(u"é"_s);
        QTest::newRow("noncharacter") << u"%EF%BF%BE"_s << Result(QString(QChar(0xfffe)));
        QTest::newRow("Latin-1") << u"%E9"_s << Result();
        QTest::newRow("cut off") << u"a%E2%82"_s << Result();
        QTest::newRow("overlong") << u"%C0%AF"_s << Result();
        QTest::newRow("surrogate") << u"%ED%A0%80"_s << Result();
        QTest::newRow("beyond Unicode") << u"%F4%90%80%80"_s << Result();
    }
    void decoding()
    {
        QFETCH(QString, text);
        QTEST(MiscTool::decodeFromUTF8(text), "decoded");
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
