// Proves that the users page stores exactly what was entered, and makes its checks in their order.

#include "RecordsTrial.h"

#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

void fillIn(const QWidget &page, const QString &name, const QString &password,
            const QString &repeated)
{
    type(page, "userField", name);
    type(page, "passwordField", password);
    type(page, "rePasswordField", repeated);
}

} // namespace

class tst_Users : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesEveryField()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Sales"_s);
        RecordsTrial::storeGroup(u"%E4%BB%93%E5%BA%93"_s);
        const QWidget &page = trial.open(Users);
        QVERIFY(names(page).isEmpty());
        press(page, "addButton");
        QCOMPARE(panel(page).windowModality(), Qt::WindowModal);
        QCOMPARE(panel(page).focusWidget()->objectName(), u"userField"_s);
        auto &groups = control<QComboBox>(page, "userGroupPopUp");
        QCOMPARE(groups.currentText(), u"Sales"_s);
        QTest::keyClick(&groups, Qt::Key_Down);
        QCOMPARE(groups.currentText(), u"仓库"_s);
        fillIn(page, u"李 \"雷\" 50%"_s, u"pa ss"_s, u"pa ss"_s);
        type(page, "memoField", u"<b>new</b>"_s);
        press(page, "saveButton");
        QVERIFY(!panel(page).isVisible());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s),
                 u"1|0|2|%E6%9D%8E%20%22%E9%9B%B7%22%2050%25|pa%20ss|%3Cb%3Enew%3C/b%3E"_s);
        QCOMPARE(cell(page, 0), u"李 \"雷\" 50%"_s);
        QCOMPARE(cell(page, 0, 1), u"<b>new</b>"_s);
        QCOMPARE(table(page).model()->columnCount(), 2); // the password is never shown
        for (const char *field : {"passwordField", "rePasswordField"})
            QCOMPARE(control<QLineEdit>(page, field).echoMode(), QLineEdit::Password);
    }

    void acceptsWhatIsJustLongEnough_data()
    {
        QTest::addColumn<QString>("password"); // the label beside it is what is measured
        QTest::newRow("none") << QString();
        QTest::newRow("long") << QString(200, u'p');
    }
    void acceptsWhatIsJustLongEnough()
    {
        QFETCH(const QString, password);
        RecordsTrial trial;
        const QWidget &page = trial.open(Users);
        press(page, "addButton");
        fillIn(page, QString(100, u'x'), password, password);
        control<QLabel>(page, "passwordLabel").setText(QString(100, u'x'));
        press(page, "saveButton");
        QCOMPARE(trial.boxes.texts, QStringList());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT length(User), Password FROM User"_s),
                 u"100|"_s + password);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("repeated");
        QTest::addColumn<QString>("alert");
        QTest::addColumn<QString>("focused");

        const QString tooLong(101, u'x');
        const auto row = [](const QString &name, const QString &label, const QString &repeated,
                            const char *alert, const char *focused) {
            QTest::newRow(alert) << name << label << repeated << QString::fromLatin1(alert)
                                 << QString::fromLatin1(focused);
        };
        // Each is wrong in what is checked later, too.
        row({}, {}, u"other"_s, "UserNullAlert", "userField");
        row(tooLong, {}, u"other"_s, "UserOverLenAlert", "userField");
        row(u"al ice"_s, {}, u"other"_s, "PasswordNullAlert", "passwordField");
        row(u"al ice"_s, tooLong, u"other"_s, "PasswordOverLenAlert", "passwordField");
        row(u"al ice"_s, u"Password"_s, u"secreT"_s, "PasswordNotSameAlert", "rePasswordField");
        row(u"al ice"_s, u"Password"_s, u"secret"_s, "UserExistAlert", "userField");
    }
    void refuses()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, label);
        QFETCH(const QString, repeated);
        RecordsTrial trial;
        RecordsTrial::storeUser(u"al%20ice"_s, 1);
        const QWidget &page = trial.open(Users);
        press(page, "addButton");
        fillIn(page, name, u"secret"_s, repeated);
        control<QLabel>(page, "passwordLabel").setText(label);
        press(page, "saveButton");
        QTEST(trial.boxes.texts.join(u' '), "alert");
        QVERIFY(panel(page).isVisible());
        QTEST(panel(page).focusWidget()->objectName(), "focused");
        QCOMPARE(text(page, "passwordField"), u"secret"_s);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"1"_s);
    }

    void theNameIsFixedOnceAUserWasEdited()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"alice"_s, 1);
        const QWidget &page = trial.open(Users);
        auto &name = control<QLineEdit>(page, "userField");
        press(page, "editButton");
        QVERIFY(!panel(page).isVisible()); // nothing is selected
        QVERIFY(!name.isReadOnly());
        edit(page, 0);
        QTest::keyClicks(&name, u"x"_s);
        QCOMPARE(name.text(), u"alice"_s);
        press(page, "cancelButton");
        press(page, "addButton");
        QTest::keyClicks(&name, u"x"_s);
        QCOMPARE(name.text(), QString());
    }

    void editingStoresTheRestAndKeepsTheKey()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Sales"_s);
        RecordsTrial::store(UserSchema().setRoot());
        RecordsTrial::storeUser(u"al%20ice"_s, 1, u"a%20b"_s);
        const QWidget &page = trial.open(Users);
        doubleClickRow(page, 1);
        QVERIFY(panel(page).isVisible());
        QCOMPARE(text(page, "userField"), u"al ice"_s);
        QCOMPARE(text(page, "passwordField"), u"a b"_s);
        QCOMPARE(text(page, "rePasswordField"), u"a b"_s);
        type(page, "memoField", u"moved"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s),
                 u"1|0|0|root|kelp|Super User\n2|0|1|al%20ice|a%20b|moved"_s);
        selectRow(page, 0);
        press(page, "delButton"); // even root
        answerQuestion(page, QMessageBox::AcceptRole);
        QCOMPARE(names(page), QStringList{u"al ice"_s});
        QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User"_s), u"al%20ice"_s);
    }
};

QTEST_MAIN(tst_Users)
#include "tst_users.moc"
