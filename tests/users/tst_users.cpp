// Proves that the users page stores exactly what was entered, makes its checks in order, and never
// moves a user into a group that nobody chose, except the one whose key is the user's own.

#include "RecordsTrial.h"

#include <QComboBox>
#include <QLabel>
#include <QTranslator>

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

/// Gives the two texts that hold a name; others are still their keys.
class ShownGroups : public QTranslator
{
public:
    ShownGroups() { QCoreApplication::installTranslator(this); }
    QString translate(const char *, const char *key, const char *, int) const override
    {
        const QLatin1String id(key);
        return id == "User.Group.Present"_L1 ? u"now %1"_s
            : id == "User.Group.Saved"_L1    ? u"saved %1"_s
                                             : QString();
    }
    bool isEmpty() const override { return false; }
};

QComboBox &popUp(const QWidget &page)
{
    return control<QComboBox>(page, "userGroupPopUp");
}

} // namespace

class TestUsers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesInItsOrderAndStoresEveryField()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Sales"_s);
        RecordsTrial::storeGroup(u"%E4%BB%93%E5%BA%93"_s);
        RecordsTrial::storeUser(u"al%20ice"_s, 1);
        const QWidget &page = trial.open(Users);
        press(page, "addButton");
        const QString maxName(100, u'x');
        struct Case {
            QString name;
            QString label; // beside the password; its length is what is checked
            QString repeated;
            QString alert;
            QString focused;
        } const cases[] = {
            // Each is also wrong in everything that is checked later.
            {{}, {}, u"other"_s, u"UserNullAlert"_s, u"userField"_s},
            {maxName + u'x', {}, u"other"_s, u"UserOverLenAlert"_s, u"userField"_s},
            {maxName, {}, u"other"_s, u"PasswordNullAlert"_s, u"passwordField"_s},
            {maxName, maxName + u'x', u"a"_s, u"PasswordOverLenAlert"_s, u"passwordField"_s},
            {u"al ice"_s, maxName, u"secreT"_s, u"PasswordNotSameAlert"_s, u"rePasswordField"_s},
            {u"al ice"_s, maxName, u"secret"_s, u"UserExistAlert"_s, u"userField"_s},
        };
        for (const Case &wrong : cases) {
            fillIn(page, wrong.name, u"secret"_s, wrong.repeated);
            control<QLabel>(page, "passwordLabel").setText(wrong.label);
            press(page, "saveButton");
            QCOMPARE(std::exchange(trial.boxes.texts, {}), QStringList{wrong.alert});
            QVERIFY(panel(page).isVisible());
            QCOMPARE(panel(page).focusWidget()->objectName(), wrong.focused);
            QCOMPARE(text(page, "passwordField"), u"secret"_s);
        }
        QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM User"_s), u"1"_s);
        control<QLabel>(page, "passwordLabel").setText(u"Password"_s);
        fillIn(page, maxName, {}, {}); // an empty password passes
        press(page, "saveButton");
        QCOMPARE(trial.boxes.texts, QStringList());
        press(page, "addButton");
        fillIn(page, u"李 \"雷\" 50%"_s, u"pa ss"_s, u"pa ss"_s);
        type(page, "memoField", u"<b>new</b>"_s);
        QCOMPARE(popUp(page).currentText(), u"Sales"_s);
        QTest::keyClick(&popUp(page), Qt::Key_Down);
        QCOMPARE(popUp(page).currentText(), u"仓库"_s);
        press(page, "saveButton");
        const QString stored = u"2|0|1|"_s + maxName
            + u"||\n3|0|2|%E6%9D%8E%20%22%E9%9B%B7%22%2050%25|pa%20ss|%3Cb%3Enew%3C/b%3E"_s;
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User WHERE ID>1"_s), stored);
        QCOMPARE(cell(page, 2), u"李 \"雷\" 50%"_s);
        QCOMPARE(cell(page, 2, 1), u"<b>new</b>"_s);
        QCOMPARE(table(page).model()->columnCount(), 2); // the password is never shown
        for (const char *field : {"passwordField", "rePasswordField"})
            QCOMPARE(control<QLineEdit>(page, field).echoMode(), QLineEdit::Password);
    }

    void editingKeepsTheNameAndTheKeyAndMovesTheGroupOnlyByTheUsersKey()
    {
        RecordsTrial trial;
        for (const QString &name : {u"Twin"_s, u"A%20B"_s, u"Twin"_s})
            RecordsTrial::storeGroup(name);
        RecordsTrial::storeUser(u"al%20ice"_s, 77, u"a%20b"_s);
        const QWidget &page = trial.open(Users);
        QCOMPARE(popUp(page).count(), 2); // each name once, for the last group with it
        struct Case {
            int userID;
            int group;
            QString shown;
            int stored;
            QString now; // the group's name
            QString next; // after saving
        } const cases[] = {
            {3, 2, u"Twin"_s, 3, u"A B"_s, u"Twin"_s}, // the item with the user's key
            {3, 1, u"Twin"_s, 3, u"Twin (1)"_s, u"Twin (3)"_s},
            {3, 0, u"Twin"_s, 3, u"User.Group.All"_s, u"Twin"_s},
            {40, 2, u"A B"_s, 2, u"A B"_s, u"A B"_s}, // no such item: the user's group
            {41, 0, u"User.Group.All"_s, 0, u"User.Group.All"_s, u"User.Group.All"_s},
            // No such item, the group is gone: does not become root.
            {42, 77, {}, 77, u"User.Group.Gone"_s, u"User.Group.Gone"_s},
        };
        auto &groups = control<QLabel>(page, "groupsLabel");
        // The keys stand for the texts, which have a place for the name.
        const ShownGroups texts;
        for (const Case &one : cases) {
            RecordsTrial::sqlite(
                u"UPDATE User SET ID=%1, UserGroupID=%2"_s.arg(one.userID).arg(one.group));
            trial.page(Users).reloadData();
            doubleClickRow(page, 0);
            QCOMPARE(popUp(page).currentText(), one.shown);
            QCOMPARE(groups.text(), u"now %1\nsaved %2"_s.arg(one.now, one.next));
            QCOMPARE(groups.font().bold(), one.group != one.stored);
            const int last = popUp(page).count() - 1;
            QCOMPARE(popUp(page).itemText(last) == u"User.Group.All"_s, one.group == 0);
            QTest::keyClicks(&control<QLineEdit>(page, "userField"), u"x"_s); // is read-only
            QCOMPARE(text(page, "userField"), u"al ice"_s);
            QCOMPARE(text(page, "passwordField"), u"a b"_s);
            QCOMPARE(text(page, "rePasswordField"), u"a b"_s);
            press(page, "saveButton");
            QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM User"_s),
                     u"%1|0|%2|al%20ice|a%20b|"_s.arg(one.userID).arg(one.stored));
        }
        // Groups that are gone stay in the list, new ones come with the next user.
        RecordsTrial::sqlite(u"DELETE FROM UserGroup WHERE ID=2"_s);
        RecordsTrial::storeGroup(u"New"_s);
        press(page, "addButton");
        QCOMPARE(popUp(page).count(), 3);
        QCOMPARE(popUp(page).currentText(), u"A B"_s);
        QCOMPARE(groups.text().trimmed(), QString());
    }

    void allRightsAreAnItemWhileTheyAreEdited()
    {
        RecordsTrial trial;
        const QString title = u"User.Group.All"_s;
        for (const QString &name : {u"Sales"_s, title}) // a group may have this name
            RecordsTrial::storeGroup(name);
        RecordsTrial::storeUser(u"root"_s, 0);
        const QWidget &page = trial.open(Users);
        const ShownGroups texts;
        auto &groups = control<QLabel>(page, "groupsLabel");
        edit(page, 0);
        QCOMPARE(popUp(page).count(), 3);
        QCOMPARE(popUp(page).itemData(2).toInt(), 0);
        QCOMPARE(popUp(page).currentText(), u"Sales"_s);
        QCOMPARE(groups.text(), u"now User.Group.All\nsaved Sales"_s);
        popUp(page).setCurrentIndex(1);
        QCOMPARE(groups.text(), u"now User.Group.All (0)\nsaved User.Group.All (2)"_s);
        QVERIFY(groups.font().bold());
        popUp(page).setCurrentIndex(2);
        QVERIFY(!groups.font().bold());
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT UserGroupID FROM User"_s), u"0"_s);
        press(page, "addButton");
        QCOMPARE(popUp(page).count(), 2);
        QVERIFY(popUp(page).findData(0) < 0);
        QCOMPARE(popUp(page).findText(title), 1);
    }
};

QTEST_MAIN(TestUsers)
#include "tst_users.moc"
