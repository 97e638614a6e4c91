// Proves that with a database file that cannot be used every operation fails with an error, and
// that the file stays as it was.

#include "BLGeneral.h"
#include "BusyBudget.h"
#include "DB.h"
#include "LogLines.h"
#include "SampleRecords.h"
#include "WithoutPrivilege.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <sqlite3.h>
#include <sys/stat.h>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

QByteArray contents()
{
    QFile file(DB::dbFilePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QByteArray &bytes)
{
    QFile file(DB::dbFilePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

/// Each write returns false and logs one line; each select returns none and logs one line.
void allOperationsFail(BLGeneral &gateway)
{
    LogLines::take();
    QVERIFY(!gateway.initTable());
    QVERIFY(!gateway.insert(PriceSchema{0, u"b"_s, 2}));
    QVERIFY(!gateway.update(PriceSchema{1, u"c"_s, 3}));
    QVERIFY(!gateway.delete_("1=1"));
    const QStringList lines = LogLines::take();
    QCOMPARE(lines.size(), 4);
    for (const QString &line : lines)
        QVERIFY2(line.startsWith("[DB]->(exec):"_L1), qPrintable(line));
    QVERIFY(!gateway.select("1=1", PriceSchema{}));
    QVERIFY(!gateway.select("1=1", PriceSchema{}, 0, 3));
    QCOMPARE(LogLines::take(), QStringList(2, u"[DB]->(select):failed"_s));
}

} // namespace

class TestBrokenFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A table with a few pages of rows, closed.
    void init()
    {
        DB::reset();
        DBSession::openDB();
        BLGeneral gateway(u"Price"_s);
        DB::exec(u"BEGIN"_s);
        for (int i = 0; i < 300; ++i)
            QVERIFY(gateway.insert(PriceSchema{0, QString(30, u'n'), 1}));
        DB::exec(u"COMMIT"_s);
        DBSession::closeDB();
        LogLines::keepFromNow();
    }

    void cleanup()
    {
        DB::reset();
        chmod(QFile::encodeName(DB::dbFilePath()).constData(), 0600);
        QDir().rmdir(DB::dbFilePath());
        QFile::remove(DB::dbFilePath());
    }

    void isAFolder()
    {
        QFile::remove(DB::dbFilePath());
        QVERIFY(QDir().mkdir(DB::dbFilePath()));
        QCOMPARE(DB::open(), SQLITE_CANTOPEN);
        QVERIFY(LogLines::take().isEmpty());
        BLGeneral gateway(u"Price"_s);
        allOperationsFail(gateway);
    }

    void holdsNoise()
    {
        const QByteArray before = QByteArray("no database ").repeated(5000);
        write(before);
        BLGeneral gateway(u"Price"_s);
        allOperationsFail(gateway);
        QVERIFY(DB::getTables().isEmpty());
        QCOMPARE(contents(), before);
    }

    void isCutShort()
    {
        const QByteArray whole = contents();
        write(whole.first(whole.size() - 4096));
        BLGeneral gateway(u"Price"_s);
        LogLines::take();
        QVERIFY(!gateway.insert(PriceSchema{0, u"b"_s, 2}));
        QCOMPARE(LogLines::take(), QStringList{u"[DB]->(exec):database disk image is malformed"_s});
        write(whole.first(whole.size() / 2) + QByteArray(whole.size() / 2, '\0'));
        // The rows up to the damage are read, but not taken for all.
        DB::open();
        const auto read = DB::select(u"SELECT * FROM Price"_s, PriceSchema{});
        QVERIFY(read && !read->isEmpty() && read->size() < 300);
        QVERIFY(!gateway.select("1=1", PriceSchema{}));
        QVERIFY(!gateway.select("1=1", PriceSchema{}, 0, 300));
        DB::close();
        write(whole.first(2000));
        allOperationsFail(gateway);
    }

    void isReadOnly()
    {
        const QByteArray before = contents();
        const WithoutPrivilege plainUser;
        chmod(QFile::encodeName(DB::dbFilePath()).constData(), 0400);
        BLGeneral gateway(u"Price"_s);
        LogLines::take();
        QVERIFY(!gateway.insert(PriceSchema{0, u"b"_s, 2}));
        QCOMPARE(LogLines::take(),
                 QStringList{u"[DB]->(exec):attempt to write a readonly database"_s});
        QCOMPARE(gateway.select("1=1", PriceSchema{})->size(), 300);
        QCOMPARE(contents(), before);
    }

    void isLockedByAnotherConnection()
    {
        DBSession::openDB();
        BLGeneral gateway(u"Price"_s);
        gateway.select("1=1", PriceSchema{}); // from now on a statement fails at its first row only
        sqlite3 *other = nullptr;
        sqlite3_open16(DB::dbFilePath().utf16(), &other);
        QCOMPARE(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        constexpr std::chrono::milliseconds timeout{200};
        const auto usual = std::exchange(BusyBudget::timeout(), timeout);
        QElapsedTimer clock;
        clock.start();
        {
            const BusyBudget budget;
            const BusyBudget inner; // gives nothing more
            allOperationsFail(gateway);
            QVERIFY(BusyBudget::isUsedUp());
        }
        QVERIFY(clock.elapsed() >= timeout.count());
        QVERIFY(clock.elapsed() < 5 * timeout.count()); // 6 statements
        clock.start();
        QVERIFY(!gateway.select("1=1", PriceSchema{}));
        QVERIFY(clock.elapsed() >= timeout.count()); // a statement of its own waits again
        BusyBudget::timeout() = usual;
        sqlite3_close(other);
        QVERIFY(gateway.insert(PriceSchema{0, u"b"_s, 2}));
        QCOMPARE(gateway.select("1=1", PriceSchema{})->size(), 301);
    }
};

QTEST_GUILESS_MAIN(TestBrokenFile)
#include "tst_brokenfile.moc"
