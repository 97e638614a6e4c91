// Proves that each page opens, and each of its buttons works, exactly for those whose group holds
// the right, and that the others are told why.

#include "RecordsTrial.h"
#include "UserViewController.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;
using namespace Using;
using PageControls::press;

namespace
{

constexpr int nobody = -1;
constexpr int root = 0;
constexpr int newGroup = 1; // with the row's rights
constexpr int deletedGroup = 77;

/// What the user may do on a page: "hidden", or the buttons that are enabled.
QString possible(const QWidget &page)
{
    if (control<QGroupBox>(page, "moduleBox").isHidden())
        return u"hidden"_s;
    return PageControls::enabledOf(page, {u"addButton"_s, u"editButton"_s, u"delButton"_s})
        .join(u' ');
}

const QString all = u"addButton editButton delButton"_s;

} // namespace

class tst_Rights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openPagesAndEnableButtons_data();
    void openPagesAndEnableButtons();
    void disabledButtonsSayWhy();
    void keysDoNothingWithoutTheRight();
    void withoutTheRightADoubleClickOnlyShows();
    void aRefusedPageStoresNothing();
    void losingTheRightHidesThePage();
    void rightsAreThoseOfTheUserWhoOpensTheWindow();
};

void tst_Rights::openPagesAndEnableButtons_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<QString>("permission");
    QTest::addColumn<QString>("groups");
    QTest::addColumn<QString>("users");
    QTest::addColumn<QString>("stock");

    const auto hidden = u"hidden"_s;
    const auto buttons = [](const char *names) { return QString::fromLatin1(names); };
    QTest::newRow("nobody") << nobody << QString() << all << all << all;
    QTest::newRow("root") << root << QString() << all << all << all;
    QTest::newRow("no right") << newGroup << QString() << hidden << hidden << hidden;
    QTest::newRow("a deleted group") << deletedGroup << u"A1A2A3A4"_s << hidden << hidden << hidden;
    QTest::newRow("A1A3") << newGroup << u"A1A3"_s << buttons("editButton") << hidden << hidden;
    QTest::newRow("A2") << newGroup << u"A2"_s << buttons("addButton") << hidden << hidden;
    QTest::newRow("A4") << newGroup << u"A4"_s << buttons("delButton") << hidden << hidden;
    QTest::newRow("B1") << newGroup << u"B1"_s << hidden << QString() << QString();
    QTest::newRow("B2") << newGroup << u"B2"_s << hidden << buttons("addButton") << QString();
    QTest::newRow("B3") << newGroup << u"B3"_s << hidden << buttons("editButton") << QString();
    QTest::newRow("B4") << newGroup << u"B4"_s << hidden << buttons("delButton") << QString();
    QTest::newRow("F2 alone") << newGroup << u"F2"_s << hidden << hidden << hidden;
    QTest::newRow("B1F2") << newGroup << u"B1F2"_s << hidden << QString() << buttons("addButton");
    QTest::newRow("B1F3") << newGroup << u"B1F3"_s << hidden << QString() << buttons("editButton");
    QTest::newRow("B1F4") << newGroup << u"B1F4"_s << hidden << QString() << buttons("delButton");
    QTest::newRow("all of A and B") << newGroup << u"A1A2A3A4B1B2B3B4"_s << all << all << QString();
}

void tst_Rights::openPagesAndEnableButtons()
{
    QFETCH(const int, group);
    QFETCH(const QString, permission);
    QFETCH(const QString, groups);
    QFETCH(const QString, users);
    QFETCH(const QString, stock);
    RecordsTrial trial;
    const int key = RecordsTrial::storeGroup(u"Group"_s, permission);
    if (group != nobody)
        RecordsTrial::logIn(group == newGroup ? key : group);
    trial.open(RecordWindow::Page::UserGroups);
    QCOMPARE(possible(trial.page("UserGroupViewController")), groups);
    QCOMPARE(possible(trial.page("UserViewController")), users);
    QCOMPARE(possible(trial.page("TemplateViewController")), stock);
    const auto refused = QStringList({groups, users, stock}).count(u"hidden"_s);
    QCOMPARE(trial.boxes.texts, QStringList(refused, u"NoPermissionAlert"_s));
    QCOMPARE(trial.boxes.informativeTexts, QStringList(refused, u"NoPermissionInfo"_s));
}

