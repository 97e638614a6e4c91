// Proves that records become statements and JSON text byte for byte, and that rows and JSON objects
// become records with the readings that callers and services rely on.

#include "DB.h"
#include "SampleRecords.h"
#include "SchemaReflect.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace
{

void checkWritten(RecordView record, const char *insert, const char *update)
{
    QCOMPARE(SchemaReflect::getFullInsertStatement(u"T"_s, record), QString::fromUtf8(insert));
    QCOMPARE(SchemaReflect::getFullUpdateStatement(u"T"_s, record), QString::fromUtf8(update));
}

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
    SchemaReflect::appendSelectReply(reply, RecordList(records));
    return records;
}

} // namespace

class TestMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { DB::open(); }
    void cleanupTestCase() { DB::reset(); }

    void writesStatementsByteForByte()
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
    }

    void rowsFillPropertiesByPosition()
    {
        const auto records = DB::select(
            u"SELECT NULL,NULL,NULL UNION ALL SELECT '12abc','',2.3456789"_s, PriceSchema{});
        QCOMPARE(keys(records), QList({0, 12}));
        QVERIFY(records->at(0).Name.isNull());
        QCOMPARE(records->at(0).Amount, 0.0);
        QVERIFY(records->at(1).Name.isEmpty() && !records->at(1).Name.isNull());
        QCOMPARE(records->at(1).Amount, 2.345679); // six decimals
        QCOMPARE(DB::select(u"SELECT 1,'',9e999"_s, PriceSchema{})->at(0).Amount, 0.0);
        const auto odd = DB::select(u"SELECT 1,1,'ü'"_s, OddSchema{});
        QCOMPARE(odd->at(0).Flag, false);
        QCOMPARE(odd->at(0).Name, u"ü"_s);
        QVERIFY(keys(DB::select(u"SELECT 1 WHERE 0"_s, PriceSchema{}, 2, 3)).isEmpty());
    }

    void pagesWrapAround()
    {
        const std::tuple<int, int, QList<int>> cases[] = {
            {0, 10, range(0, 11)},
            {20, 10, range(20, 24) + range(0, 5)},
            {0, 50, range(0, 24) + range(0, 24)},
            {-5, 1, range(0, 2)},
            {3, std::numeric_limits<int>::min(), {}},
        };
        const QString rows = u"WITH RECURSIVE n(ID) AS (SELECT 0 UNION ALL SELECT ID+1 FROM n "
                             "WHERE ID<24) SELECT ID FROM n"_s;
        for (const auto &[from, stepLength, expected] : cases)
            QCOMPARE(keys(DB::select(rows, PriceSchema{}, from, stepLength)), expected);
    }

    void jsonFillsPropertiesByName()
    {
        const auto users = parsed(R"({"RESULT":[
            {"User":"\u00fc","ID":"7","UserGroupID":" -3x","password":"no","Memo":""},
            {"User":8,"ID":3.9,"ShopID":1e300,"UserGroupID":"99999999999","Memo":null},
            {}, 5, [], null]})",
                                  UserSchema{});
        QCOMPARE(users.size(), 3);
        QCOMPARE(users[0].User, u"ü"_s);
        QCOMPARE(users[0].ID, 7);
        QCOMPARE(users[0].UserGroupID, -3);
        QVERIFY(users[0].Password.isNull());
        QVERIFY(users[0].Memo.isEmpty() && !users[0].Memo.isNull());
        QCOMPARE(users[1].User, u"8"_s);
        QCOMPARE(users[1].ID, 3);
        QCOMPARE(users[1].ShopID, std::numeric_limits<int>::max());
        QCOMPARE(users[1].UserGroupID, std::numeric_limits<int>::max());
        QVERIFY(users[1].Memo.isNull());
        const auto odd =
            parsed(R"({"RESULT":[{"ID":1,"Flag":true,"Big":9007199254740993}]})", OddSchema{});
        QCOMPARE(odd.at(0).Flag, true);
        QCOMPARE(odd.at(0).Big, 9007199254740993);
        const auto prices = parsed(R"({"RESULT":[{"Amount":"2.3456789 kg"},
            {"Amount":"infinity","ID":"-3000000000"},{"Amount":"1e-999"},{"Amount":"-.5e1"},
            {"Amount":"0.5e999"}]})",
                                   PriceSchema{});
        QCOMPARE(prices.at(0).Amount, 2.3456789);
        QCOMPARE(prices.at(1).Amount, 0.0);
        QCOMPARE(prices.at(1).ID, std::numeric_limits<int>::min());
        QCOMPARE(prices.at(2).Amount, 0.0);
        QCOMPARE(prices.at(3).Amount, -5.0);
        QCOMPARE(prices.at(4).Amount, std::numeric_limits<double>::max());
    }

    void aValueThatCannotBeHeldLosesNoRecord()
    {
        const QByteArray mark = "\xEF\xBB\xBF";
        const auto prices =
            parsed(mark
                       + "{\"RESULT\":["
                         "{\"ID\":1,\"Name\":\"\\\"1e999\\\" \\ud83d\\ude00 "
                         "\\\\ud83d\",\"Amount\":-1e999},"
                         "{\"ID\":2,\"Name\":\"a\\ud83dz\\ude00\\ud83d\\u0041\",\"Amount\":1e-5},"
                         "{\"ID\":30000000000000000000,\"Amount\":30000000000000000000}]}",
                   PriceSchema{});
        QCOMPARE(keys(prices), QList({1, 2, std::numeric_limits<int>::max()}));
        QCOMPARE(prices[0].Name, u"\"1e999\" \U0001F600 \\ud83d"_s);
        QCOMPARE(prices[0].Amount, 0.0);
        QCOMPARE(prices[1].Name, u"a\ufffdz\ufffd\ufffdA"_s);
        QCOMPARE(prices[1].Amount, 1e-5);
        QCOMPARE(prices[2].Amount, 3e19);
        for (const char *reply :
             {"\xEF\xBB\xBF", "{\"RESULT\":[{\"ID\":1e999}]",
              "{\"RESULT\":[{\"ID\":1,\"Name\":\"\\ud800", "{\"RESULT\":[{}-]}"})
            QVERIFY2(parsed(reply, PriceSchema{}).isEmpty(), reply);
    }

    void otherRepliesGiveNoRecords()
    {
        for (const char *reply :
             {"", "not json", "[]", R"({"RESULT":{}})", R"({"RESULT":[{"ID":1}]}x)"})
            QVERIFY2(parsed(reply, PriceSchema{}).isEmpty(), reply);
        QVERIFY(parsed("{\"RESULT\":" + QByteArray(100'000, '['), PriceSchema{}).isEmpty());
    }

    void writesJsonAsTextsUnescaped()
    {
        QCOMPARE(SchemaReflect::toJSON(PriceSchema{-1, u"a\"\\é"_s, 3.5}),
                 u"{\"ID\":\"-1\",\"Name\":\"a\"\\é\",\"Amount\":\"3.50\"}"_s);
        QCOMPARE(SchemaReflect::toJSON(OddSchema{1, true, {}, 5}),
                 uR"({"ID":"1","Flag":"","Name":"","Big":""})"_s);
    }
};

QTEST_GUILESS_MAIN(TestMapping)
#include "tst_mapping.moc"
