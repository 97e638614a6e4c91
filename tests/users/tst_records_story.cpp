// Proves the whole way of a person through the real program: log in as root, make a group and a
// user of it, start again, log in as that user, find what the group allows, and quit.

#include "Application.h"
#include "DB.h"
#include "Global.h"
#include "LoginDelegate.h"
#include "RecordsTrial.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QTimer>

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

    /// Chooses an item of the Records menu as the keyboard does: Alt+R, then the item's mnemonic.
    void choose(Qt::Key mnemonic)
    {
        auto &menu = control<QMenu>(application.window(), "recordsMenu");
        menu.popup(application.window().mapToGlobal(QPoint(50, 50)));
        QTest::keyClick(&menu, mnemonic);
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

    QWidget &open(Qt::Key mnemonic, const char *page)
    {
        choose(mnemonic);
        if (!QTest::qWaitForWindowActive(records()))
            qFatal("the record window does not open");
        return control<QWidget>(*records(), page);
    }

    QWidget &window() { return application.window(); }
    QWidget &login() { return *application.delegate().loginWindow; }
    RecordWindow *records() { return window().findChild<RecordWindow *>(); }

    Application application;
};

} // namespace

class TestRecordsStory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c()); // the mnemonics above are those of English menus
        Application::prepare();
    }

    void fromRootToAnOrdinaryUser()
    {
        RecordsTrial trial;
        trial.owner.hide();
        {
            Started program;
            QVERIFY(!QFile::exists(DB::dbFilePath()));
            program.logIn(u"root"_s, u"kelp"_s);
            const QWidget &groups = program.open(Qt::Key_G, "UserGroupViewController");
            press(groups, "addButton");
            QTest::keyClicks(panel(groups).focusWidget(), u"Clerks"_s);
            for (const char *box : {"userGroupEditCB", "userGroupViewCB", "userAddCB"})
                check(groups, box); // stored in their own order
            QTest::keyClick(&control<QLineEdit>(groups, "memoField"), Qt::Key_Return);
            const QWidget &users = program.open(Qt::Key_U, "UserViewController");
            press(users, "addButton");
            QTest::keyClicks(&control<QComboBox>(users, "userGroupPopUp"), u"Clerks"_s);
            QTest::keyClicks(&control<QLineEdit>(users, "userField"), u"alice"_s);
            for (const char *field : {"passwordField", "rePasswordField"})
                QTest::keyClicks(&control<QLineEdit>(users, field), u"secret"_s);
            press(users, "saveButton");
        }
        QCOMPARE(RecordsTrial::sqlite(u"SELECT Name, Permission FROM UserGroup WHERE ID=2"_s),
                 u"Clerks|A1A3B2"_s);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT UserGroupID, User, Password FROM User WHERE ID=2"_s),
                 u"2|alice|secret"_s);

        DB::reset();
        Global::reset();
        Started program;
        QCOMPARE(program.window().windowTitle(), u"Toolvane"_s);
        press(program.open(Qt::Key_U, "UserViewController"), "addButton");
        const QPointer<RecordWindow> ofAnother = program.records();
        program.logIn(u"alice"_s, u"secret"_s);
        QTRY_VERIFY(!ofAnother);
        const QStringList buttons{u"addButton"_s, u"editButton"_s, u"delButton"_s};
        const QWidget &groups = program.open(Qt::Key_G, "UserGroupViewController");
        QVERIFY(groups.isVisible());
        QCOMPARE(PageControls::enabledOf(groups, buttons), QStringList{u"editButton"_s});
        const QWidget &users = program.open(Qt::Key_U, "UserViewController");
        QVERIFY(users.isVisible());
        QCOMPARE(PageControls::enabledOf(users, buttons), QStringList{u"addButton"_s});
        QCOMPARE(trial.boxes.texts, QStringList());

        program.choose(Qt::Key_L); // the program ends with its main window, whatever is open
        QTimer::singleShot(0, &program.window(), &QWidget::close);
        QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0); // ended by the window, not by the watchdog
    }
};

QTEST_MAIN(TestRecordsStory)
#include "tst_records_story.moc"
