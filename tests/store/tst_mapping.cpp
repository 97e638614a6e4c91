// Proves that rows and JSON objects become records, and records JSON text, with the readings that
// callers and services rely on.

#include "DB.h"
#include "DBState.h"
#include "LeadingNumber.h"
#include "SampleRecords.h"
#include "SchemaReflect.h"
#include "SelectReply.h"
#include "Statement.h"
#include "UserSchema.h"

#include <QFile>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace
{

/// The key of each record.
QList<int> keys(const std::optional<QList<PriceSchema>> &records)
{
    QList<int> keys;
    for (const PriceSchema &record : records.value())
        keys.append(record.ID);
    return keys;
}

QList<int> range(int first, int last)
{
    QList<int> numbers;
    for (int i = first; i <= last; ++i)
        numbers.append(i);
    return numbers;
}

template <RecordClass T>
QList<T> parsed(const QByteArray &reply, const T &)
{
    QList<T> records;
    appendSelectReply(reply, RecordList(records));
    return records;
}

} // namespace

class TestMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// 25 rows with the keys 0 to 24.
    void initTestCase()
    {
        DB::reset();
        QFile::remove(DB::dbFilePath());
        DB::open();
        DB::exec(u"CREATE TABLE Price(ID INTEGER PRIMARY KEY,Name TEXT,Amount REAL)"_s);
        DB::exec(u"BEGIN"_s);
        for (int i = 0; i < 25; ++i)
            DB::exec(u"INSERT INTO Price VALUES(%1,'n%1',%1.5)"_s.arg(i));
        DB::exec(u"COMMIT"_s);
    }
    void cleanupTestCase() { DB::reset(); }

    void rowsFillPropertiesByPosition()
    {
        const auto records = DB::select(u"SELECT * FROM Price ORDER BY ID"_s, PriceSchema{});
        QCOMPARE(keys(records), range(0, 24));
        QCOMPARE(records->at(3).Name, u"n3"_s);
        QCOMPARE(records->at(3).Amount, 3.5);
        const auto swapped =
            DB::select(u"SELECT 7,Amount,Name FROM Price WHERE ID=4"_s, PriceSchema{});
        QCOMPARE(swapped->at(0).ID, 7);
        QCOMPARE(swapped->at(0).Name, u"4.5"_s);
        QCOMPARE(swapped->at(0).Amount, 0.0);
        const QString none = u"SELECT * FROM Price WHERE 0"_s;
        QVERIFY(keys(DB::select(none, PriceSchema{})).isEmpty());
        QVERIFY(keys(DB::select(none, PriceSchema{}, 2, 3)).isEmpty());
    }

    void otherTypesReadNoRows()
    {
        DBState::current().type = u"mysql"_s;
        Statement statement(u"SELECT * FROM Price"_s);
        QList<PriceSchema> records;
        SchemaReflect::getSchemaValueFromeRS(RecordList(records), statement.get());
        QVERIFY(records.isEmpty());
        DBState::current().type = u"sqlite3"_s;
        SchemaReflect::getSchemaValueFromeRS(RecordList(records), statement.get());
        QCOMPARE(records.size(), 25);
    }

    void nullsAndShortRowsReadAsNothing()
    {
        const auto records =
            DB::select(u"SELECT NULL,NULL,NULL UNION ALL SELECT '12abc','',-0.0"_s, PriceSchema{});
        QCOMPARE(records->at(0).ID, 0);
        QVERIFY(records->at(0).Name.isNull());
        QCOMPARE(records->at(0).Amount, 0.0);
        QCOMPARE(records->at(1).ID, 12);
        QVERIFY(records->at(1).Name.isEmpty() && !records->at(1).Name.isNull());
        const auto odd = DB::select(u"SELECT 1,1,'ü'"_s, OddSchema{});
        QCOMPARE(odd->at(0).Flag, false);
        QCOMPARE(odd->at(0).Name, u"ü"_s);
        QCOMPARE(odd->at(0).Big, 0);
    }

    void doublesKeepSixDecimals()
    {
        const std::pair<QString, double> cases[] = {
            {u"2.3456789"_s, 2.345679},
            {u"1.7976931348623157e308"_s, std::numeric_limits<double>::max()},
            {u"9e999"_s, 0.0},
        };
        for (const auto &[column, value] : cases)
            QCOMPARE(DB::select("SELECT 1,'',"_L1 + column, PriceSchema{})->at(0).Amount, value);
    }

    void pagesWrapAround_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("stepLength");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("first") << 0 << 10 << range(0, 11);
        QTest::newRow("past the end") << 20 << 10 << range(20, 24) + range(0, 5);
        QTest::newRow("twice around") << 0 << 50 << range(0, 24) + range(0, 24);
        QTest::newRow("negative from") << -5 << 1 << range(0, 2);
        QTest::newRow("negative length") << 3 << std::numeric_limits<int>::min() << QList<int>();
    }

    void pagesWrapAround()
    {
        QFETCH(int, from);
        QFETCH(int, stepLength);
        const auto page =
            DB::select(u"SELECT * FROM Price ORDER BY ID"_s, PriceSchema{}, from, stepLength);
        QTEST(keys(page), "expected");
    }

    void jsonFillsPropertiesByName()
    {
        const auto users = parsed(R"({"RESULT":[
            {"User":"\u00fc","ID":"7","ShopID":2,"UserGroupID":" -3x","password":"no","Memo":""},
            {"User":8,"ID":3.9,"ShopID":1e300,"UserGroupID":"99999999999","Memo":null},
            {}, 5, [], null]})",
                                  UserSchema{});
        QCOMPARE(users.size(), 3);
        QCOMPARE(users[0].User, u"ü"_s);
        QCOMPARE(users[0].ID, 7);
        QCOMPARE(users[0].ShopID, 2);
        QCOMPARE(users[0].UserGroupID, -3);
        QVERIFY(users[0].Password.isNull());
        QVERIFY(users[0].Memo.isEmpty() && !users[0].Memo.isNull());
        QCOMPARE(users[1].User, u"8"_s);
        QCOMPARE(users[1].ID, 3);
        QCOMPARE(users[1].ShopID, std::numeric_limits<int>::max());
        QCOMPARE(users[1].UserGroupID, std::numeric_limits<int>::max());
        QVERIFY(users[1].Memo.isNull());
        QCOMPARE(users[2].ID, 0);
        QVERIFY(users[2].User.isNull());

        const auto odd =
            parsed(R"({"RESULT":[{"ID":1,"Flag":true,"Big":9007199254740993}]})", OddSchema{});
        QCOMPARE(odd.at(0).Flag, true);
        QCOMPARE(odd.at(0).Big, 9007199254740993);
        const auto prices =
            parsed(R"({"RESULT":[{"Amount":"2.3456789 kg"},{"Amount":-1.25}]})", PriceSchema{});
        QCOMPARE(prices.at(0).Amount, 2.3456789);
        QCOMPARE(prices.at(1).Amount, -1.25);
    }

    void otherRepliesHoldNoRecords()
    {
        for (const char *reply : {"", "not json", "[]", "{}", R"({"RESULT":{}})",
                                  R"({"result":[{"ID":1}]})", R"({"RESULT":[{"ID":1}]}x)"})
            QVERIFY2(parsed(reply, PriceSchema{}).isEmpty(), reply);
        QVERIFY(parsed("{\"RESULT\":" + QByteArray(100'000, '['), PriceSchema{}).isEmpty());
    }

    void writesJsonAsTextsUnescaped()
    {
        QCOMPARE(
            SchemaReflect::toJSON(UserSchema{0, 1, 2, u"alice"_s, u"pw"_s, u"x"_s}),
            uR"({"ID":"0","ShopID":"1","UserGroupID":"2","User":"alice","Password":"pw","Memo":"x"})"_s);
        QCOMPARE(SchemaReflect::toJSON(PriceSchema{-1, u"a\"\\é"_s, 3.5}),
                 u"{\"ID\":\"-1\",\"Name\":\"a\"\\é\",\"Amount\":\"3.50\"}"_s);
        QCOMPARE(SchemaReflect::toJSON(OddSchema{1, true, {}, 5}),
                 uR"({"ID":"1","Flag":"","Name":"","Big":""})"_s);
    }

    void leadingNumbers()
    {
        constexpr auto smallest = std::numeric_limits<int>::min();
        constexpr auto largest = std::numeric_limits<int>::max();
        const std::tuple<QByteArray, int, double> cases[] = {
            {"\t\n 12", 12, 12.0},
            {"+5.5e1z", 5, 55.0},
            {"-.5", 0, -0.5},
            {"- 5", 0, 0.0},
            {"infinity", 0, 0.0},
            {"1,5", 1, 1.0},
            {"-3000000000", smallest, -3e9},
            {"1e-999", 1, 0.0},
            {"", 0, 0.0},
            {QByteArray(400, '9'), largest, std::numeric_limits<double>::max()},
        };
        for (const auto &[text, integer, number] : cases) {
            QCOMPARE(leadingInteger(text), integer);
            QCOMPARE(leadingDouble(text), number);
        }
    }
};

QTEST_GUILESS_MAIN(TestMapping)
#include "tst_mapping.moc"
