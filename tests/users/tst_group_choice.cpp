// Proves which group the users page chooses and stores: what the pop-up holds, and that saving a
// user never moves it into a group that nobody chose, except the one that bears the user's own key.

#include "RecordsTrial.h"

#include <QComboBox>

using namespace Qt::StringLiterals;
using namespace Using;
using PageControls::press;

namespace
{

QStringList items(const QWidget &page)
{
    QStringList items;
    const auto &popUp = control<QComboBox>(page, "userGroupPopUp");
    for (int i = 0; i < popUp.count(); ++i)
        items += popUp.itemText(i) + u'=' + popUp.itemData(i).toString();
    return items;
}

} // namespace

class tst_GroupChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheGroupsOnce();
    void aNameThatComesAgainReplacesItsItem();
    void groupsThatAreGoneStay();
    void editingKeepsOrMovesTheGroup_data();
    void editingKeepsOrMovesTheGroup();
    void aChosenGroupIsStored();
};

void tst_GroupChoice::listsTheGroupsOnce()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"A%20B"_s);
    RecordsTrial::storeGroup(u"C"_s);
    const QWidget &page = trial.open(RecordWindow::Page::Users); // fills the pop-up twice
    QCOMPARE(items(page), QStringList({u"A B=1"_s, u"C=2"_s}));
}

void tst_GroupChoice::aNameThatComesAgainReplacesItsItem()
{
    RecordsTrial trial;
    for (const QString &name : {u"Twin"_s, u"Other"_s, u"Twin"_s})
        RecordsTrial::storeGroup(name);
    const QWidget &page = trial.open(RecordWindow::Page::Users);
    QCOMPARE(items(page), QStringList({u"Other=2"_s, u"Twin=3"_s}));
}

void tst_GroupChoice::groupsThatAreGoneStay()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"Gone"_s);
    RecordsTrial::storeGroup(u"Kept"_s);
    QWidget &page = trial.open(RecordWindow::Page::Users);
    RecordsTrial::sqlite(u"DELETE FROM UserGroup WHERE ID=1"_s);
    RecordsTrial::storeGroup(u"New"_s);
    press(page, "addButton");
    QCOMPARE(items(page), QStringList({u"Gone=1"_s, u"Kept=2"_s, u"New=3"_s}));
    QCOMPARE(control<QComboBox>(page, "userGroupPopUp").currentIndex(), 0);
}

void tst_GroupChoice::editingKeepsOrMovesTheGroup_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("userID");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("stored");

    QTest::newRow("the item with the user's key") << 1 << 3 << u"Third"_s << 3;
    QTest::newRow("no such item: the user's group") << 2 << 40 << u"Second"_s << 2;
    QTest::newRow("no such item, no group: stays root") << 0 << 41 << QString() << 0;
    QTest::newRow("no such item, the group is gone: does not become root")
        << 77 << 42 << QString() << 77;
}

void tst_GroupChoice::editingKeepsOrMovesTheGroup()
{
    QFETCH(const int, group);
    QFETCH(const int, userID);
    QFETCH(const QString, shown);
    QFETCH(const int, stored);
    RecordsTrial trial;
    for (const QString &name : {u"First"_s, u"Second"_s, u"Third"_s})
        RecordsTrial::storeGroup(name);
    const int key = RecordsTrial::storeUser(u"alice"_s, group);
    RecordsTrial::sqlite(u"UPDATE User SET ID=%1 WHERE ID=%2"_s.arg(userID).arg(key));
    QWidget &page = trial.open(RecordWindow::Page::Users);
    selectRow(page, 0);
    press(page, "editButton");
    QCOMPARE(control<QComboBox>(page, "userGroupPopUp").currentText(), shown);
    press(page, "saveButton");
    QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, UserGroupID FROM User"_s),
             u"%1|%2"_s.arg(userID).arg(stored));
}

void tst_GroupChoice::aChosenGroupIsStored()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"First"_s);
    const int key = RecordsTrial::storeUser(u"alice"_s, 77);
    RecordsTrial::sqlite(u"UPDATE User SET ID=50 WHERE ID=%1"_s.arg(key));
    QWidget &page = trial.open(RecordWindow::Page::Users);
    selectRow(page, 0);
    press(page, "editButton");
    QTest::keyClick(&control<QComboBox>(page, "userGroupPopUp"), Qt::Key_Down);
    press(page, "saveButton");
    QCOMPARE(RecordsTrial::sqlite(u"SELECT UserGroupID FROM User"_s), u"1"_s);
}

QTEST_MAIN(tst_GroupChoice)
#include "tst_group_choice.moc"
