// Proves that every statement text is written byte for byte, from the record's class and the
// table's description.

#include "DB.h"
#include "DBState.h"
#include "SampleRecords.h"
#include "SchemaReflect.h"
#include "UserGroupSchema.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

void checkWritten(RecordView record, const char *insert, const char *update)
{
    QCOMPARE(SchemaReflect::getFullInsertStatement(u"T"_s, record), QString::fromUtf8(insert));
    QCOMPARE(SchemaReflect::getFullUpdateStatement(u"T"_s, record), QString::fromUtf8(update));
}

} // namespace

class TestStatements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { DB::reset(); }

    void writesRecords()
    {
        checkWritten(
            UserGroupSchema{-2147483648, -1, u"n"_s, u"A1B2"_s, {}},
            "INSERT INTO T(ShopID,Name,Permission,Memo) VALUES(-1,'n','A1B2','')",
            "UPDATE T SET ShopID=-1,Name='n',Permission='A1B2',Memo='' WHERE ID=-2147483648");
        checkWritten(PriceSchema{0, u"O'Neil;é\"\\"_s, 0.125},
                     "INSERT INTO T(Name,Amount) VALUES('O'Neil;é\"\\',0.12)",
                     "UPDATE T SET Name='O'Neil;é\"\\',Amount=0.12 WHERE ID=0");
        checkWritten(OddSchema{1, true, u"n"_s, 5}, "INSERT INTO T(Flag,Name,Big) VALUES(,'n',)",
                     "UPDATE T SET ,Name='n', WHERE ID=1");
        checkWritten(KeySchema{u"5"_s}, "INSERT INTO T() VALUES()", "UPDATE T SET ");
    }

    void valuesOutsideTheRecordAreNone()
    {
        const PriceSchema price{7, u"n"_s, 1};
        QCOMPARE(SchemaReflect::getValue(price, 1), QVariant(u"n"_s));
        QVERIFY(!SchemaReflect::getValue(price, 3).isValid());
        QVERIFY(!SchemaReflect::getValue(price, -1).isValid());
    }

    void createsTablesInTheDialect()
    {
        const std::tuple<QString, QString, QString> cases[] = {
            {u"sqlite3"_s, u"Price"_s,
             u"(ID INTEGER PRIMARY KEY AUTOINCREMENT,Name TEXT,Amount REAL)"_s},
            {u"mysql"_s, u"Price"_s,
             u"(ID INTEGER PRIMARY KEY AUTO_INCREMENT,Name TEXT,Amount REAL,INDEX(Name,Amount))"_s},
            {u"mysql"_s, u"Bare"_s, u"(ID INTEGER PRIMARY KEY AUTO_INCREMENT,INDEX())"_s},
            {QString(), u"Price"_s, u"(ID INTEGER PRIMARY KEY,Name TEXT,Amount REAL)"_s},
            {QString(), u"Nowhere"_s, u"()"_s},
        };
        for (const auto &[dialect, table, text] : cases) {
            DBState::current().type = dialect;
            QCOMPARE(SchemaReflect::getCreateTableSQL(table),
                     "CREATE TABLE IF NOT EXISTS "_L1 + table + text);
        }
        QVERIFY(DBState::current().type.isNull()); // which only a column's dialect settles
    }

    void createsIndexes()
    {
        QCOMPARE(SchemaReflect::getCreateIndexSQL(u"Price"_s),
                 u"CREATE INDEX IF NOT EXISTS PriceIndex ON Price(Name,Amount)"_s);
    }
};

QTEST_GUILESS_MAIN(TestStatements)
#include "tst_statements.moc"
