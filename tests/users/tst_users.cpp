// Proves that the users page stores exactly what was entered, and makes its checks in their order.

#include "RecordsTrial.h"

#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;
using namespace Using;
using PageControls::press;

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
    void storesEveryField();
    void acceptsAnEmptyPassword();
    void refuses_data();
    void refuses();
    void measuresTheLabelInsteadOfThePassword_data();
    void measuresTheLabelInsteadOfThePassword();
    void theNameIsFixedOnceAUserWasEdited();
    void editingStoresTheRestAndKeepsTheKey();
    void anyUserCanBeDeleted();
};

void tst_Users::storesEveryField()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"Sales"_s);
    RecordsTrial::storeGroup(u"%E4%BB%93%E5%BA%93"_s);
    QWidget &page = trial.open(RecordWindow::Page::Users);
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
    QCOMPARE(control<QLineEdit>(page, "passwordField").echoMode(), QLineEdit::Password);
    QCOMPARE(control<QLineEdit>(page, "rePasswordField").echoMode(), QLineEdit::Password);
}

void tst_Users::acceptsAnEmptyPassword()
{
    RecordsTrial trial;
    QWidget &page = trial.open(RecordWindow::Page::Users);
    press(page, "addButton");
    fillIn(page, QString(100, u'x'), {}, {});
    press(page, "saveButton");
    QCOMPARE(trial.boxes.texts, QStringList());
    QCOMPARE(RecordsTrial::sqlite(u"SELECT length(User), Password FROM User"_s), u"100|"_s);
}

void tst_Users::refuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("repeated");
    QTest::addColumn<QString>("alert");
    QTest::addColumn<QString>("focused");

    const QString emoji = QString::fromUcs4(U"\U0001F600", 1);
    QTest::newRow("no name, before all else")
        << QString() << u"other"_s << u"UserNullAlert"_s << u"userField"_s;
    QTest::newRow("101 units") << emoji.repeated(50) + u'x' << u"other"_s << u"UserOverLenAlert"_s
                               << u"userField"_s;
    QTest::newRow("passwords differ, before the name is looked up")
        << u"al ice"_s << u"secreT"_s << u"PasswordNotSameAlert"_s << u"rePasswordField"_s;
    QTest::newRow("taken") << u"al ice"_s << u"secret"_s << u"UserExistAlert"_s << u"userField"_s;
}

void tst_Users::refuses()
{
    QFETCH(const QString, name);
    QFETCH(const QString, repeated);
    QFETCH(const QString, alert);
    QFETCH(const QString, focused);
    RecordsTrial trial;
    RecordsTrial::storeUser(u"al%20ice"_s, 1);
    QWidget &page = trial.open(RecordWindow::Page::Users);
    press(page, "addButton");
    fillIn(page, name, u"secret"_s, repeated);
    press(page, "saveButton");
    QCOMPARE(trial.boxes.texts, QStringList{alert});
    QVERIFY(panel(page).isVisible());
    QCOMPARE(panel(page).focusWidget()->objectName(), focused);
    QCOMPARE(PageControls::text(page, "passwordField"), u"secret"_s);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"1"_s);
}

void tst_Users::measuresTheLabelInsteadOfThePassword_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("alerts");
    QTest::newRow("none") << QString() << QStringList{u"PasswordNullAlert"_s};
    QTest::newRow("101") << QString(101, u'x') << QStringList{u"PasswordOverLenAlert"_s};
    QTest::newRow("100") << QString(100, u'x') << QStringList();
}

void tst_Users::measuresTheLabelInsteadOfThePassword()
{
    QFETCH(const QString, label);
    QFETCH(const QStringList, alerts);
    RecordsTrial trial;
    QWidget &page = trial.open(RecordWindow::Page::Users);
    press(page, "addButton");
    const QString password(200, u'p');
    fillIn(page, u"alice"_s, password, password);
    control<QLabel>(page, "passwordLabel").setText(label);
    press(page, "saveButton");
    QCOMPARE(trial.boxes.texts, alerts);
    if (!alerts.isEmpty())
        QCOMPARE(panel(page).focusWidget()->objectName(), u"passwordField"_s);
}

void tst_Users::theNameIsFixedOnceAUserWasEdited()
{
    RecordsTrial trial;
    RecordsTrial::storeUser(u"alice"_s, 1);
    QWidget &page = trial.open(RecordWindow::Page::Users);
    auto &name = control<QLineEdit>(page, "userField");
    press(page, "editButton");
    QVERIFY(!panel(page).isVisible()); // nothing is selected
    QVERIFY(!name.isReadOnly());
    selectRow(page, 0);
    press(page, "editButton");
    QTest::keyClicks(&name, u"x"_s);
    QCOMPARE(name.text(), u"alice"_s);
    press(page, "cancelButton");
    press(page, "addButton");
    QTest::keyClicks(&name, u"x"_s);
    QCOMPARE(name.text(), QString());
}

void tst_Users::editingStoresTheRestAndKeepsTheKey()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"Sales"_s);
    RecordsTrial::storeUser(u"first"_s, 1);
    RecordsTrial::storeUser(u"al%20ice"_s, 1, u"a%20b"_s);
    QWidget &page = trial.open(RecordWindow::Page::Users);
    selectRow(page, 1);
    const QPoint onRow = table(page).visualRect(table(page).currentIndex()).center();
    QTest::mouseDClick(table(page).viewport(), Qt::LeftButton, {}, onRow);
    QVERIFY(panel(page).isVisible());
    QCOMPARE(PageControls::text(page, "userField"), u"al ice"_s);
    QCOMPARE(PageControls::text(page, "passwordField"), u"a b"_s);
    QCOMPARE(PageControls::text(page, "rePasswordField"), u"a b"_s);
    type(page, "memoField", u"moved"_s);
    press(page, "saveButton");
    QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s),
             u"1|0|1|first|pw|\n2|0|1|al%20ice|a%20b|moved"_s);
}

void tst_Users::anyUserCanBeDeleted()
{
    RecordsTrial trial;
    RecordsTrial::store(UserSchema().setRoot());
    RecordsTrial::storeUser(u"alice"_s, 1);
    QWidget &page = trial.open(RecordWindow::Page::Users);
    selectRow(page, 0);
    press(page, "delButton");
    answerQuestion(page, QMessageBox::AcceptRole);
    QCOMPARE(names(page), QStringList{u"alice"_s});
    QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User"_s), u"alice"_s);
}

QTEST_MAIN(tst_Users)
#include "tst_users.moc"
