// Proves that each page opens, and each of its buttons works, exactly for the users whose group has
// the right, and that the others get the reason.

#include "RecordsTrial.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

constexpr int nobody = -1;
constexpr int root = 0;
constexpr int newGroup = 1; // with the rights of the case
constexpr int deletedGroup = 77;

/// What the user may do on a page: "hidden", or the buttons that are enabled.
QString possible(const QWidget &page)
{
    if (control<QGroupBox>(page, "moduleBox").isHidden())
        return u"hidden"_s;
    return PageControls::enabledOf(page, {u"addButton"_s, u"editButton"_s, u"delButton"_s})
        .join(u' ');
}

} // namespace

class TestRights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openPagesAndEnableButtons()
    {
        const QString all = u"addButton editButton delButton"_s;
        const QString hidden = u"hidden"_s;
        struct Case {
            int group;
            const char *permission;
            QStringList pages; // of groups, users, stock
        } const cases[] = {
            {nobody, "", {all, all, all}},
            {root, "", {all, all, all}},
            {newGroup, "a1b1", {hidden, hidden, hidden}},
            {deletedGroup, "A1A2", {hidden, hidden, hidden}},
            {newGroup, "B1", {hidden, {}, {}}},
            {newGroup, "A2B3F4", {u"addButton"_s, u"editButton"_s, u"delButton"_s}},
            {newGroup, "A3B4F2", {u"editButton"_s, u"delButton"_s, u"addButton"_s}},
            {newGroup, "A4B2F3", {u"delButton"_s, u"addButton"_s, u"editButton"_s}},
        };
        for (const auto &[group, permission, pages] : cases) {
            RecordsTrial trial;
            const int key = RecordsTrial::storeGroup(u"Group"_s, QString::fromLatin1(permission));
            if (group != nobody)
                RecordsTrial::logIn(group == newGroup ? key : group);
            trial.open(UserGroups);
            const qsizetype refusedAtOnce = pages.at(0) == hidden ? 1 : 0;
            QTRY_COMPARE(trial.boxes.texts.size(), refusedAtOnce); // not of what nobody opened
            trial.open(Users);
            RecordWindow::open(Stock, trial.owner);
            QCOMPARE(QStringList({possible(trial.page(UserGroups)), possible(trial.page(Users)),
                                  possible(trial.page(Stock))}),
                     pages);
            const auto refused = pages.count(hidden);
            QTRY_COMPARE(trial.boxes.texts, QStringList(refused, u"NoPermissionAlert"_s));
            QCOMPARE(trial.boxes.informativeTexts, QStringList(refused, u"NoPermissionInfo"_s));
        }
    }

    void aDisabledButtonGivesTheReasonAndChangesNothing()
    {
        RecordsTrial trial;
        RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A2"_s));
        const QWidget &page = trial.open(UserGroups);
        QCOMPARE(control<QPushButton>(page, "editButton").toolTip(), u"NoPermissionAlert"_s);
        selectRow(page, 0);
        QTest::keyClick(&table(page), Qt::Key_Delete);
        QVERIFY(!deleteQuestion(page));
        QTest::keyClick(&table(page), Qt::Key_Return);
        QVERIFY(!panel(page).isVisible());

        doubleClickRow(page, 0); // only shows the record
        QVERIFY(panel(page).isVisible());
        QCOMPARE(text(page, "nameField"), u"Group"_s);
        QVERIFY(!control<QPushButton>(page, "saveButton").isEnabled());
        QTest::keyClick(&control<QLineEdit>(page, "nameField"), Qt::Key_Return);
        QVERIFY(panel(page).isVisible());
    }

    void aRefusedPageStoresNothing()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"alice"_s, 1);
        RecordsTrial::logIn(deletedGroup);
        AbstractViewController &page = trial.open(Users);
        QVERIFY(!page.blGeneral);
        QCOMPARE(page.numberOfRowsInTableView(), 0);
        trial.boxes.texts.clear();
        page.addAction();
        type(page, "userField", u"mallory"_s);
        page.saveAction();
        QCOMPARE(trial.boxes.texts, QStringList{u"SaveFail"_s});
        QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User"_s), u"alice"_s);
    }

    void losingTheRightHidesThePage()
    {
        RecordsTrial trial;
        RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A1A3"_s));
        const QWidget &page = trial.open(UserGroups);
        trial.boxes.texts.clear();
        edit(page, 0);
        check(page, "userGroupViewCB");
        check(page, "userGroupEditCB");
        press(page, "saveButton");
        QCOMPARE(possible(page), u"hidden"_s);
        QVERIFY(!panel(page).isVisible());
        QCOMPARE(trial.boxes.texts, QStringList{u"NoPermissionAlert"_s});
    }
};

QTEST_MAIN(TestRights)
#include "tst_rights.moc"
