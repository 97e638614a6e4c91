// Proves that the user groups page stores exactly what was entered, refuses what it must refuse,
// and does not delete groups that have users.

#include "RecordsTrial.h"

using namespace Qt::StringLiterals;
using namespace Using;

class TestUserGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstDefaultGroupHasNoRightsAndALaterOneAll()
    {
        RecordsTrial trial;
        const QWidget &page = trial.open(UserGroups);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM UserGroup"_s),
                 u"1|0|DefaultUserGroup||DefaultUserGroupMemo"_s);
        edit(page, 0); // the page has its key by now
        type(page, "memoField", u"l'accueil"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Memo FROM UserGroup"_s), u"l%27accueil"_s);
        deleteRow(page, 0);
        RecordWindow::open(Users, trial.owner);
        RecordWindow::open(UserGroups, trial.owner);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Permission FROM UserGroup"_s),
                 u"A1A2A3A4B1B2B3B4C1C2C3C4D1D2D3D4E1E2E3E4F1F2F3F4"_s);
        deleteRow(page, 0);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM UserGroup"_s), u"0"_s);
    }

    void storesNamesEscapedAndRefusesOthers()
    {
        RecordsTrial trial;
        for (const QString &name : {u"Sales%201"_s, u"C#"_s, u"D%23"_s}) // one of an old version
            RecordsTrial::storeGroup(name);
        const QWidget &page = trial.open(UserGroups);
        press(page, "addButton");
        const QString emoji = QString::fromUcs4(U"\U0001F600", 1);
        const std::pair<QString, QString> refused[] = {
            {QString(), u"UserGroupNullAlert"_s},
            {emoji.repeated(50) + u'x', u"UserGroupOverLenAlert"_s}, // 101 units
            {u"Sales 1"_s, u"UserGroupExistAlert"_s},
            {u"C#"_s, u"UserGroupExistAlert"_s},
            {u"D#"_s, u"UserGroupExistAlert"_s},
        };
        for (const auto &[name, alert] : refused) {
            type(page, "nameField", name);
            control<QLineEdit>(page, "memoField").setFocus();
            press(page, "saveButton");
            QCOMPARE(std::exchange(trial.boxes.texts, {}), QStringList{alert});
            QVERIFY(panel(page).isVisible());
            QCOMPARE(panel(page).focusWidget()->objectName(), u"nameField"_s);
            QCOMPARE(text(page, "nameField"), name);
        }
        for (const QString &name : {u"<b>\"仓\"</b> 100% %41"_s, emoji.repeated(50), u"'--#"_s}) {
            type(page, "nameField", name);
            type(page, "memoField", name);
            QTest::keyClick(panel(page).focusWidget(), Qt::Key_Return);
            QVERIFY(!panel(page).isVisible());
            const int row = table(page).selectedRecord();
            QCOMPARE(cell(page, row), name);
            press(page, "editButton");
            QCOMPARE(text(page, "nameField"), name);
            press(page, "cancelButton");
            press(page, "addButton");
        }
        const QString stored = u"%3Cb%3E%22%E4%BB%93%22%3C/b%3E%20100%25%20%2541"_s;
        const QString smileys = u"%F0%9F%98%80"_s.repeated(50);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name, Memo FROM UserGroup WHERE ID>3"_s),
                 u"4|%1|%1\n5|%2|%2\n6|%3|%3"_s.arg(stored, smileys, u"%27--%23"_s));
        QCOMPARE(trial.boxes.texts, QStringList());
    }

    void rightsInALongLanguageAreWithinReach()
    {
        RecordsTrial trial;
        const QWidget &page = trial.open(UserGroups);
        auto &tabs = control<QTabWidget>(page, "tabView");
        const int last = tabs.count() - 1;
        for (int i = 0; i <= last; ++i)
            tabs.setTabText(i, QString(60, u'm'));
        press(page, "addButton");
        tabs.setCurrentIndex(last);
        const QRect shown = tabs.tabBar()->tabRect(last) & tabs.tabBar()->rect();
        QVERIFY(shown.width() > 100);
    }

    void renamingAllowsANameThatIsTaken()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"One"_s);
        RecordsTrial::storeGroup(u"Two"_s);
        const QWidget &page = trial.open(UserGroups);
        selectRow(page, 1);
        QTest::keyClick(&table(page), Qt::Key_Return);
        QCOMPARE(text(page, "nameField"), u"Two"_s);
        type(page, "nameField", u"One"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name FROM UserGroup"_s), u"1|One\n2|One"_s);
        QCOMPARE(table(page).selectedRecord(), 1); // still the one that was edited
    }

    void boxesOfAnEarlierGroupStayChecked()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Much"_s, u"A1A2B3"_s);
        RecordsTrial::storeGroup(u"Little"_s, u"A1"_s);
        const QWidget &page = trial.open(UserGroups);
        edit(page, 0);
        QTest::keyClick(&panel(page), Qt::Key_Escape);
        QVERIFY(!panel(page).isVisible());
        edit(page, 1);
        press(page, "saveButton");
        press(page, "addButton");
        type(page, "nameField", u"None"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Permission FROM UserGroup WHERE ID>1"_s),
                 u"A1A2B3"_s); // the new one's is empty
        QCOMPARE(names(page).size(), 3);
    }

    void deletesOnlyWithoutUsersAndWhenConfirmed()
    {
        RecordsTrial trial;
        for (const QString &name : {u"One"_s, u"Two"_s, u"Three"_s})
            RecordsTrial::storeGroup(name);
        RecordsTrial::storeUser(u"alice"_s, 1);
        const QWidget &page = trial.open(UserGroups);
        press(page, "delButton");
        QVERIFY(!deleteQuestion(page)); // nothing is selected
        selectRow(page, 0);
        press(page, "delButton");
        QVERIFY(!deleteQuestion(page));
        QCOMPARE(trial.boxes.texts, QStringList{u"UserGroupHasUsersAlert"_s});
        selectRow(page, 1);
        press(page, "delButton");
        QCOMPARE(deleteQuestion(page)->text(), u"DelConfirm"_s);
        QCOMPARE(deleteQuestion(page)->windowModality(), Qt::WindowModal);
        answerQuestion(page, Qt::Key_Escape);
        QCOMPARE(names(page).size(), 3);
        QTest::keyClick(&table(page), Qt::Key_Delete);
        answerQuestion(page, Qt::Key_Return);
        QCOMPARE(names(page), QStringList({u"One"_s, u"Three"_s}));
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"One\nThree"_s);
        QCOMPARE(trial.boxes.texts.size(), 1);
    }
};

QTEST_MAIN(TestUserGroups)
#include "tst_usergroups.moc"
