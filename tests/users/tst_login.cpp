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
    void anEmptyFieldTouchesNoDatabase()
    {
        LoginTrial trial;
        for (const auto &[user, password] : {std::pair(u""_s, u"kelp"_s), {u"root"_s, u""_s}}) {
            trial.enter(user, password);
            QVERIFY(trial.isShaking());
            QVERIFY(trial.login.isVisible());
            QVERIFY(!QFile::exists(LoginTrial::databaseFile()));
            QTRY_VERIFY(!trial.isShaking());
        }
        QTest::keyClick(&trial.login, Qt::Key_Escape);
        QVERIFY(!trial.login.isVisible());
        QVERIFY(!Global::loggedUser());
    }

    void rootLogsInByTheKeyboardAlone()
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

    void aRefusalSaysNothingAndKeepsTheText()
    {
        LoginTrial trial;
        trial.enter(u"root"_s, u"Kelp"_s);
        QVERIFY(trial.isShaking());
        QVERIFY(trial.login.isVisible());
        QVERIFY(!Global::loggedUser());
        QCOMPARE(PageControls::text(trial.login, "userField"), u"root"_s);
        QCOMPARE(PageControls::text(trial.login, "passwordField"), u"Kelp"_s);
        QCOMPARE(trial.owner.windowTitle(), u"Toolvane"_s);
        QCOMPARE(LoginTrial::sqlite(u"SELECT User FROM User"_s), u"root"_s);
        for (const int group : {1, 2}) // nobody can tell which of the two it is
            LoginTrial::storeUser(u"twin"_s, group);
        QTRY_VERIFY(!trial.isShaking());
        trial.enter(u"twin"_s, u"pw"_s);
        QVERIFY(trial.isShaking());
        QVERIFY(!Global::loggedUser());
        QCOMPARE(trial.boxes.texts, QStringList());
    }

    void opensAgainWithoutThePassword()
    {
        LoginTrial trial;
        LoginTrial::storeUser(u"a%20b"_s, 7);
        trial.enter(u"root"_s, u"kelp"_s);
        trial.login.show();
        QVERIFY(QTest::qWaitForWindowActive(&trial.login));
        QCOMPARE(trial.focused(), u"userField"_s);
        QCOMPARE(PageControls::text(trial.login, "passwordField"), QString());
        trial.enter(u"a%20b"_s, u"pw"_s);
        QCOMPARE(trial.owner.windowTitle(), u"a%20b"_s); // as it is stored
        QCOMPARE(Global::loggedUser()->UserGroupID, 7);
    }
};

QTEST_MAIN(tst_Login)
#include "tst_login.moc"
