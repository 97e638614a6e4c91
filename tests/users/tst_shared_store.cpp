// Proves that the login and the record pages stay truthful while others use, hold or damage the
// same database: nothing is created, overwritten or shown that the database does not say.

#include "BusyBudget.h"
#include "Login.h"
#include "RecordsTrial.h"

#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWindow>

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

/// Another program that holds the file. Statements wait for it for a short time only.
class Lock
{
public:
    Lock() : m_usual(std::exchange(BusyBudget::timeout(), timeout))
    {
        sqlite3_open16(DB::dbFilePath().utf16(), &m_other);
        if (sqlite3_exec(m_other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
            qFatal("no lock");
    }
    ~Lock()
    {
        sqlite3_close(m_other);
        BusyBudget::timeout() = m_usual;
    }
    Q_DISABLE_COPY_MOVE(Lock)

    static constexpr std::chrono::milliseconds timeout{300};

private:
    std::chrono::milliseconds m_usual;
    sqlite3 *m_other = nullptr;
};

/// Replaces the table by one that takes records but fails while it is read.
void makeUnreadable(const QString &table, const QString &columns)
{
    RecordsTrial::sqlite(
        u"ALTER TABLE %1 RENAME TO Kept; CREATE VIEW %1 AS SELECT ID,%2,"
        "Memo||abs(-9223372036854775807-1) AS Memo FROM Kept; CREATE TRIGGER t INSTEAD OF INSERT "
        "ON %1 BEGIN INSERT INTO Kept(%2,Memo) SELECT %3,new.Memo; END"_s.arg(
            table, columns, u"new."_s + QString(columns).replace(u","_s, u",new."_s)));
}

QString trouble(const QWidget &page)
{
    const auto &line = control<QLabel>(page, "troubleLabel");
    return line.isHidden() ? QString() : line.text();
}

} // namespace

class TestSharedStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFailedSelectIsNotAnEmptyTable()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"root"_s, 1, u"secret"_s);
        RecordsTrial::storeGroup(u"Sales"_s);
        makeUnreadable(u"User"_s, u"ShopID,UserGroupID,User,Password"_s);
        QVERIFY(Login::matchingUsers(u"root"_s, u"kelp"_s).isEmpty());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Password FROM Kept"_s), u"secret"_s);
        trial.open(UserGroups);
        selectRow(trial.page(UserGroups), 0);
        press(trial.page(UserGroups), "delButton");
        QVERIFY(!deleteQuestion(trial.page(UserGroups))); // it may have users
        QCOMPARE(trouble(trial.page(Users)), u"Records.Unreadable"_s);

        RecordsTrial::sqlite(u"DROP TABLE Kept; DROP VIEW User"_s);
        makeUnreadable(u"UserGroup"_s, u"ShopID,Name,Permission"_s);
        const QWidget &page = trial.open(UserGroups);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM Kept"_s), u"Sales"_s);
        QCOMPARE(trouble(page), u"Records.Unreadable"_s);
        QCOMPARE(table(page).property("emptyText"), QString());
    }

    void aLockedDatabaseIsWaitedForOnce()
    {
        RecordsTrial trial;
        const int group = RecordsTrial::storeGroup(u"Clerks"_s, u"A1A2B1"_s);
        RecordsTrial::storeUser(u"root"_s, 0, u"secret"_s);
        RecordsTrial::logIn(group);
        {
            const Lock lock;
            QElapsedTimer clock;
            clock.start();
            QVERIFY(Login::matchingUsers(u"root"_s, u"secret"_s).isEmpty());
            QVERIFY(clock.elapsed() < 3 * Lock::timeout.count()); // 3 statements
            clock.start();
            RecordWindow::open(UserGroups, trial.owner);
            QVERIFY(clock.elapsed() < 10 * Lock::timeout.count()); // some 30 statements
            for (const auto page : {UserGroups, Users, Stock})
                QCOMPARE(trouble(trial.page(page)), u"Records.Busy"_s);
        }
        const QWidget &page = trial.page(UserGroups);
        QVERIFY(PageControls::enabledOf(page, {u"addButton"_s, u"editButton"_s}).isEmpty());
        QVERIFY(page.isVisible());
        QTest::qWait(1);
        QCOMPARE(trial.boxes.texts, QStringList()); // the rights are not known, so not refused
        RecordWindow::open(UserGroups, trial.owner);
        QCOMPARE(trouble(page), QString());
        QCOMPARE(names(page), QStringList{u"Clerks"_s});
        QCOMPARE(PageControls::enabledOf(page, {u"addButton"_s, u"editButton"_s}),
                 QStringList{u"addButton"_s});
        selectRow(page, 0);
        {
            const Lock lock;
            RecordWindow::open(Users, trial.owner);
            RecordWindow::open(UserGroups, trial.owner);
            QCOMPARE(names(page), QStringList{u"Clerks"_s}); // what was read before
        }
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name FROM UserGroup"_s), u"Clerks"_s);
    }

    void aNewUserWaitsForTheGroups()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"Sales"_s);
        RecordsTrial::storeUser(u"bob"_s, 1);
        {
            const Lock lock;
            RecordWindow::open(Users, trial.owner);
            press(trial.page(Users), "addButton");
        }
        const QWidget &page = trial.page(Users);
        type(page, "userField", u"alice"_s);
        press(page, "saveButton"); // in no group, alice would have all rights
        QCOMPARE(trial.boxes.texts, QStringList{u"SaveFail"_s});
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT UserGroupID FROM User WHERE User='alice'"_s),
                 u"1"_s);
    }

    void pagesReloadInSightButNotUnderASheet()
    {
        RecordsTrial trial;
        for (const QString &name : {u"One"_s, u"Two"_s})
            RecordsTrial::storeGroup(name);
        const QWidget &page = trial.open(UserGroups);
        selectRow(page, 1);
        RecordsTrial::sqlite(u"INSERT INTO UserGroup SELECT 0,0,'Zero','',''"_s);
        RecordWindow::open(Users, trial.owner);
        auto &tabs = control<QTabWidget>(trial.owner, "pages");
        tabs.setCurrentIndex(0);
        QCOMPARE(names(page), QStringList({u"Zero"_s, u"One"_s, u"Two"_s}));
        QCOMPARE(table(page).selectedRecord(), 2); // by its key
        press(page, "editButton");
        RecordsTrial::storeGroup(u"Three"_s);
        RecordWindow::open(Users, trial.owner);
        QCOMPARE(tabs.currentIndex(), 0);
        QCOMPARE(names(page).size(), 3);
        press(page, "cancelButton");
        RecordWindow::open(UserGroups, trial.owner);
        QCOMPARE(names(page).size(), 4);

        RecordsTrial::logIn(77);
        const QWidget &refused = trial.open(Users);
        QTRY_COMPARE(trial.boxes.texts.size(), 1);
        RecordWindow::open(Stock, trial.owner); // refused as well
        QTRY_COMPARE(trial.boxes.texts.size(), 2);
        RecordWindow::open(Users, trial.owner);
        QTest::qWait(1);
        QCOMPARE(trial.boxes.texts.size(), 2);
        QVERIFY(control<QGroupBox>(refused, "moduleBox").isHidden());
    }

    void aSheetBlocksItsOwnWindowAlone()
    {
        RecordsTrial trial;
        QPushButton tool(u"tool"_s, &trial.owner);
        tool.show();
        trial.owner.resize(300, 200);
        int clicks = 0;
        connect(&tool, &QPushButton::clicked, this, [&clicks] { ++clicks; });
        const QWidget &page = trial.open(Users);
        press(page, "addButton");
        QTest::mouseClick(trial.owner.windowHandle(), Qt::LeftButton, {}, tool.geometry().center());
        QCOMPARE(clicks, 1);
        const auto &tabs = control<QTabWidget>(trial.owner, "pages");
        QTest::mouseClick(page.window()->windowHandle(), Qt::LeftButton, {},
                          tabs.tabBar()->mapTo(page.window(), tabs.tabBar()->tabRect(0).center()));
        QCOMPARE(tabs.currentIndex(), 1);
    }

    void whatOthersChangedIsNotOverwrittenUnasked()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"One"_s);
        const QWidget &page = trial.open(UserGroups);
        const auto answer = [&page](const char *key) {
            press(page, "saveButton");
            const QPointer question = page.findChild<QMessageBox *>(u"saveQuestion"_s);
            QVERIFY(question && question->isVisible());
            QCOMPARE(question->text(), QLatin1String(key));
            QCOMPARE(question->defaultButton()->text().remove(u'&'), u"Cancel"_s);
        };
        const auto choose = [&page](const QString &text) {
            const QPointer question = page.findChild<QMessageBox *>(u"saveQuestion"_s);
            for (QAbstractButton *button : question->buttons()) {
                if (button->text().remove(u'&').contains(text))
                    button->click();
            }
            QTRY_VERIFY(!question);
        };
        edit(page, 0);
        type(page, "nameField", u"Mine"_s);
        RecordsTrial::sqlite(u"UPDATE UserGroup SET Memo='theirs'"_s);
        answer("Records.Changed");
        choose(u"Cancel"_s);
        QVERIFY(panel(page).isVisible());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name, Memo FROM UserGroup"_s), u"One|theirs"_s);
        answer("Records.Changed");
        choose(u"Records.SaveAnyway"_s);
        QVERIFY(!panel(page).isVisible());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name, Memo FROM UserGroup"_s), u"1|Mine|"_s);

        edit(page, 0);
        RecordsTrial::sqlite(u"DELETE FROM UserGroup"_s);
        answer("Records.Deleted");
        choose(u"Records.SaveAnyway"_s);
        QVERIFY(!panel(page).isVisible());
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID, Name FROM UserGroup"_s), u"2|Mine"_s);
        edit(page, 0);
        press(page, "saveButton"); // nothing to ask
        QVERIFY(!panel(page).isVisible());
    }
};

QTEST_MAIN(TestSharedStore)
#include "tst_shared_store.moc"
