// Proves that the login window accepts exactly the users in the table, gives no reason for a
// refusal, and can be used again.

#include "Login.h"
#include "LoginDelegate.h"
#include "RecordsTrial.h"

using namespace Qt::StringLiterals;

class TestLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesInSilenceAndOpensAgainWithoutThePassword()
    {
        RecordsTrial trial;
        LoginDelegate login(&trial.owner);
        login.mainWindow = &trial.owner;
        login.show();
        QVERIFY(QTest::qWaitForWindowActive(&login));
        const auto isShakenFor = [&login](const QString &user, const QString &password) {
            Using::type(login, "userField", user);
            Using::type(login, "passwordField", password);
            PageControls::press(login, "loginButton");
            const bool isShaking = login.findChild<QObject *>(u"shake"_s);
            return QTest::qWaitFor([&] { return !login.findChild<QObject *>(u"shake"_s); })
                && isShaking;
        };
        QVERIFY(isShakenFor({}, u"kelp"_s));
        QVERIFY(isShakenFor(u"root"_s, {}));
        QVERIFY(!QFile::exists(DB::dbFilePath()));
        for (const int group : {1, 2}) // it is not clear which of the two it is
            RecordsTrial::storeUser(u"twin"_s, group);
        QVERIFY(isShakenFor(u"twin"_s, u"pw"_s));
        QVERIFY(isShakenFor(u"root"_s, u"Kelp"_s));
        QCOMPARE(PageControls::text(login, "passwordField"), u"Kelp"_s);
        QCOMPARE(login.focusWidget()->objectName(), u"passwordField"_s);
        QTest::keyClicks(login.focusWidget(), u"x"_s); // replaces it
        QCOMPARE(PageControls::text(login, "passwordField"), u"x"_s);
        QVERIFY(login.isVisible());
        QVERIFY(!Global::loggedUser());
        QCOMPARE(trial.boxes.texts, QStringList());

        QVERIFY(!isShakenFor(u"root"_s, u"kelp"_s));
        QVERIFY(!login.isVisible());
        login.show();
        QCOMPARE(login.focusWidget()->objectName(), u"userField"_s);
        QCOMPARE(PageControls::text(login, "passwordField"), QString());
        RecordsTrial::storeUser(u"a%20b"_s, 7);
        QVERIFY(!isShakenFor(u"a%20b"_s, u"pw"_s));
        QCOMPARE(trial.owner.windowTitle(), u"a%20b"_s); // as it is stored
        QCOMPARE(Global::loggedUser()->UserGroupID, 7);
        login.show();
        QTest::keyClick(&login, Qt::Key_Escape);
        QVERIFY(!login.isVisible());
    }

    void comparesWhatWasTypedAndCreatesAMissingRoot()
    {
        const RecordsTrial trial;
        const auto found = [](const char *user, const char *password) {
            return Login::matchingUsers(QLatin1String(user), QLatin1String(password)).size();
        };
        QCOMPARE(found("root", "wrong"), 0);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s), u"1|0|0|root|kelp|Super User"_s);
        QVERIFY(!Global::isDBOpen());
        RecordsTrial::storeUser(u"alice"_s, 1, u"secret"_s);
        RecordsTrial::storeUser(u"Ann%20Lee"_s, 1, u"secret"_s);
        QCOMPARE(found("alice", "secret"), 1);
        QCOMPARE(found("Alice", "secret"), 0);
        QCOMPARE(found("alice", "Secret"), 0);
        QCOMPARE(found("Ann Lee", "secret"), 0); // escaped in the table
        QCOMPARE(found("o'hara", "secret"), 0); // broken by a quote
        QCOMPARE(found("alice'--", "x"), 1); // changed by quotes
        QCOMPARE(found("x'; DELETE FROM User; --", "x"), 0);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"3"_s);
    }
};

QTEST_MAIN(TestLogin)
#include "tst_login.moc"
