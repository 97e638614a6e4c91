// Proves that the connection follows the calls that are made and is left as the callers had it,
// that records go into the local database and back, and that what cannot work fails with an error.

#include "BLGeneral.h"
#include "DB.h"
#include "LogLines.h"
#include "SampleRecords.h"
#include "UserSchema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTest>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

class TestDB : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The database type is "sqlite3", the database closed and empty.
    void init()
    {
        DB::reset();
        QFile::remove(DB::dbFilePath());
        DBSession::openDB();
        DBSession::closeDB();
        LogLines::keepFromNow();
    }
    void cleanupTestCase() { DB::reset(); }

    void theTypeFollowsTheCalls()
    {
        DB::reset();
        QCOMPARE(DB::exec(u"SELECT 1"_s), -1);
        QVERIFY(!DB::select(u"SELECT 1"_s, PriceSchema{}));
        QCOMPARE(DB::open(u"http://127.0.0.1/"_s), 0);
        DB::close();
        QCOMPARE(DB::getWebServiceURL(), u"http://127.0.0.1/"_s); // the type is still unset
        QCOMPARE(DB::getDBType(), u"webservice"_s);
        DB::close();
        QVERIFY(!DB::getWebServiceURL());
        QCOMPARE(DB::open(), 0);
        QCOMPARE(DB::getDBType(), u"sqlite3"_s);
    }

    void fileIsTheOwnersAlone()
    {
        QVERIFY(DB::dbFilePath().endsWith("/Documents/DB.sqlite3"_L1));
        const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFileInfo(DB::dbFilePath()).permissions(), mode);
    }

    // It was in the user's own Documents.
    void anEarlierDatabaseIsTakenOverOnce()
    {
        const QString earlier =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/DB.sqlite3"_L1;
        QVERIFY(QDir().mkpath(QFileInfo(earlier).path()));
        const auto removeBoth = [&] {
            DB::reset();
            QFile::remove(DB::dbFilePath());
            QFile::remove(earlier);
        };
        const auto cleanUp = qScopeGuard(removeBoth);
        const auto groups = [] { return DB::getRecords(u"UserGroup"_s).size(); };
        const QByteArray ours =
            "PRAGMA journal_mode=WAL; CREATE TABLE UserGroup(ID INTEGER PRIMARY "
            "KEY,ShopID,Name,Permission,Memo);"
            "INSERT INTO UserGroup VALUES(1,0,'a','b','c')";
        for (const auto &[sql, isTaken] :
             {std::pair(ours, true), std::pair(QByteArray("CREATE TABLE UserGroup(Name)"), false),
              std::pair(QByteArray(), false)}) {
            removeBoth();
            sqlite3 *other = nullptr;
            QCOMPARE(sqlite3_open16(earlier.utf16(), &other), SQLITE_OK);
            QCOMPARE(sqlite3_exec(other, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
            if (isTaken) { // but not while it is held
                QCOMPARE(sqlite3_exec(other, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE",
                                      nullptr, nullptr, nullptr),
                         SQLITE_OK);
                QCOMPARE(DB::open(), SQLITE_BUSY);
                QVERIFY(!QFile::exists(DB::dbFilePath()));
            }
            sqlite3_close(other);
            QCOMPARE(DB::open(), SQLITE_OK);
            QCOMPARE(DB::getTables().contains(u"UserGroup"_s), isTaken);
            QCOMPARE(groups(), isTaken ? 1 : 0);
            QVERIFY(QFile::exists(earlier));
            fileIsTheOwnersAlone();
        }
        removeBoth();
        QFile text(earlier); // no database at all
        QVERIFY(text.open(QFile::ReadWrite) && text.write(QByteArray(5000, 'x')) && text.flush());
        QCOMPARE(DB::open(), SQLITE_OK);
        QCOMPARE(DB::exec(u"CREATE TABLE T(A)"_s), SQLITE_OK);
        QVERIFY(text.seek(0));
        QCOMPARE(text.readAll(), QByteArray(5000, 'x'));
    }

    void closedConnectionFailsWithoutACrash()
    {
        DB::open();
        DB::close();
        DB::close();
        QCOMPARE(DB::exec(u"SELECT 1"_s), SQLITE_MISUSE);
        QVERIFY(!DB::select(u"SELECT 1"_s, PriceSchema{}));
        QVERIFY(!DB::select(u"SELECT 1"_s, PriceSchema{}, 0, 3));
        QVERIFY(DB::getTables().isEmpty());
        QVERIFY(DB::getRecords(u"T"_s).isEmpty());
        const QStringList expected{u"[DB]->(exec):"_s, u"[DB]->(select):failed"_s,
                                   u"[DB]->(select):failed"_s, u"[DB](getTables):Select Failed."_s,
                                   u"[DB](getColumns):Select Failed."_s};
        QCOMPARE(LogLines::take(), expected);
    }

    void openingIsNotCounted()
    {
        DBSession::openDB();
        sqlite3 *first = DB::getDatabase();
        DBSession::openDB();
        QCOMPARE(DB::getDatabase(), first);
        BLGeneral gateway(u"Price"_s);
        QVERIFY(gateway.insert(PriceSchema{}));
        QVERIFY(DBSession::isDBOpen());
        DBSession::closeDB();
        QVERIFY(gateway.insert(PriceSchema{}));
        QVERIFY(!DBSession::isDBOpen());
    }

    void catalogueReadsBackTablesColumnsAndRows()
    {
        DB::open();
        QCOMPARE(DB::exec(u"CREATE TABLE IF NOT EXISTS Price(ID INTEGER PRIMARY KEY AUTOINCREMENT,"
                          "Name TEXT,Amount REAL)"_s),
                 0);
        QCOMPARE(DB::exec(u"INSERT INTO Price(Name) VALUES('Tür'); "_s), 0);
        QCOMPARE(DB::getTables(), QStringList{u"Price"_s});
        using Row = QMap<QString, QString>;
        const Row row{{u"ID"_s, u"1"_s}, {u"Name"_s, u"Tür"_s}, {u"Amount"_s, QString()}};
        QCOMPARE(DB::getRecords(u"Price"_s), QList<Row>{row});
        // The columns are cut out by length alone, even of a text that another program wrote.
        QCOMPARE(
            DB::convert2Columns(DB::getColumnsWithType(u"create table X[ID INTEGER]"_s, u"T"_s)),
            QStringList{u"ID"_s});
        QVERIFY(DB::getColumnsWithType(u"CREATE TABLE T("_s, u"T"_s).isEmpty());
    }

    void aCallRunsOneStatement()
    {
        DB::open();
        QCOMPARE(DB::exec(u"CREATE TABLE Price(ID INTEGER,Name TEXT)"_s), 0);
        QCOMPARE(DB::exec(u"INSERT INTO Price VALUES(1,'a;b')"_s), 0);
        QVERIFY(LogLines::take().isEmpty());
        // A value that ends its own quotes.
        QCOMPARE(DB::exec(u"INSERT INTO Price VALUES(2,'x');DROP TABLE Price;--')"_s),
                 SQLITE_MISUSE);
        QCOMPARE(LogLines::take(), QStringList{u"[DB]->(exec):more than one statement"_s});
        QCOMPARE(DB::getRecords(u"Price"_s).size(), 1);
    }

    void recordsGoThereAndBack()
    {
        BLGeneral gateway(u"User"_s);
        QVERIFY(gateway.insert(UserSchema{99, 1, 2, u"alice"_s, u"pw"_s, u"ü%20"_s}));
        QVERIFY(gateway.insert(UserSchema{}.setRoot()));
        const auto users = gateway.select("1=1", UserSchema{});
        QCOMPARE(users->size(), 2);
        QCOMPARE(users->at(0).ID, 1);
        QCOMPARE(users->at(0).Memo, u"ü%20"_s);
        QVERIFY(users->at(1).isRoot());

        UserSchema changed = users->at(0);
        changed.User = u"bob"_s;
        QVERIFY(gateway.update(changed));
        QCOMPARE(gateway.select(u"User='bob'"_s, UserSchema{})->at(0).ID, 1);
        QVERIFY(gateway.delete_("ID=1"));
        QCOMPARE(gateway.select("1=1", UserSchema{}, 0, 1)->size(), 2); // one row, wrapped around
        QVERIFY(!DBSession::isDBOpen());
        QVERIFY(LogLines::take().isEmpty());

        BLGeneral made(PriceSchema{5, u"n"_s, 1.25}); // names its table and seeds it
        QCOMPARE(made.select("1=1", PriceSchema{})->at(0).ID, 1);
    }

    void badStatementsFail()
    {
        BLGeneral gateway(u"Price"_s);
        QVERIFY(!gateway.insert(PriceSchema{0, u"O'Neil"_s, 1}));
        QVERIFY(!gateway.select("Name=", PriceSchema{}));
        QVERIFY(!gateway.delete_("Nowhere=1"));
        QCOMPARE(
            LogLines::take(),
            (QStringList{u"[DB]->(exec):near \"Neil\": syntax error"_s, u"[DB]->(select):failed"_s,
                         u"[DB]->(exec):no such column: Nowhere"_s}));
        QVERIFY(!DBSession::isDBOpen());
        QVERIFY(gateway.insert(PriceSchema{0, u"O''Neil"_s, 1}));
        QCOMPARE(gateway.select("1=1", PriceSchema{})->at(0).Name, u"O'Neil"_s);
        QVERIFY(!BLGeneral(u"Bare"_s).initTable()); // without an index
    }
};

QTEST_GUILESS_MAIN(TestDB)
#include "tst_db.moc"
