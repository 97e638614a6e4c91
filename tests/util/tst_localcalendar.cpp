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

    void days_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QDate>("gregorian");
        QTest::addColumn<QList<qint64>>("local"); // Year, month, day, weekday.
        const QDate march(2024, 3, 7); // A Thursday.
        const auto row = [](const char *locale, QDate gregorian, const QList<qint64> &local) {
            QTest::addRow("%s %s", locale, qPrintable(gregorian.toString(Qt::ISODate)))
                << QByteArray(locale) << gregorian << local;
        };
        row("", march, {2024, 3, 7, 5});
        row("C", march, {2024, 3, 7, 5});
        row("de_DE.UTF-8", QDate(2025, 1, 5), {2025, 1, 5, 1});
        row("tr_TR.UTF-8", QDate(2024, 12, 28), {2024, 12, 28, 7});
        row("no such locale!", march, {2024, 3, 7, 5});
        row("th_TH.UTF-8", march, {2567, 3, 7, 5});
        row("fa_IR", march, {1402, 12, 17, 5});
        row("fa_IR", QDate(2024, 3, 20), {1403, 1, 1, 4}); // New year's day.
        row("de_DE@calendar=hebrew", QDate(2024, 10, 3), {5785, 1, 1, 5});
        row("ja_JP@calendar=japanese", march, {6, 3, 7, 5});
    }
    void days()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QDate, gregorian);
        QFETCH(QList<qint64>, local);
        qputenv("LC_ALL", locale);
        const LocalDate date = localDateAt(moment(gregorian, QTime(12, 0)));
        QCOMPARE(QList<qint64>({date.year, date.month, date.day, date.weekday}), local);
    }

    void theLocaleForDatesCounts()
    {
        const std::int64_t noon = moment(QDate(2024, 3, 7), QTime(12, 0));
        qputenv("LANG", "th_TH.UTF-8");
        QCOMPARE(localDateAt(noon).year, 2567);
        qputenv("LC_TIME", "en_GB.UTF-8");
        QCOMPARE(localDateAt(noon).year, 2024);
        qputenv("LC_ALL", "fa_IR.UTF-8");
        QCOMPARE(localDateAt(noon).year, 1402);
    }

    void timesOfDay_data()
    {
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QTime>("time");
        QTest::newRow("winter") << qint64(1704445503) << QTime(10, 5, 3); // 2024-01-05 09:05:03Z
        QTest::newRow("summer") << qint64(1719792000) << QTime(2, 0, 0); // 2024-07-01 00:00:00Z
        QTest::newRow("evening") << qint64(1704495599) << QTime(23, 59, 59);
        QTest::newRow("before the clock change") << qint64(1711846799) << QTime(1, 59, 59);
        QTest::newRow("after the clock change") << qint64(1711846800) << QTime(3, 0, 0);
    }
    void timesOfDay()
    {
        QFETCH(qint64, seconds);
        for (const char *locale : {"en_GB.UTF-8", "th_TH.UTF-8", "fa_IR.UTF-8"}) {
            qputenv("LC_ALL", locale);
            const LocalTime time = localTimeAt(seconds * 1000 + 999);
            QTEST(QTime(int(time.hour), int(time.minute), int(time.second)), "time");
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
