// Compares the record store with SQLite and Qt's JSON parser used by hand. Must run through
// tests/support/isolated. The exit status is 1 if a figure is over its limit.

#include "BLGeneral.h"
#include "DB.h"
#include "PlainUser.h"
#include "Ratio.h"
#include "SampleUsers.h"
#include "SchemaReflect.h"
#include "UserSchema.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace
{

bool selects(BLGeneral &gateway)
{
    constexpr int count = 100'000;
    fillUsers(count);
    return Ratio::isWithin(
        "select 100,000 records", 1.2, 15,
        [&] { expect(gateway.select("1=1", UserSchema{})->size() == count, "select"); },
        [&] {
            const auto users = plainSelect(DB::getDatabase(), "SELECT * FROM User WHERE 1=1");
            expect(users.size() == count, "plain select");
        });
}

/// Without waits for the disk, which would hide everything else.
bool insertsHeldOpen(BLGeneral &gateway)
{
    constexpr int count = 10'000;
    DB::exec(u"PRAGMA synchronous=OFF"_s);
    DB::exec(u"PRAGMA journal_mode=MEMORY"_s);
    QList<UserSchema> users;
    QList<QByteArray> statements;
    for (int i = 0; i < count; ++i) {
        users.append(sampleUser(i));
        statements.append(SchemaReflect::getFullInsertStatement(u"User"_s, users.last()).toUtf8());
    }
    fillUsers(0);
    return Ratio::isWithin(
        "10,000 inserts, database held open", 1.1, 7,
        [&] {
            for (const UserSchema &user : std::as_const(users))
                expect(gateway.insert(user), "insert");
        },
        [&] {
            for (const QByteArray &sql : std::as_const(statements))
                expect(sqlite3_exec(DB::getDatabase(), sql.constData(), nullptr, nullptr, nullptr)
                           == SQLITE_OK,
                       "plain insert");
        });
}

bool insertsOpening(BLGeneral &gateway)
{
    constexpr int count = 50;
    const QString path = DB::dbFilePath();
    const UserSchema user = sampleUser(1);
    const QByteArray sql = SchemaReflect::getFullInsertStatement(u"User"_s, user).toUtf8();
    return Ratio::isWithin(
        "an insert that opens and closes", 1.15, 21,
        [&] {
            for (int i = 0; i < count; ++i)
                expect(gateway.insert(user), "insert");
        },
        [&] {
            for (int i = 0; i < count; ++i) {
                sqlite3 *database = nullptr;
                sqlite3_open16(path.utf16(), &database);
                expect(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr)
                           == SQLITE_OK,
                       "plain insert");
                sqlite3_close(database);
            }
        });
}

bool parsesReplies()
{
    constexpr int count = 100'000;
    QByteArray reply = "{\"RESULT\":[";
    for (int i = 0; i < count; ++i)
        reply += SchemaReflect::toJSON(sampleUser(i)).toUtf8() + (i < count - 1 ? ",\n" : "]}");
    return Ratio::isWithin(
        "parse a reply of 100,000 records", 1.5, 15,
        [&] {
            QList<UserSchema> users;
            SchemaReflect::appendSelectReply(reply, RecordList(users));
            expect(users.size() == count, "parse");
        },
        [&] { expect(!QJsonDocument::fromJson(reply).isNull(), "plain parse"); });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    expect(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"),
           "run through tests/support/isolated");
    DBSession::openDB();
    BLGeneral gateway(u"User"_s);
    bool isWithin = selects(gateway);
    isWithin = insertsHeldOpen(gateway) && isWithin;
    fillUsers(0);
    DBSession::closeDB();
    isWithin = insertsOpening(gateway) && isWithin;
    isWithin = parsesReplies() && isWithin;
    return isWithin ? 0 : 1;
}
