// Proves that the login window lets in exactly whom the table knows, says nothing to others, and
// can be used again.

#include "Global.h"
#include "LoginDelegate.h"
#include "RecordsTrial.h"
#include "WindowShake.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{

/// The login window over the trial's main window.
class LoginTrial : public RecordsTrial
{
public:
    LoginTrial() : login(&owner)
    {
        login.mainWindow = &owner;
        owner.setWindowTitle(u"Toolvane"_s);
        login.show();
        if (!QTest::qWaitForWindowActive(&login))
            qFatal("the login window does not open");
    }

    void enter(const QString &user, const QString &password)
    {
        Using::type(login, "userField", user);
        Using::type(login, "passwordField", password);
        PageControls::press(login, "loginButton");
    }

    bool isShaking() const { return login.findChild<WindowShake *>(); }
    QString focused() const { return login.focusWidget()->objectName(); }

    LoginDelegate login;
};

} // namespace

class tst_Login : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyFieldTouchesNoDatabase_data();
    void anEmptyFieldTouchesNoDatabase();
    void rootLogsInByTheKeyboardAlone();
    void aRefusalKeepsTheText();
    void twinsAreRefused();
    void theTitleIsTheStoredName();
    void opensAgainWithoutThePassword();
    void escapeClosesIt();
};

void tst_Login::anEmptyFieldTouchesNoDatabase_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::newRow("both") << QString() << QString();
    QTest::newRow("user") << QString() << u"kelp"_s;
    QTest::newRow("password") << u"root"_s << QString();
}

void tst_Login::anEmptyFieldTouchesNoDatabase()
{
    QFETCH(const QString, user);
    QFETCH(const QString, password);
    LoginTrial trial;
    trial.enter(user, password);
    QVERIFY(trial.isShaking());
    QVERIFY(trial.login.isVisible());
    QVERIFY(!QFile::exists(LoginTrial::databaseFile()));
}

void tst_Login::rootLogsInByTheKeyboardAlone()
{
    LoginTrial trial;
    const QSignalSpy loggedIn(&trial.login, &LoginDelegate::loggedIn);
    QCOMPARE(trial.focused(), u"userField"_s);
    QTest::keyClicks(trial.login.focusWidget(), u"root"_s);
    QTest::keyClick(trial.login.focusWidget(), Qt::Key_Return);
    QCOMPARE(trial.focused(), u"passwordField"_s);
    QTest::keyClicks(trial.login.focusWidget(), u"kelp"_s);
    QTest::keyClick(trial.login.focusWidget(), Qt::Key_Return);

    QCOMPARE(loggedIn.size(), 1);
    QVERIFY(Global::loggedUser()->isRoot());
    QCOMPARE(trial.owner.windowTitle(), u"root"_s);
    QVERIFY(!trial.login.isVisible());
    QVERIFY(trial.owner.isVisible());
    QVERIFY(!trial.isShaking());
}

void tst_Login::aRefusalKeepsTheText()
{
    LoginTrial trial;
    trial.enter(u"root"_s, u"Kelp"_s);
    QVERIFY(trial.isShaking());
    QVERIFY(trial.login.isVisible());
    QVERIFY(!Global::loggedUser());
    QCOMPARE(PageControls::text(trial.login, "userField"), u"root"_s);
    QCOMPARE(PageControls::text(trial.login, "passwordField"), u"Kelp"_s);
    QCOMPARE(trial.owner.windowTitle(), u"Toolvane"_s);
    QCOMPARE(trial.boxes.texts, QStringList());
    QCOMPARE(LoginTrial::sqlite(u"SELECT User FROM User"_s), u"root"_s);
}

void tst_Login::twinsAreRefused()
{
    LoginTrial trial;
    LoginTrial::storeUser(u"twin"_s, 1);
    LoginTrial::storeUser(u"twin"_s, 2);
    trial.enter(u"twin"_s, u"pw"_s);
    QVERIFY(trial.isShaking());
    QVERIFY(!Global::loggedUser());
}

void tst_Login::theTitleIsTheStoredName()
{
    LoginTrial trial;
    LoginTrial::storeUser(u"a%20b"_s, 1);
    trial.enter(u"a%20b"_s, u"pw"_s);
    QCOMPARE(trial.owner.windowTitle(), u"a%20b"_s);
}

void tst_Login::opensAgainWithoutThePassword()
{
    LoginTrial trial;
    LoginTrial::storeUser(u"alice"_s, 7);
    trial.enter(u"root"_s, u"kelp"_s);
    trial.login.show();
    QVERIFY(QTest::qWaitForWindowActive(&trial.login));
    QCOMPARE(trial.focused(), u"userField"_s);
    QCOMPARE(PageControls::text(trial.login, "passwordField"), QString());
    trial.enter(u"alice"_s, u"pw"_s);
    QCOMPARE(trial.owner.windowTitle(), u"alice"_s);
    QCOMPARE(Global::loggedUser()->UserGroupID, 7);
}

void tst_Login::escapeClosesIt()
{
    LoginTrial trial;
    QTest::keyClick(&trial.login, Qt::Key_Escape);
    QVERIFY(!trial.login.isVisible());
    QVERIFY(!Global::loggedUser());
}

QTEST_MAIN(tst_Login)
#include "tst_login.moc"
