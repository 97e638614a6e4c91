// Proves that the connection and its type follow the calls that are made, and that every call on a
// connection that is missing or closed fails as a call with an error.

#include "DB.h"
#include "DBSession.h"
#include "DBState.h"
#include "LogLines.h"
#include "SampleRecords.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

class TestDB : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        DB::reset();
        QFile::remove(DB::dbFilePath());
        LogLines::keepFromNow();
    }
    void cleanupTestCase() { DB::reset(); }

    void typeIsDecidedByTheFirstQuestion()
    {
        QCOMPARE(DB::exec(u"SELECT 1"_s), -1);
        QCOMPARE(LogLines::take(), QStringList{u"[DB]->(exec):"_s});
        QVERIFY(!DB::select(u"SELECT 1"_s, PriceSchema{}));
        QVERIFY(LogLines::take().isEmpty());
        QVERIFY(DBState::current().type.isNull());
        QCOMPARE(DB::getDBType(), u"webservice"_s);
        QCOMPARE(DB::exec(u"SELECT 1"_s), -1);
        QCOMPARE(DB::open(), 0);
        QCOMPARE(DB::getDBType(), u"sqlite3"_s);
        DB::close();
        QCOMPARE(DB::getDBType(), u"sqlite3"_s);
    }

    void webServiceAddressIsForgottenByCloseInItsTypeOnly()
    {
        QVERIFY(!DB::getWebServiceURL());
        QCOMPARE(DB::open(u"http://127.0.0.1/"_s), 0);
        DB::close();
        QCOMPARE(DB::getWebServiceURL(), u"http://127.0.0.1/"_s);
        DB::open();
        DB::close();
        QCOMPARE(DB::getWebServiceURL(), u"http://127.0.0.1/"_s);
        DB::reset();
        DB::open(u"http://127.0.0.1/"_s);
        DB::getDBType();
        DB::close();
        QVERIFY(!DB::getWebServiceURL());
    }

    void fileIsTheOwnersAlone()
    {
        DB::open();
        QVERIFY(DB::dbFilePath().endsWith("/Documents/DB.sqlite3"_L1));
        const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFileInfo(DB::dbFilePath()).permissions(), mode);
        QCOMPARE(DB::exec(u"CREATE TABLE T(ID INTEGER)"_s), 0);
        DB::close();
        QVERIFY(QFile::setPermissions(DB::dbFilePath(), mode | QFile::ReadOther));
        DB::open();
        QCOMPARE(QFileInfo(DB::dbFilePath()).permissions(), mode | QFile::ReadOther);
        QCOMPARE(DB::getTables(), QStringList{u"T"_s});
    }

    void closedConnectionFailsWithoutACrash_data()
    {
        QTest::addColumn<bool>("wasOpened");
        QTest::newRow("never opened") << false;
        QTest::newRow("closed") << true;
    }

    void closedConnectionFailsWithoutACrash()
    {
        QFETCH(bool, wasOpened);
        DBState::current().type = u"sqlite3"_s;
        if (wasOpened)
            DB::open();
        const auto *handle = DB::getDatabase();
        QCOMPARE(handle != nullptr, wasOpened);
        DB::close();
        QCOMPARE(DB::getDatabase(), handle);
        DB::close();
        QCOMPARE(DB::exec(u"SELECT 1"_s), SQLITE_MISUSE);
        QVERIFY(!DB::select(u"SELECT 1"_s, PriceSchema{}));
        QVERIFY(!DB::select(u"SELECT 1"_s, PriceSchema{}, 0, 3));
        QVERIFY(DB::getTables().isEmpty());
        QVERIFY(DB::getColumns(u"T"_s).isEmpty());
        QVERIFY(DB::getRecords(u"T"_s).isEmpty());
        const QStringList expected{u"[DB]->(exec):"_s,
                                   u"[DB]->(select):failed"_s,
                                   u"[DB]->(select):failed"_s,
                                   u"[DB](getTables):Select Failed."_s,
                                   u"[DB](getColumns):Select Failed."_s,
                                   u"[DB](getColumns):Select Failed."_s};
        QCOMPARE(LogLines::take(), expected);
    }

    void openLeavesAnEarlierConnectionOpen()
    {
        DB::open();
        sqlite3 *earlier = DB::getDatabase();
        DB::open();
        QVERIFY(DB::getDatabase() != earlier);
        QCOMPARE(sqlite3_exec(earlier, "SELECT 1", nullptr, nullptr, nullptr), SQLITE_OK);
    }

    void openFlagIsNoCount()
    {
        QVERIFY(!DBSession::isDBOpen());
        DBSession::closeDB();
        DBSession::openDB();
        sqlite3 *first = DB::getDatabase();
        DBSession::openDB();
        QCOMPARE(DB::getDatabase(), first);
        {
            const DBScope scope;
        }
        QVERIFY(DBSession::isDBOpen());
        DBSession::closeDB();
        QVERIFY(!DBSession::isDBOpen());
        QCOMPARE(DB::exec(u"SELECT 1"_s), SQLITE_MISUSE);
        {
            const DBScope scope;
            QCOMPARE(DB::exec(u"SELECT 1"_s), SQLITE_OK);
        }
        QVERIFY(!DBSession::isDBOpen());
    }

    void catalogueReadsBackTablesColumnsAndRows()
    {
        DB::open();
        QCOMPARE(DB::exec(u"CREATE TABLE IF NOT EXISTS Price(ID INTEGER PRIMARY KEY AUTOINCREMENT,"
                          "Name TEXT,Amount REAL)"_s),
                 0);
        QCOMPARE(DB::exec(u"INSERT INTO Price(Name,Amount) VALUES('Tür',1.5); "_s), 0);
        QCOMPARE(DB::exec(u"INSERT INTO Price(Name) VALUES('b')"_s), 0);
        QCOMPARE(DB::getTables(), QStringList{u"Price"_s});
        const QStringList columns{u"ID"_s, u"Name"_s, u"Amount"_s};
        QCOMPARE(DB::getColumns(u"Price"_s), columns);
        QVERIFY(DB::getColumns(u"Nowhere"_s).isEmpty());
        using Row = QMap<QString, QString>;
        const Row first{{u"ID"_s, u"1"_s}, {u"Name"_s, u"Tür"_s}, {u"Amount"_s, u"1.5"_s}};
        const Row second{{u"ID"_s, u"2"_s}, {u"Name"_s, u"b"_s}, {u"Amount"_s, QString()}};
        QCOMPARE(DB::getRecords(u"Price"_s), (QList<Row>{first, second}));
        // The names come from the table, whatever the statement selects.
        const Row other{{u"ID"_s, u"b"_s}, {u"Name"_s, QString()}, {u"Amount"_s, QString()}};
        QCOMPARE(DB::getRecordsBySQL(u"SELECT Name FROM Price WHERE ID=2"_s, u"Price"_s),
                 QList<Row>{other});
        QVERIFY(LogLines::take().isEmpty());
        DB::getRecordsBySQL(u"SELECT * FROM Price"_s, u"it's"_s);
        QCOMPARE(LogLines::take(), QStringList(2, u"[DB](getColumns):Select Failed."_s));
    }

    void aCallRunsOneStatement()
    {
        DB::open();
        QCOMPARE(DB::exec(u"CREATE TABLE Price(ID INTEGER,Name TEXT)"_s), 0);
        QCOMPARE(DB::exec(u"INSERT INTO Price VALUES(1,'a;b')"_s), 0);
        QVERIFY(LogLines::take().isEmpty());
        // What a value holds that ends its own quotes.
        QCOMPARE(DB::exec(u"INSERT INTO Price VALUES(2,'x');DROP TABLE Price;--')"_s),
                 SQLITE_MISUSE);
        QCOMPARE(LogLines::take(), QStringList{u"[DB]->(exec):more than one statement"_s});
        QCOMPARE(DB::getRecords(u"Price"_s).size(), 1);
    }

    void columnsAreCutOutByLength()
    {
        const std::pair<QString, QStringList> cases[] = {
            {u"create table X[ID INTEGER]"_s, {u"ID"_s}}, // other words of the same length
            {u"CREATE TABLE T(A DECIMAL(1,2))"_s, {u"A"_s, u"2)"_s}},
            {u"CREATE TABLE T( X)"_s, {QString()}},
            {u"CREATE TABLE T("_s, {}}, // too short
            {QString(), {}},
        };
        for (const auto &[createText, columns] : cases)
            QCOMPARE(DB::convert2Columns(DB::getColumnsWithType(createText, u"T"_s)), columns);
    }
};

QTEST_GUILESS_MAIN(TestDB)
#include "tst_db.moc"
