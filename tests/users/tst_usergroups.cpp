// Proves that the user groups page stores exactly what was entered, refuses what it must refuse,
// and keeps groups that have users.

#include "RecordsTrial.h"
#include "UserGroupViewController.h"

using namespace Qt::StringLiterals;
using namespace Using;
using PageControls::press;

class tst_UserGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstGroupHoldsNoRight();
    void aLaterFirstGroupHoldsAllRights();
    void theDefaultGroupHasNoKeyUntilReloaded();
    void storesNamesEscaped_data();
    void storesNamesEscaped();
    void storesTheRightsInTheirOrder();
    void refusesNames_data();
    void refusesNames();
    void anApostropheCannotBeSaved();
    void renamingAsksForNoUniqueName();
    void boxesOfAnEarlierGroupStayChecked();
    void keepsAGroupWithUsers();
    void deletesOnlyWhenConfirmed();
    void savingWhatIsOnlyViewedFails();
};

void tst_UserGroups::theFirstGroupHoldsNoRight()
{
    RecordsTrial trial;
    trial.open(RecordWindow::Page::UserGroups);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM UserGroup"_s),
             u"1|0|DefaultUserGroup||DefaultUserGroupMemo"_s);
    trial.open(RecordWindow::Page::UserGroups);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM UserGroup"_s), u"1"_s);
}

void tst_UserGroups::aLaterFirstGroupHoldsAllRights()
{
    RecordsTrial trial;
    auto &page = static_cast<UserGroupViewController &>(trial.open(RecordWindow::Page::UserGroups));
    RecordsTrial::sqlite(u"DELETE FROM UserGroup"_s);
    page.reloadData();
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Permission FROM UserGroup"_s),
             u"A1A2A3A4B1B2B3B4C1C2C3C4D1D2D3D4E1E2E3E4F1F2F3F4"_s);
}

void tst_UserGroups::theDefaultGroupHasNoKeyUntilReloaded()
{
    RecordsTrial trial;
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    selectRow(page, 0);
    press(page, "delButton"); // deletes where ID=0: no row
    answerQuestion(page, QMessageBox::AcceptRole);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM UserGroup"_s), u"1"_s);
}

void tst_UserGroups::storesNamesEscaped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stored");

    const QString emoji = QString::fromUcs4(U"\U0001F600", 1);
    QTest::newRow("double quotes") << u"The \"best\""_s << u"The%20%22best%22"_s;
    QTest::newRow("percent") << u"100% %41"_s << u"100%25%20%2541"_s;
    QTest::newRow("Chinese") << u"仓库"_s << u"%E4%BB%93%E5%BA%93"_s;
    QTest::newRow("100 letters") << QString(100, u'x') << QString(100, u'x');
    QTest::newRow("50 emoji") << emoji.repeated(50) << u"%F0%9F%98%80"_s.repeated(50);
    QTest::newRow("kept marks") << u"a/b?c=d&e+f;g"_s << u"a/b?c=d&e+f;g"_s;
    QTest::newRow("markup") << u"<b>bold</b>"_s << u"%3Cb%3Ebold%3C/b%3E"_s;
}

void tst_UserGroups::storesNamesEscaped()
{
    QFETCH(const QString, name);
    QFETCH(const QString, stored);
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"First"_s);
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    press(page, "addButton");
    QCOMPARE(panel(page).focusWidget()->objectName(), u"nameField"_s);
    type(page, "nameField", name);
    type(page, "memoField", name);
    QTest::keyClick(panel(page).focusWidget(), Qt::Key_Return);
    QVERIFY(!panel(page).isVisible());
    QCOMPARE(trial.boxes.texts, QStringList());
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Name, Memo FROM UserGroup WHERE ID=2"_s),
             stored + u'|' + stored);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM UserGroup"_s), u"2"_s);
    QCOMPARE(cell(page, 1), name);
    QCOMPARE(table(page).selectedRow(), 1);
    press(page, "editButton");
    QCOMPARE(PageControls::text(page, "nameField"), name);
    QCOMPARE(PageControls::text(page, "memoField"), name);
}

void tst_UserGroups::storesTheRightsInTheirOrder()
{
    RecordsTrial trial;
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    press(page, "addButton");
    type(page, "nameField", u"Clerks"_s);
    for (const char *box : {"userGroupViewCB", "userAddCB", "categoryDeleteCB", "inventoryEditCB"})
        check(page, box);
    control<QTabWidget>(page, "tabView").setCurrentIndex(0);
    check(page, "userGroupEditCB"); // checked last, stored at its place
    press(page, "saveButton");
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Permission FROM UserGroup WHERE Name='Clerks'"_s),
             u"A1A3B2C4F3"_s);
}

