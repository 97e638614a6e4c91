// Proves what is asked of the database about the session, and that a login finds exactly the users
// whom the database holds.

#include "DBSession.h"
#include "Global.h"
#include "Login.h"
#include "RecordsTrial.h"

using namespace Qt::StringLiterals;

class tst_Session : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsRoot()
    {
        UserSchema user;
        user.ID = 5;
        QVERIFY(user.setRoot().isRoot());
        QCOMPARE(user.ID, 5);
        user.UserGroupID = 1;
        QVERIFY(!user.isRoot());
        user.UserGroupID = 0;
        user.User = u"Root"_s;
        QVERIFY(!user.isRoot());
    }

    void lookingUpRightsClosesTheDatabase()
    {
        const RecordsTrial trial;
        Global::openDB();
        QCOMPARE(Global::getPermission(77), u""_s);
        QVERIFY(!Global::isDBOpen());
    }

    void makesRootWhereItIsMissing()
    {
        const RecordsTrial trial;
        QVERIFY(Login::matchingUsers(u"root"_s, u"wrong"_s).isEmpty());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s), u"1|0|0|root|kelp|Super User"_s);
        QVERIFY(!Global::isDBOpen());
        RecordsTrial::storeUser(u"alice"_s, 3);
        RecordsTrial::sqlite(u"DELETE FROM User WHERE User='root'"_s);
        QCOMPARE(Login::matchingUsers(u"root"_s, u"kelp"_s).size(), 1);
    }

    void comparesWhatWasTyped()
    {
        const RecordsTrial trial;
        for (const QString &name : {u"alice"_s, u"twin"_s, u"twin"_s, u"Ann%20Lee"_s})
            RecordsTrial::storeUser(name, 1, u"secret"_s);
        const auto found = [](const char *user, const char *password) {
            return Login::matchingUsers(QLatin1String(user), QLatin1String(password)).size();
        };
        QCOMPARE(found("alice", "secret"), 1);
        QCOMPARE(found("Alice", "secret"), 0);
        QCOMPARE(found("alice", "Secret"), 0);
        QCOMPARE(found("twin", "secret"), 2);
        QCOMPARE(found("Ann Lee", "secret"), 0); // escaped in the table
        QCOMPARE(found("o'hara", "secret"), 0); // broken by a quote
        QCOMPARE(found("alice'--", "x"), 1); // changed by quotes
        QCOMPARE(found("x'; DELETE FROM User; --", "x"), 0);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"5"_s);
    }
};

QTEST_MAIN(tst_Session)
#include "tst_session.moc"
