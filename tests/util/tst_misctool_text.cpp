// Proves that the texts which MiscTool makes are exact to the character in every locale, with days
// of the user's own calendar and times of day of the Gregorian one.

#include "FixedText.h"
#include "LocalCalendar.h"
#include "MiscTool.h"

#include <QDateTime>
#include <QProcess>
#include <QTest>

#include <clocale>

using namespace Qt::StringLiterals;

class TestMiscToolText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        std::setlocale(LC_ALL, "");
        // Before ICU or Qt ask for it the first time; a zone with daylight-saving time.
        qputenv("TZ", "Europe/Berlin");
    }

    void numbersRoundExactly()
    {
        QCOMPARE(MiscTool::convertBytes(0), u"--"_s);
        QCOMPARE(MiscTool::convertBytes(1023), u"1023 Bytes"_s);
        QCOMPARE(MiscTool::convertBytes(1280), u"1.2 KB"_s); // A tie, to the even digit.
        QCOMPARE(MiscTool::convertBytes(1048575), u"1024.0 KB"_s);
        QCOMPARE(MiscTool::convertBytes(1073741823), u"1.00 GB"_s); // In single precision 2^30.
        QCOMPARE(fixedText(-2.5, 0), u"-2"_s);
        QCOMPARE(fixedText(std::numeric_limits<double>::max(), 100).size(), 309 + 1 + 100);
    }

    void sqlPieces()
    {
        QCOMPARE(MiscTool::UInteger2SQLString(std::numeric_limits<quint64>::max(), false),
                 u"18446744073709551615,"_s);
        QCOMPARE(MiscTool::NSString2SQLString(u"O'Neil"_s, true), u"'O'Neil'"_s);
    }

    void percentEscapes()
    {
        const QString kept = u"AZaz09-_.!~*'();/?:@&=+$,"_s;
        const std::pair<QString, QString> escapes[] = {
            {kept, kept},
            {u"# \"%<>[\\]^`{|}\u007f%41"_s,
             u"%23%20%22%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D%7F%2541"_s},
            {u"\ufeffé€😀"_s, u"%EF%BB%BF%C3%A9%E2%82%AC%F0%9F%98%80"_s},
            {u"a\n\u0000b"_s, u"a%0A%00b"_s},
        };
        for (const auto &[text, escaped] : escapes) {
            QCOMPARE(MiscTool::encode2UTF8(text), escaped);
            QCOMPARE(MiscTool::decodeFromUTF8(escaped), text);
        }
        const QString torn = QString(u'a') + QChar(0xd83d) + u'b' + QChar(0xde00);
        QCOMPARE(MiscTool::encode2UTF8(torn), u"a%EF%BF%BDb%EF%BF%BD"_s);
        const QString noEscapes = u"100% %zz %4\u0661 %"_s; // No digits of ASCII.
        QCOMPARE(MiscTool::decodeFromUTF8(noEscapes), noEscapes);
        for (const QString &text : {u"a%E2%82"_s, u"%C0%AF"_s, u"%ED%A0%80"_s})
            QVERIFY2(!MiscTool::decodeFromUTF8(text), qPrintable(text));
    }

    void theLocaleForDatesChoosesTheCalendar()
    {
        const auto day = [](const char *locale, QDate gregorian) {
            qputenv("LC_ALL", locale);
            const std::int64_t noon = QDateTime(gregorian, QTime(12, 0)).toMSecsSinceEpoch();
            const LocalDate date = localDateAt(noon);
            return QList<qint64>{date.year, date.month, date.day, date.weekday};
        };
        const QDate march(2024, 3, 7); // A Thursday.
        using Day = QList<qint64>; // Year, month, day, weekday.
        QCOMPARE(day("no such locale!", march), Day({2024, 3, 7, 5}));
        QCOMPARE(day("th_TH.UTF-8", march), Day({2567, 3, 7, 5}));
        QCOMPARE(day("fa_IR", QDate(2024, 3, 20)), Day({1403, 1, 1, 4})); // New year.
        QCOMPARE(day("ja_JP@calendar=japanese", march), Day({6, 3, 7, 5}));
    }

    void thisMomentIsThatOfTheSystem()
    {
        const auto byDate = [](const QString &format) {
            QProcess date;
            date.start(u"date"_s, {u'+' + format});
            date.waitForFinished();
            return QString::fromLatin1(date.readAllStandardOutput()).trimmed();
        };
        const auto isThatOfDate = [&byDate](const auto &ours, const QString &format) {
            for (int attempt = 0; attempt < 20; ++attempt) { // a second can end in between
                if (ours() == byDate(format))
                    return true;
            }
            return false;
        };
        qputenv("LC_ALL", "en_GB.UTF-8");
        QVERIFY(isThatOfDate(&MiscTool::getNow, u"%-Y-%-m-%-d %-H:%-M:%-S"_s));
        qputenv("LC_ALL", "fa_IR.UTF-8"); // the time of day stays Gregorian
        QVERIFY(isThatOfDate(&MiscTool::getTime, u"%-H:%-M:%-S"_s));
        const auto numbers = [] {
            return u"%1 %2 %3"_s.arg(MiscTool::getHour())
                .arg(MiscTool::getMinute())
                .arg(MiscTool::getSecond());
        };
        QVERIFY(isThatOfDate(numbers, u"%-H %-M %-S"_s));
        qputenv("LC_ALL", "en_GB.UTF-8");
        const std::int64_t midnight = 1704409200 * 1000LL; // 2024-01-04 23:00:00Z
        QCOMPARE(localDateAt(midnight).day, 5);
        QCOMPARE(localDateAt(midnight - 1).day, 4);
    }
};

QTEST_GUILESS_MAIN(TestMiscToolText)
#include "tst_misctool_text.moc"
