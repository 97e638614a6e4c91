// Proves which group the users page chooses and stores: what the pop-up holds, and that saving a
// user never moves it into a group that nobody chose, except the one that bears the user's own key.

#include "RecordsTrial.h"

#include <QComboBox>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

QComboBox &popUp(const QWidget &page)
{
    return control<QComboBox>(page, "userGroupPopUp");
}

QStringList items(const QWidget &page)
{
    QStringList items;
    for (int i = 0; i < popUp(page).count(); ++i)
        items += popUp(page).itemText(i) + u'=' + popUp(page).itemData(i).toString();
    return items;
}

} // namespace

class tst_GroupChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEachNameOnceAndKeepsGroupsThatAreGone()
    {
        RecordsTrial trial;
        for (const QString &name : {u"Twin"_s, u"A%20B"_s, u"Twin"_s})
            RecordsTrial::storeGroup(name);
        const QWidget &page = trial.open(Users); // fills the pop-up twice
        QCOMPARE(items(page), QStringList({u"A B=2"_s, u"Twin=3"_s}));
        RecordsTrial::sqlite(u"DELETE FROM UserGroup WHERE ID=2"_s);
        RecordsTrial::storeGroup(u"New"_s);
        press(page, "addButton");
        QCOMPARE(items(page), QStringList({u"A B=2"_s, u"Twin=3"_s, u"New=4"_s}));
        QCOMPARE(popUp(page).currentIndex(), 0);
    }

    void editingKeepsOrMovesTheGroup_data()
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
    void editingKeepsOrMovesTheGroup()
    {
        QFETCH(const int, group);
        QFETCH(const int, userID);
        QFETCH(const int, stored);
        RecordsTrial trial;
        for (const QString &name : {u"First"_s, u"Second"_s, u"Third"_s})
            RecordsTrial::storeGroup(name);
        RecordsTrial::storeUser(u"alice"_s, group);
        RecordsTrial::sqlite(u"UPDATE User SET ID=%1"_s.arg(userID));
        const QWidget &page = trial.open(Users);
        edit(page, 0);
        QTEST(popUp(page).currentText(), "shown");
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, UserGroupID FROM User"_s),
                 u"%1|%2"_s.arg(userID).arg(stored));
        edit(page, 0);
        popUp(page).setCurrentIndex(-1);
        QTest::keyClick(&popUp(page), Qt::Key_Down);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT UserGroupID FROM User"_s), u"1"_s);
    }
};

QTEST_MAIN(tst_GroupChoice)
#include "tst_group_choice.moc"
