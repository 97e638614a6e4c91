// Proves who may do what, and that a login finds exactly the users whom the database holds.

#include "DBSession.h"
#include "Global.h"
#include "Login.h"
#include "RecordsTrial.h"
#include "SessionRights.h"

using namespace Qt::StringLiterals;

class tst_Session : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsRoot();
    void holdsWhatTheGroupHolds_data();
    void holdsWhatTheGroupHolds();
    void losesEveryRightWithTheGroup();
    void lookingUpRightsClosesTheDatabase();
    void anEmptyTableGetsItsRoot();
    void makesADeletedRootAgain();
    void comparesWhatWasTyped_data();
    void comparesWhatWasTyped();
};

void tst_Session::knowsRoot()
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

void tst_Session::holdsWhatTheGroupHolds_data()
{
    QTest::addColumn<QString>("permission");
    QTest::addColumn<QString>("held"); // of A, A2, A3, A4, B, B2, B3, B4

    QTest::newRow("none") << QString() << QString();
    QTest::newRow("A1A3") << u"A1A3"_s << u"A A3"_s;
    QTest::newRow("B2") << u"B2"_s << u"B B2"_s;
    QTest::newRow("everything of both") << u"A1A2A3A4B1B2B3B4"_s << u"A A2 A3 A4 B B2 B3 B4"_s;
    QTest::newRow("lower case is none") << u"a1a2b1"_s << QString();
}

void tst_Session::holdsWhatTheGroupHolds()
{
    QFETCH(const QString, permission);
    QFETCH(const QString, held);
    const RecordsTrial trial;
    RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, permission));
    const SessionRights rights;
    QStringList found;
    for (const char *code : {"A", "A2", "A3", "A4", "B", "B2", "B3", "B4"}) {
        if (rights.holds(QLatin1String(code)))
            found += QLatin1String(code);
    }
    QCOMPARE(found.join(u' '), held);
}

void tst_Session::losesEveryRightWithTheGroup()
{
    const RecordsTrial trial;
    QVERIFY(SessionRights().holds("A4"_L1)); // nobody is logged in
    const int group = RecordsTrial::storeGroup(u"Gone"_s, u"A1A2A3A4"_s);
    RecordsTrial::logIn(group);
    QVERIFY(SessionRights().holds("A4"_L1));
    RecordsTrial::sqlite(u"DELETE FROM UserGroup"_s);
    QCOMPARE(Global::getPermission(group), u""_s);
    QVERIFY(!SessionRights().holds("A"_L1));
    RecordsTrial::logIn(0); // the name plays no part
    QVERIFY(SessionRights().holds("F4"_L1));
}

void tst_Session::lookingUpRightsClosesTheDatabase()
{
    const RecordsTrial trial;
    Global::openDB();
    Global::getPermission(0);
    QVERIFY(!Global::isDBOpen());
}

void tst_Session::anEmptyTableGetsItsRoot()
{
    const RecordsTrial trial;
    QVERIFY(Login::matchingUsers(u"root"_s, u"wrong"_s).isEmpty());
    QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s), u"1|0|0|root|kelp|Super User"_s);
    QVERIFY(!Global::isDBOpen());
    QCOMPARE(Login::matchingUsers(u"root"_s, u"kelp"_s).size(), 1);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"1"_s);
}

void tst_Session::makesADeletedRootAgain()
{
    const RecordsTrial trial;
    RecordsTrial::storeUser(u"alice"_s, 3);
    QCOMPARE(Login::matchingUsers(u"alice"_s, u"pw"_s).size(), 1);
    RecordsTrial::sqlite(u"DELETE FROM User WHERE User='root'"_s);
    QCOMPARE(Login::matchingUsers(u"root"_s, u"kelp"_s).size(), 1);
}

void tst_Session::comparesWhatWasTyped_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("found");

    QTest::newRow("the pair") << u"alice"_s << u"secret"_s << 1;
    QTest::newRow("other case") << u"Alice"_s << u"secret"_s << 0;
    QTest::newRow("wrong password") << u"alice"_s << u"Secret"_s << 0;
    QTest::newRow("two of them") << u"twin"_s << u"secret"_s << 2;
    QTest::newRow("escaped in the table") << u"Ann Lee"_s << u"secret"_s << 0;
    QTest::newRow("broken by a quote") << u"o'hara"_s << u"secret"_s << 0;
    QTest::newRow("changed by quotes") << u"alice'--"_s << u"x"_s << 1;
    QTest::newRow("a second statement is not run") << u"x'; DELETE FROM User; --"_s << u"x"_s << 0;
}

void tst_Session::comparesWhatWasTyped()
{
    QFETCH(const QString, user);
    QFETCH(const QString, password);
    QFETCH(const int, found);
    const RecordsTrial trial;
    for (const QString &name : {u"alice"_s, u"twin"_s, u"twin"_s, u"Ann%20Lee"_s})
        RecordsTrial::storeUser(name, 1, u"secret"_s);
    QCOMPARE(Login::matchingUsers(user, password).size(), found);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"5"_s);
}

QTEST_MAIN(tst_Session)
#include "tst_session.moc"
