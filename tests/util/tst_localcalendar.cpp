// Proves that days are counted by the user's own calendar and times of day by the Gregorian one.

#include "LocalCalendar.h"

#include <QDateTime>
#include <QTest>
#include <QTimeZone>

class tst_LocalCalendar : public QObject
{
    Q_OBJECT

    static std::int64_t moment(QDate date, QTime time)
    {
        return QDateTime(date, time).toMSecsSinceEpoch();
    }

private Q_SLOTS:
    // Before ICU or Qt ask for it the first time; a zone with daylight-saving time.
    void initTestCase() { qputenv("TZ", "Europe/Berlin"); }
    void init()
    {
        for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"})
            qunsetenv(variable);
    }

    void theLocaleForDatesChoosesTheCalendar()
    {
        const auto day = [](const char *variable, const char *locale, QDate gregorian) {
            qputenv(variable, locale);
            const LocalDate date = localDateAt(moment(gregorian, QTime(12, 0)));
            return QList<qint64>{date.year, date.month, date.day, date.weekday};
        };
        const QDate march(2024, 3, 7); // A Thursday.
        using Day = QList<qint64>; // Year, month, day, weekday.
        QCOMPARE(day("LANG", "", march), Day({2024, 3, 7, 5}));
        QCOMPARE(day("LANG", "no such locale!", march), Day({2024, 3, 7, 5}));
        QCOMPARE(day("LANG", "th_TH.UTF-8", march), Day({2567, 3, 7, 5}));
        QCOMPARE(day("LC_TIME", "de_DE.UTF-8", QDate(2025, 1, 5)), Day({2025, 1, 5, 1}));
        QCOMPARE(day("LC_TIME", "tr_TR.UTF-8", QDate(2024, 12, 28)), Day({2024, 12, 28, 7}));
        QCOMPARE(day("LC_ALL", "fa_IR", QDate(2024, 3, 20)), Day({1403, 1, 1, 4})); // New year.
        QCOMPARE(day("LC_ALL", "ja_JP@calendar=japanese", march), Day({6, 3, 7, 5}));
    }

    void timesOfDayAreGregorianAndLocal()
    {
        const auto timeAt = [](qint64 seconds) {
            const LocalTime time = localTimeAt(seconds * 1000 + 999);
            return QTime(int(time.hour), int(time.minute), int(time.second));
        };
        for (const char *locale : {"en_GB.UTF-8", "th_TH.UTF-8", "fa_IR.UTF-8"}) {
            qputenv("LC_ALL", locale);
            QCOMPARE(timeAt(1704445503), QTime(10, 5, 3)); // 2024-01-05 09:05:03Z
            QCOMPARE(timeAt(1704495599), QTime(23, 59, 59));
            QCOMPARE(timeAt(1711846799), QTime(1, 59, 59)); // the clock changes
            QCOMPARE(timeAt(1711846800), QTime(3, 0, 0));
        }
    }

    void midnightBelongsToTheLocalDay()
    {
        const std::int64_t midnight = 1704409200 * 1000LL; // 2024-01-04 23:00:00Z
        QCOMPARE(localDateAt(midnight).day, 5);
        QCOMPARE(localDateAt(midnight - 1).day, 4);
        QCOMPARE(localTimeAt(midnight).hour, 0);
    }
};

QTEST_GUILESS_MAIN(tst_LocalCalendar)
#include "tst_localcalendar.moc"