void tst_Rights::disabledButtonsSayWhy()
{
    RecordsTrial trial;
    RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A3"_s));
    const QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    QCOMPARE(control<QPushButton>(page, "addButton").toolTip(), u"NoPermissionAlert"_s);
    QCOMPARE(control<QPushButton>(page, "delButton").toolTip(), u"NoPermissionAlert"_s);
    QCOMPARE(control<QPushButton>(page, "editButton").toolTip(), u"Edit"_s);
}

void tst_Rights::keysDoNothingWithoutTheRight()
{
    RecordsTrial trial;
    RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A2"_s));
    const QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    selectRow(page, 0);
    QTest::keyClick(&table(page), Qt::Key_Delete);
    QVERIFY(!deleteQuestion(page));
    QTest::keyClick(&table(page), Qt::Key_Return);
    QVERIFY(!panel(page).isVisible());
}

void tst_Rights::withoutTheRightADoubleClickOnlyShows()
{
    RecordsTrial trial;
    RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A2"_s));
    const QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    selectRow(page, 0);
    const QPoint onRow = table(page).visualRect(table(page).currentIndex()).center();
    QTest::mouseDClick(table(page).viewport(), Qt::LeftButton, {}, onRow);
    QVERIFY(panel(page).isVisible());
    QCOMPARE(PageControls::text(page, "nameField"), u"Group"_s);
    QVERIFY(!control<QPushButton>(page, "saveButton").isEnabled());
    QTest::keyClick(&control<QLineEdit>(page, "nameField"), Qt::Key_Return);
    QVERIFY(panel(page).isVisible());
    press(page, "cancelButton");
    press(page, "addButton");
    QVERIFY(control<QPushButton>(page, "saveButton").isEnabled());
}

void tst_Rights::aRefusedPageStoresNothing()
{
    RecordsTrial trial;
    RecordsTrial::storeUser(u"alice"_s, 1);
    RecordsTrial::logIn(deletedGroup);
    auto &page = static_cast<UserViewController &>(trial.open(RecordWindow::Page::Users));
    QVERIFY(!page.blGeneral);
    QVERIFY(page.data.isEmpty());
    QVERIFY(control<QWidget>(page, "refusedView").isVisible());
    trial.boxes.texts.clear();
    page.addAction();
    type(page, "userField", u"mallory"_s);
    page.saveAction();
    QCOMPARE(trial.boxes.texts, QStringList{u"SaveFail"_s});
    QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User"_s), u"alice"_s);
}

void tst_Rights::losingTheRightHidesThePage()
{
    RecordsTrial trial;
    RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A1A3"_s));
    const QWidget &page = trial.open(RecordWindow::Page::UserGroups);
    trial.boxes.texts.clear();
    selectRow(page, 0);
    press(page, "editButton");
    check(page, "userGroupViewCB");
    check(page, "userGroupEditCB");
    press(page, "saveButton");
    QCOMPARE(possible(page), u"hidden"_s);
    QVERIFY(!panel(page).isVisible());
    QCOMPARE(trial.boxes.texts, QStringList{u"NoPermissionAlert"_s});
}

void tst_Rights::rightsAreThoseOfTheUserWhoOpensTheWindow()
{
    RecordsTrial trial;
    const int group = RecordsTrial::storeGroup(u"Group"_s, u"A1"_s);
    QCOMPARE(possible(trial.open(RecordWindow::Page::UserGroups)), all);
    RecordsTrial::logIn(group);
    QCOMPARE(possible(trial.open(RecordWindow::Page::UserGroups)), QString());
    RecordsTrial::logIn(root);
    QCOMPARE(possible(trial.open(RecordWindow::Page::UserGroups)), all);
}

QTEST_MAIN(tst_Rights)
#include "tst_rights.moc"
