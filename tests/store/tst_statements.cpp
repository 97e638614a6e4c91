// Proves that every statement text is written byte for byte, from the record's class and the
// table's description.

#include "DB.h"
#include "DBState.h"
#include "SampleRecords.h"
#include "SchemaReflect.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class TestStatements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { DB::reset(); }

    void writesRecords_data()
    {
        QTest::addColumn<QString>("insert");
        QTest::addColumn<QString>("update");
        QTest::addColumn<QString>("expectedInsert");
        QTest::addColumn<QString>("expectedUpdate");
        const auto row = [](const char *name, RecordView record, QStringView insert,
                            QStringView update) {
            QTest::newRow(name) << SchemaReflect::getFullInsertStatement(u"T"_s, record)
                                << SchemaReflect::getFullUpdateStatement(u"T"_s, record)
                                << insert.toString() << update.toString();
        };
        row("user", UserSchema{3, 1, 2, u"alice"_s, u"pw"_s, u"x"_s},
            u"INSERT INTO T(ShopID,UserGroupID,User,Password,Memo) VALUES(1,2,'alice','pw','x')",
            u"UPDATE T SET ShopID=1,UserGroupID=2,User='alice',Password='pw',Memo='x' WHERE ID=3");
        row("group", UserGroupSchema{-2147483648, -1, u"n"_s, u"A1B2"_s, {}},
            u"INSERT INTO T(ShopID,Name,Permission,Memo) VALUES(-1,'n','A1B2','')",
            u"UPDATE T SET ShopID=-1,Name='n',Permission='A1B2',Memo='' WHERE ID=-2147483648");
        row("text as it is", PriceSchema{0, u"O'Neil;é\"\\"_s, 0},
            u"INSERT INTO T(Name,Amount) VALUES('O'Neil;é\"\\',0.00)",
            u"UPDATE T SET Name='O'Neil;é\"\\',Amount=0.00 WHERE ID=0");
        row("unmapped", OddSchema{1, true, u"n"_s, 5},
            u"INSERT INTO T(Flag,Name,Big) VALUES(,'n',)", u"UPDATE T SET ,Name='n', WHERE ID=1");
        row("key alone", KeySchema{u"5"_s}, u"INSERT INTO T() VALUES()", u"UPDATE T SET ");
    }

    void writesRecords()
    {
        QFETCH(QString, insert);
        QFETCH(QString, update);
        QTEST(insert, "expectedInsert");
        QTEST(update, "expectedUpdate");
    }

    void writesDoublesWithTwoDecimals_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << 3.0 << u"3.00"_s;
        QTest::newRow("up") << 2.346 << u"2.35"_s;
        QTest::newRow("just below the tie") << 2.005 << u"2.00"_s;
        QTest::newRow("exact tie") << 0.125 << u"0.12"_s;
        QTest::newRow("exact tie to even") << 0.375 << u"0.38"_s;
        QTest::newRow("negative to nothing") << -0.001 << u"-0.00"_s;
        QTest::newRow("large") << 1e22 << u"10000000000000000000000.00"_s;
    }

    void writesDoublesWithTwoDecimals()
    {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(SchemaReflect::getColumnValueList(PriceSchema{0, {}, value}), "'',"_L1 + text);
    }

    void writesPieces()
    {
        const PriceSchema price{7, u"n"_s, 1};
        QCOMPARE(SchemaReflect::getColumnNameList(price), u"Name,Amount"_s);
        QCOMPARE(SchemaReflect::getUpdateStr(price), u"Name='n',Amount=1.00 WHERE ID=7"_s);
        QCOMPARE(SchemaReflect::getColumnNameList(KeySchema{}), QString());
        QCOMPARE(SchemaReflect::getValue(price, 0), QVariant(7));
        QCOMPARE(SchemaReflect::getValue(price, 1), QVariant(u"n"_s));
        QVERIFY(!SchemaReflect::getValue(price, 3).isValid());
        QVERIFY(!SchemaReflect::getValue(price, -1).isValid());
    }

    void writesClausesAsTheyAre()
    {
        QCOMPARE(SchemaReflect::getSelectStatementIncludeWhere(u"User"_s, u"Name='O'Neil'"_s),
                 u"SELECT * FROM User WHERE Name='O'Neil'"_s);
        QCOMPARE(SchemaReflect::getDeleteStatementIncludeWhere(u"User"_s, u"1=1; "_s),
                 u"DELETE FROM User WHERE 1=1; "_s);
    }

    void createsTablesInTheDialect_data()
    {
        QTest::addColumn<QString>("dialect");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("text");
        const auto row = [](QStringView dialect, QStringView table, QStringView text) {
            QTest::newRow(qPrintable(dialect.toString() + u' ' + table.toString()))
                << dialect.toString() << table.toString() << text.toString();
        };
        row(u"sqlite3", u"Price",
            u"Price(ID INTEGER PRIMARY KEY AUTOINCREMENT,Name TEXT,Amount REAL)");
        row(u"mysql", u"Price",
            u"Price(ID INTEGER PRIMARY KEY AUTO_INCREMENT,Name TEXT,Amount "
            u"REAL,INDEX(Name,Amount))");
        row(u"webservice", u"Price", u"Price(ID INTEGER PRIMARY KEY,Name TEXT,Amount REAL)");
        row(u"sqlite3", u"Bare", u"Bare(ID INTEGER PRIMARY KEY AUTOINCREMENT)");
        row(u"mysql", u"Bare", u"Bare(ID INTEGER PRIMARY KEY AUTO_INCREMENT,INDEX())");
        row(u"sqlite3", u"Nowhere", u"Nowhere()");
    }

    void createsTablesInTheDialect()
    {
        QFETCH(QString, dialect);
        QFETCH(QString, table);
        QFETCH(QString, text);
        DBState::current().type = dialect;
        QCOMPARE(SchemaReflect::getCreateTableSQL(table), "CREATE TABLE IF NOT EXISTS "_L1 + text);
    }

    void askingForTheDialectSettlesAnUnsetType()
    {
        SchemaReflect::getCreateTableSQL(u"Nowhere"_s);
        QVERIFY(DBState::current().type.isNull());
        SchemaReflect::getCreateTableSQL(u"Price"_s);
        QCOMPARE(DBState::current().type, u"webservice"_s);
    }

    void createsIndexes()
    {
        QCOMPARE(SchemaReflect::getCreateIndexSQL(u"Price"_s),
                 u"CREATE INDEX IF NOT EXISTS PriceIndex ON Price(Name,Amount)"_s);
        QCOMPARE(SchemaReflect::getCreateIndexSQL(u"Bare"_s),
                 u"CREATE INDEX IF NOT EXISTS BareIndex ON Bare()"_s);
    }

    /// The columns of the descriptions that the program ships, read back out of SQLite's catalogue.
    void shippedDescriptionsFollowTheRecordClasses()
    {
        DB::open();
        const auto columnsOf = [](const QString &table) {
            return DB::exec(SchemaReflect::getCreateTableSQL(table)) == 0
                    && DB::exec(SchemaReflect::getCreateIndexSQL(table)) == 0
                ? DB::getColumns(table).join(u',')
                : QString();
        };
        const auto names = [](RecordView record) {
            return "ID,"_L1 + SchemaReflect::getColumnNameList(record);
        };
        QCOMPARE(columnsOf(u"User"_s), names(UserSchema{}));
        QCOMPARE(columnsOf(u"Stock"_s), names(UserSchema{}));
        QCOMPARE(columnsOf(u"UserGroup"_s), names(UserGroupSchema{}));
    }
};

QTEST_GUILESS_MAIN(TestStatements)
#include "tst_statements.moc"
