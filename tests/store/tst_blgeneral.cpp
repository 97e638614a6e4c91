// Proves that a gateway stores and fetches records in the local database with the connection as its
// callers left it.

#include "BLGeneral.h"
#include "DBSession.h"
#include "DBState.h"
#include "LogLines.h"
#include "SampleRecords.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class TestBLGeneral : public QObject
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

    void recordsGoThereAndBack_data()
    {
        QTest::addColumn<bool>("isHeldOpen");
        QTest::newRow("opened for each operation") << false;
        QTest::newRow("held open") << true;
    }

    void recordsGoThereAndBack()
    {
        QFETCH(bool, isHeldOpen);
        if (isHeldOpen)
            DBSession::openDB();
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
        QCOMPARE(DBSession::isDBOpen(), isHeldOpen);
        QVERIFY(LogLines::take().isEmpty());
    }

    void badStatementsSayNoAndLeaveTheConnectionAsItWas()
    {
        BLGeneral gateway(u"Price"_s);
        QVERIFY(!gateway.insert(PriceSchema{0, u"O'Neil"_s, 1}));
        QVERIFY(!gateway.insert(OddSchema{}));
        QVERIFY(!gateway.select("Name=", PriceSchema{}));
        QVERIFY(!gateway.delete_("Nowhere=1"));
        QCOMPARE(
            LogLines::take(),
            (QStringList{u"[DB]->(exec):near \"Neil\": syntax error"_s,
                         u"[DB]->(exec):near \",\": syntax error"_s, u"[DB]->(select):failed"_s,
                         u"[DB]->(exec):no such column: Nowhere"_s}));
        QVERIFY(!DBSession::isDBOpen());
        QVERIFY(gateway.insert(PriceSchema{0, u"O''Neil"_s, 1}));
        QCOMPARE(gateway.select("1=1", PriceSchema{})->at(0).Name, u"O'Neil"_s);
    }

    void aRecordNamesItsTableAndSeedsIt()
    {
        BLGeneral gateway(PriceSchema{5, u"n"_s, 1.25});
        QCOMPARE(gateway.tableName, u"Price"_s);
        QCOMPARE(gateway.select("1=1", PriceSchema{})->at(0).ID, 1);
        QCOMPARE(BLGeneral(UserGroupSchema{}).tableName, u"UserGroup"_s);
        QVERIFY(LogLines::take().isEmpty());
        // The table cannot be made: nothing is inserted, and nothing more said.
        BLGeneral unknown(OddSchema{});
        QCOMPARE(LogLines::take(), QStringList{u"[DB]->(exec):near \")\": syntax error"_s});
        DBSession::openDB();
        DB::exec(u"CREATE TRIGGER No BEFORE INSERT ON Price BEGIN SELECT RAISE(ABORT,'no'); END"_s);
        BLGeneral refused(PriceSchema{});
        QCOMPARE(refused.tableName, u"Price"_s);
        QCOMPARE(LogLines::take(),
                 (QStringList{u"[DB]->(exec):no"_s, u"[BLGeneral]->(initWithSchema):failed"_s}));
    }

    void tableWithoutAnIndexIsNoSuccess()
    {
        QVERIFY(!BLGeneral(u"Bare"_s).initTable());
        DBSession::openDB();
        QCOMPARE(DB::getTables(), QStringList{u"Bare"_s});
    }

    void otherTypesFailLocally()
    {
        DBSession::openDB();
        DBState::current().type = u"mysql"_s;
        BLGeneral gateway(u"Price"_s);
        QVERIFY(!gateway.insert(PriceSchema{}));
        QVERIFY(!gateway.select("1=1", PriceSchema{}));
        QCOMPARE(LogLines::take(), QStringList(2, u"[DB]->(exec):"_s));
    }
};

QTEST_GUILESS_MAIN(TestBLGeneral)
#include "tst_blgeneral.moc"
