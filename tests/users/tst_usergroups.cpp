// Proves that the user groups page stores exactly what was entered, refuses what it must refuse,
// and keeps groups that have users.

#include "RecordsTrial.h"

using namespace Qt::StringLiterals;
using namespace Using;

class tst_UserGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstGroupHoldsNoRightAndALaterOneAll()
    {
        RecordsTrial trial;
        const QWidget &page = trial.open(UserGroups);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM UserGroup"_s),
                 u"1|0|DefaultUserGroup||DefaultUserGroupMemo"_s);
        selectRow(page, 0);
        press(page, "delButton"); // the page does not know its key yet: no row is deleted
        answerQuestion(page, QMessageBox::AcceptRole);
        AbstractViewController &again = trial.open(UserGroups);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM UserGroup"_s), u"1"_s);
        RecordsTrial::sqlite(u"DELETE FROM UserGroup"_s);
        again.reloadData();
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Permission FROM UserGroup"_s),
                 u"A1A2A3A4B1B2B3B4C1C2C3C4D1D2D3D4E1E2E3E4F1F2F3F4"_s);
    }

    void storesNamesEscaped_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored");

        const QString emoji = QString::fromUcs4(U"\U0001F600", 1);
        QTest::newRow("escaped") << u"<b>\"仓\"</b> 100% %41"_s
                                 << u"%3Cb%3E%22%E4%BB%93%22%3C/b%3E%20100%25%20%2541"_s;
        QTest::newRow("kept") << u"a/b?c=d&e+f;g"_s << u"a/b?c=d&e+f;g"_s;
        QTest::newRow("100 units") << emoji.repeated(50) << u"%F0%9F%98%80"_s.repeated(50);
    }
    void storesNamesEscaped()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, stored);
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"First"_s);
        const QWidget &page = trial.open(UserGroups);
        press(page, "addButton");
        QCOMPARE(panel(page).focusWidget()->objectName(), u"nameField"_s);
        type(page, "nameField", name);
        type(page, "memoField", name);
        QTest::keyClick(panel(page).focusWidget(), Qt::Key_Return);
        QVERIFY(!panel(page).isVisible());
        QCOMPARE(trial.boxes.texts, QStringList());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name, Memo FROM UserGroup"_s),
                 u"1|First|\n2|"_s + stored + u'|' + stored);
        QCOMPARE(cell(page, 1), name);
        QCOMPARE(table(page).selectedRow(), 1);
        press(page, "editButton");
        QCOMPARE(text(page, "nameField"), name);
        QCOMPARE(text(page, "memoField"), name);
    }

    void refusesNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("alert");

        const QString emoji = QString::fromUcs4(U"\U0001F600", 1);
        QTest::newRow("none") << QString() << u"UserGroupNullAlert"_s;
        QTest::newRow("101 units") << emoji.repeated(50) + u'x' << u"UserGroupOverLenAlert"_s;
        QTest::newRow("taken") << u"Sales 1"_s << u"UserGroupExistAlert"_s;
        QTest::newRow("an apostrophe cannot be stored") << u"O'Hara"_s << u"SaveFail"_s;
    }
    void refusesNames()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, alert);
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Sales%201"_s);
        const QWidget &page = trial.open(UserGroups);
        press(page, "addButton");
        type(page, "nameField", name);
        control<QLineEdit>(page, "memoField").setFocus();
        press(page, "saveButton");
        QCOMPARE(trial.boxes.texts, QStringList{alert});
        QCOMPARE(trial.boxes.informativeTexts, QStringList{QString()});
        QVERIFY(panel(page).isVisible());
        QCOMPARE(panel(page).focusWidget() == &control<QLineEdit>(page, "nameField"),
                 alert != "SaveFail"_L1);
        QCOMPARE(text(page, "nameField"), name);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"Sales%201"_s);
    }

    void renamingAsksForNoUniqueName()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"One"_s);
        RecordsTrial::storeGroup(u"Two"_s);
        AbstractViewController &page = trial.open(UserGroups);
        selectRow(page, 1);
        QTest::keyClick(&table(page), Qt::Key_Return);
        QCOMPARE(text(page, "nameField"), u"Two"_s);
        type(page, "nameField", u"One"_s);
        page.operation = AbstractViewController::Operation::ViewRecord;
        press(page, "saveButton"); // what is only viewed cannot be saved
        QCOMPARE(trial.boxes.texts, QStringList{u"SaveFail"_s});
        QVERIFY(panel(page).isVisible());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name FROM UserGroup"_s), u"1|One\n2|Two"_s);
        page.operation = AbstractViewController::Operation::EditRecord;
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name FROM UserGroup"_s), u"1|One\n2|One"_s);
        QCOMPARE(table(page).selectedRow(), 1); // still the one that was edited
    }

    void boxesOfAnEarlierGroupStayChecked()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Much"_s, u"A1A2B3"_s);
        RecordsTrial::storeGroup(u"Little"_s, u"A1"_s);
        const QWidget &page = trial.open(UserGroups);
        for (const int row : {0, 1}) {
            edit(page, row);
            QCOMPARE(checkedBoxes(page), QStringList({u"A1"_s, u"A2"_s, u"B3"_s}));
            QTest::keyClick(&panel(page), Qt::Key_Escape);
            QVERIFY(!panel(page).isVisible());
        }
        press(page, "addButton");
        QCOMPARE(checkedBoxes(page), QStringList());
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
        QCOMPARE(trial.boxes.informativeTexts, QStringList{u"UserGroupHasUsersInfo"_s});
        selectRow(page, 1);
        press(page, "delButton");
        QCOMPARE(deleteQuestion(page)->text(), u"DelConfirm"_s);
        QCOMPARE(deleteQuestion(page)->informativeText(), u"DelInfo"_s);
        QCOMPARE(deleteQuestion(page)->windowModality(), Qt::WindowModal);
        answerQuestion(page, QMessageBox::RejectRole);
        QCOMPARE(names(page), QStringList({u"One"_s, u"Two"_s, u"Three"_s}));
        QTest::keyClick(&table(page), Qt::Key_Delete);
        answerQuestion(page, QMessageBox::AcceptRole);
        QCOMPARE(names(page), QStringList({u"One"_s, u"Three"_s}));
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"One\nThree"_s);
        QCOMPARE(trial.boxes.texts.size(), 1);
    }
};

QTEST_MAIN(tst_UserGroups)
#include "tst_usergroups.moc"