void tst_UserGroups::refusesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("alert");

    const QString emoji = QString::fromUcs4(U"\U0001F600", 1);
    QTest::newRow("none") << QString() << u"UserGroupNullAlert"_s;
    QTest::newRow("101 letters") << QString(101, u'x') << u"UserGroupOverLenAlert"_s;
    QTest::newRow("101 units") << emoji.repeated(50) + u'x' << u"UserGroupOverLenAlert"_s;
    QTest::newRow("taken") << u"Sales 1"_s << u"UserGroupExistAlert"_s;
}

void tst_UserGroups::refusesNames()
{
    QFETCH(const QString, name);
    QFETCH(const QString, alert);
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"Sales%201"_s);
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    press(page, "addButton");
    type(page, "nameField", name);
    control<QLineEdit>(page, "memoField").setFocus();
    press(page, "saveButton");
    QCOMPARE(trial.boxes.texts, QStringList{alert});
    QCOMPARE(trial.boxes.informativeTexts, QStringList{QString()});
    QVERIFY(panel(page).isVisible());
    QCOMPARE(panel(page).focusWidget()->objectName(), u"nameField"_s);
    QCOMPARE(PageControls::text(page, "nameField"), name);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT count(*) FROM UserGroup"_s), u"1"_s);
}

void tst_UserGroups::anApostropheCannotBeSaved()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"First"_s);
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    press(page, "addButton");
    type(page, "nameField", u"O'Hara"_s);
    press(page, "saveButton");
    QCOMPARE(trial.boxes.texts, QStringList{u"SaveFail"_s});
    QVERIFY(panel(page).isVisible());
    QCOMPARE(PageControls::text(page, "nameField"), u"O'Hara"_s);
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"First"_s);
}

void tst_UserGroups::renamingAsksForNoUniqueName()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"One"_s);
    RecordsTrial::storeGroup(u"Two"_s);
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    selectRow(page, 1);
    QTest::keyClick(&table(page), Qt::Key_Return);
    QCOMPARE(PageControls::text(page, "nameField"), u"Two"_s);
    type(page, "nameField", u"One"_s);
    press(page, "saveButton");
    QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name FROM UserGroup"_s), u"1|One\n2|One"_s);
    QCOMPARE(table(page).selectedRow(), 1); // still the one that was edited
}

void tst_UserGroups::boxesOfAnEarlierGroupStayChecked()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"Much"_s, u"A1A2B3"_s);
    RecordsTrial::storeGroup(u"Little"_s, u"A1"_s);
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    selectRow(page, 0);
    press(page, "editButton");
    QCOMPARE(checkedBoxes(page), QStringList({u"A1"_s, u"A2"_s, u"B3"_s}));
    QTest::keyClick(&panel(page), Qt::Key_Escape);
    QVERIFY(!panel(page).isVisible());
    selectRow(page, 1);
    press(page, "editButton");
    QCOMPARE(checkedBoxes(page), QStringList({u"A1"_s, u"A2"_s, u"B3"_s}));
    press(page, "cancelButton");
    press(page, "addButton");
    QCOMPARE(checkedBoxes(page), QStringList());
}

void tst_UserGroups::keepsAGroupWithUsers()
{
    RecordsTrial trial;
    RecordsTrial::storeUser(u"alice"_s, RecordsTrial::storeGroup(u"Sales"_s));
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    selectRow(page, 0);
    press(page, "delButton");
    QCOMPARE(trial.boxes.texts, QStringList{u"UserGroupHasUsersAlert"_s});
    QCOMPARE(trial.boxes.informativeTexts, QStringList{u"UserGroupHasUsersInfo"_s});
    QVERIFY(!deleteQuestion(page));
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"Sales"_s);
}

void tst_UserGroups::deletesOnlyWhenConfirmed()
{
    RecordsTrial trial;
    for (const QString &name : {u"One"_s, u"Two"_s, u"Three"_s})
        RecordsTrial::storeGroup(name);
    QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    press(page, "delButton");
    QVERIFY(!deleteQuestion(page)); // nothing is selected
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
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup ORDER BY ID"_s), u"One\nThree"_s);
    QCOMPARE(trial.boxes.texts, QStringList());
}

void tst_UserGroups::savingWhatIsOnlyViewedFails()
{
    RecordsTrial trial;
    RecordsTrial::storeGroup(u"One"_s);
    auto &page = static_cast<UserGroupViewController &>(trial.open(RecordWindow::Page::UserGroups));
    selectRow(page, 0);
    press(page, "editButton");
    type(page, "nameField", u"Other"_s);
    page.operation = AbstractViewController::Operation::ViewRecord;
    press(page, "saveButton");
    QCOMPARE(trial.boxes.texts, QStringList{u"SaveFail"_s});
    QVERIFY(panel(page).isVisible());
    QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"One"_s);
}

QTEST_MAIN(tst_UserGroups)
#include "tst_usergroups.moc"
