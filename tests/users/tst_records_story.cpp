// Proves the whole way of a person through the real program: log in as root, make a group and a
// user of it, start again, log in as that user, and find what the group allows.

#include "Application.h"
#include "DB.h"
#include "Global.h"
#include "LoginDelegate.h"
#include "RecordsTrial.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

/// The program, started.
class Started
{
public:
    Started()
    {
        application.start();
        if (!QTest::qWaitForWindowActive(&application.window()))
            qFatal("the program does not start");
    }

    /// Chooses an item of the Records menu as the keyboard does: Alt+R, then the item's letter.
    void choose(Qt::Key letter)
    {
        auto &menu = control<QMenu>(application.window(), "recordsMenu");
        menu.popup(application.window().mapToGlobal(QPoint(50, 50)));
        QTest::keyClick(&menu, letter);
    }

    void logIn(const QString &user, const QString &password)
    {
        choose(Qt::Key_L);
        QVERIFY(QTest::qWaitForWindowActive(&login()));
        QTest::keyClicks(login().focusWidget(), user);
        QTest::keyClick(login().focusWidget(), Qt::Key_Return);
        QTest::keyClicks(login().focusWidget(), password);
        QTest::keyClick(login().focusWidget(), Qt::Key_Return);
        QVERIFY(!login().isVisible());
        QVERIFY(window().isVisible());
        QCOMPARE(window().windowTitle(), user);
    }

    QWidget &open(Qt::Key letter, const char *page)
    {
        choose(letter);
        if (!QTest::qWaitForWindowActive(records()))
            qFatal("the record window does not open");
        return control<QWidget>(*records(), page);
    }

    QWidget &window() { return application.window(); }
    QWidget &login() { return *application.delegate().loginWindow; }
    RecordWindow *records() { return window().findChild<RecordWindow *>(); }

    Application application;
};

void makeGroup(const QWidget &page)
{
    press(page, "addButton");
    QTest::keyClicks(panel(page).focusWidget(), u"Clerks"_s);
    for (const char *box : {"userGroupEditCB", "userGroupViewCB", "userAddCB"})
        check(page, box); // stored in their own order
    QTest::keyClick(&control<QLineEdit>(page, "memoField"), Qt::Key_Return);
    QVERIFY(!panel(page).isVisible());
}

void makeUser(const QWidget &page)
{
    press(page, "addButton");
    auto &group = control<QComboBox>(page, "userGroupPopUp");
    QTest::keyClicks(&group, u"Clerks"_s);
    QCOMPARE(group.currentText(), u"Clerks"_s);
    QTest::keyClicks(&control<QLineEdit>(page, "userField"), u"alice"_s);
    QTest::keyClicks(&control<QLineEdit>(page, "passwordField"), u"secret"_s);
    QTest::keyClicks(&control<QLineEdit>(page, "rePasswordField"), u"secret"_s);
    press(page, "saveButton");
    QVERIFY(!panel(page).isVisible());
}

} // namespace

class tst_RecordsStory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c()); // the letters above are those of English menus
        Application::prepare();
    }

    void fromRootToAnOrdinaryUser()
    {
        RecordsTrial trial;
        trial.owner.hide();
        {
            Started program;
            QVERIFY(!QFile::exists(RecordsTrial::databaseFile()));
            program.logIn(u"root"_s, u"kelp"_s);
            makeGroup(program.open(Qt::Key_G, "UserGroupViewController"));
            makeUser(program.open(Qt::Key_U, "UserViewController"));
        }
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name, Permission FROM UserGroup WHERE ID=2"_s),
                 u"Clerks|A1A3B2"_s);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT UserGroupID, User, Password FROM User WHERE ID=2"_s),
                 u"2|alice|secret"_s);

        DB::reset();
        Global::reset();
        Started program;
        QCOMPARE(program.window().windowTitle(), u"Toolvane"_s);
        program.logIn(u"alice"_s, u"secret"_s);
        const QStringList buttons{u"addButton"_s, u"editButton"_s, u"delButton"_s};
        const QWidget &groups = program.open(Qt::Key_G, "UserGroupViewController");
        QVERIFY(groups.isVisible());
        QCOMPARE(PageControls::enabledOf(groups, buttons), QStringList{u"editButton"_s});
        const QWidget &users = program.open(Qt::Key_U, "UserViewController");
        QVERIFY(users.isVisible());
        QCOMPARE(PageControls::enabledOf(users, buttons), QStringList{u"addButton"_s});
        QCOMPARE(trial.boxes.texts, QStringList());
    }

    void loggingInClosesWhatAnotherUserHadOpen()
    {
        const RecordsTrial trial;
        Started program;
        program.open(Qt::Key_S, "TemplateViewController");
        const QWidget &page = program.open(Qt::Key_U, "UserViewController");
        press(page, "addButton");
        QCOMPARE(panel(page).windowModality(), Qt::WindowModal);
        QCOMPARE(panel(page).windowHandle()->transientParent(), program.records()->windowHandle());
        QCOMPARE(program.window().findChildren<RecordWindow *>().size(), 1);
        const QPointer<RecordWindow> records = program.records();
        program.logIn(u"root"_s, u"kelp"_s);
        QTRY_VERIFY(!records);
    }

    void closingTheMainWindowQuits()
    {
        RecordsTrial trial;
        trial.owner.hide();
        Started program;
        program.open(Qt::Key_U, "UserViewController");
        program.choose(Qt::Key_L);
        QTimer::singleShot(0, &program.window(), &QWidget::close);
        QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // ended by the window, not by the watchdog
    }
};

QTEST_MAIN(tst_RecordsStory)
#include "tst_records_story.moc"
