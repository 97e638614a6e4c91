// Proves that each page opens, and each of its buttons works, exactly for those whose group holds
// the right, and that the others are told why.

#include "RecordsTrial.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;
using namespace Using;

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
    void openPagesAndEnableButtons_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<QString>("permission");
        QTest::addColumn<QString>("groups");
        QTest::addColumn<QString>("users");
        QTest::addColumn<QString>("stock");

        const auto row = [](const char *name, int group, const QString &groups,
                            const QString &users, const QString &stock) {
            QTest::newRow(name) << group << QString::fromLatin1(name) << groups << users << stock;
        };
        const QString hidden = u"hidden"_s;
        const QString add = u"addButton"_s;
        const QString edit = u"editButton"_s;
        const QString remove = u"delButton"_s;
        row("", nobody, all, all, all);
        row("a1 root", root, all, all, all);
        row("a1b1 in lower case", newGroup, hidden, hidden, hidden);
        row("A1A2 of a deleted group", deletedGroup, hidden, hidden, hidden);
        row("A1", newGroup, {}, hidden, hidden);
        row("B1", newGroup, hidden, {}, {});
        row("F2", newGroup, hidden, hidden, hidden);
        row("A2B3F4", newGroup, add, edit, remove);
        row("A3B4F2", newGroup, edit, remove, add);
        row("A4B2F3", newGroup, remove, add, edit);
        row("A1A2A3A4B1B2B3B4", newGroup, all, all, {});
    }
    void openPagesAndEnableButtons()
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
        trial.open(UserGroups);
        QCOMPARE(possible(trial.page("UserGroupViewController")), groups);
        QCOMPARE(possible(trial.page("UserViewController")), users);
        QCOMPARE(possible(trial.page("TemplateViewController")), stock);
        const auto refused = QStringList({groups, users, stock}).count(u"hidden"_s);
        QCOMPARE(trial.boxes.texts, QStringList(refused, u"NoPermissionAlert"_s));
        QCOMPARE(trial.boxes.informativeTexts, QStringList(refused, u"NoPermissionInfo"_s));
    }

    void whatIsNotAllowedSaysWhyAndChangesNothing()
    {
        RecordsTrial trial;
        RecordsTrial::logIn(RecordsTrial::storeGroup(u"Group"_s, u"A2"_s));
        const QWidget &page = trial.open(UserGroups);
        QCOMPARE(control<QPushButton>(page, "addButton").toolTip(), u"Add"_s);
        for (const char *button : {"editButton", "delButton"})
            QCOMPARE(control<QPushButton>(page, button).toolTip(), u"NoPermissionAlert"_s);
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
        press(page, "cancelButton");
        press(page, "addButton");
        QVERIFY(control<QPushButton>(page, "saveButton").isEnabled());
    }

    void aRefusedPageStoresNothing()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"alice"_s, 1);
        RecordsTrial::logIn(deletedGroup);
        AbstractViewController &page = trial.open(Users);
        QVERIFY(!page.blGeneral);
        QCOMPARE(page.numberOfRowsInTableView(), 0);
        QVERIFY(control<QWidget>(page, "refusedView").isVisible());
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

    void rightsAreThoseOfTheUserWhoOpensTheWindow()
    {
        RecordsTrial trial;
        const int group = RecordsTrial::storeGroup(u"Group"_s, u"A1"_s);
        QCOMPARE(possible(trial.open(UserGroups)), all);
        RecordsTrial::logIn(group);
        QCOMPARE(possible(trial.open(UserGroups)), QString());
        RecordsTrial::logIn(root);
        QCOMPARE(possible(trial.open(UserGroups)), all);
    }
};

QTEST_MAIN(tst_Rights)
#include "tst_rights.moc"
