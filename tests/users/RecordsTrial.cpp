#include "RecordsTrial.h"

#include "BLGeneral.h"
#include "Global.h"

#include <QInputMethodEvent>
#include <QProcess>
#include <QSettings>

using namespace Qt::StringLiterals;

RecordsTrial::RecordsTrial()
{
    const QString sandbox = qEnvironmentVariable("TOOLVANE_TEST_SANDBOX");
    if (sandbox.isEmpty() || !databaseFile().startsWith(sandbox))
        qFatal("run me through tests/support/isolated");
    QCoreApplication::setOrganizationName(u"Toolvane"_s);
    QCoreApplication::setApplicationName(u"Toolvane"_s);
    QSettings().clear();
    QFile::remove(databaseFile());
    owner.show();
}

RecordsTrial::~RecordsTrial()
{
    Global::reset();
    DB::reset();
}

AbstractViewController &RecordsTrial::open(RecordWindow::Page page)
{
    RecordWindow::closeOf(owner);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    RecordWindow::open(page, owner);
    if (!QTest::qWaitForWindowActive(&window()))
        qFatal("the record window does not open");
    constexpr const char *pages[] = {"UserGroupViewController", "UserViewController",
                                     "TemplateViewController"};
    return PageControls::control<AbstractViewController>(window(), pages[int(page)]);
}

RecordWindow &RecordsTrial::window() const
{
    return *owner.findChild<RecordWindow *>();
}

QWidget &RecordsTrial::page(const char *name) const
{
    return PageControls::control<QWidget>(window(), name);
}

QString RecordsTrial::databaseFile()
{
    return DB::dbFilePath();
}

QString RecordsTrial::sqlite(const QString &sql)
{
    QProcess program;
    program.start(u"sqlite3"_s, {databaseFile(), sql});
    program.waitForFinished();
    const QString fault = QString::fromUtf8(program.readAllStandardError());
    return fault + QString::fromUtf8(program.readAllStandardOutput()).trimmed();
}

namespace
{

template <class Record>
int stored(const QString &table, const Record &record)
{
    Global::openDB();
    BLGeneral gateway(table);
    gateway.insert(record);
    const int key = gateway.select("1=1", Record{})->last().ID;
    Global::closeDB();
    return key;
}

} // namespace

int RecordsTrial::store(const UserSchema &user)
{
    return stored(u"User"_s, user);
}

int RecordsTrial::storeGroup(const QString &name, const QString &permission)
{
    UserGroupSchema group;
    group.Name = name;
    group.Permission = permission;
    return stored(u"UserGroup"_s, group);
}

int RecordsTrial::storeUser(const QString &name, int groupID, const QString &password)
{
    UserSchema user;
    user.UserGroupID = groupID;
    user.User = name;
    user.Password = password;
    return store(user);
}

void RecordsTrial::logIn(int groupID)
{
    UserSchema user;
    user.User = u"somebody"_s;
    user.UserGroupID = groupID;
    Global::setLoggedUser(user);
}

RecordTable &Using::table(const QWidget &page)
{
    return control<RecordTable>(page, "table");
}

QString Using::cell(const QWidget &page, int row, int column)
{
    return table(page).model()->index(row, column).data().toString();
}

QStringList Using::names(const QWidget &page)
{
    QStringList names;
    for (int row = 0; row < table(page).model()->rowCount(); ++row)
        names += cell(page, row);
    return names;
}

void Using::selectRow(const QWidget &page, int row)
{
    RecordTable &list = table(page);
    const QModelIndex index = list.model()->index(row, 0);
    list.scrollTo(index);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

void Using::doubleClickRow(const QWidget &page, int row)
{
    selectRow(page, row);
    const QPoint onRow = table(page).visualRect(table(page).currentIndex()).center();
    QTest::mouseDClick(table(page).viewport(), Qt::LeftButton, {}, onRow);
}

void Using::edit(const QWidget &page, int row)
{
    selectRow(page, row);
    press(page, "editButton");
}

void Using::type(const QWidget &page, const char *field, const QString &text)
{
    auto &edit = control<QLineEdit>(page, field);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QInputMethodEvent typed;
    typed.setCommitString(text);
    QCoreApplication::sendEvent(&edit, &typed);
}

void Using::check(const QWidget &page, const char *box)
{
    auto &checkBox = control<QCheckBox>(page, box);
    auto &tabs = control<QTabWidget>(page, "tabView");
    while (!checkBox.isVisible() && tabs.currentIndex() + 1 < tabs.count())
        tabs.setCurrentIndex(tabs.currentIndex() + 1);
    QTest::mouseClick(&checkBox, Qt::LeftButton, {}, QPoint(8, checkBox.height() / 2));
}

QDialog &Using::panel(const QWidget &page)
{
    return control<QDialog>(page, "panel");
}

QMessageBox *Using::deleteQuestion(const QWidget &page)
{
    return page.findChild<QMessageBox *>(u"deleteQuestion"_s);
}

void Using::answerQuestion(const QWidget &page, QMessageBox::ButtonRole role)
{
    QPointer<QMessageBox> question = deleteQuestion(page);
    QVERIFY(question && question->isVisible());
    const auto buttons = question->buttons();
    for (QAbstractButton *button : buttons) {
        if (question->buttonRole(button) == role)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QTRY_VERIFY(!question);
}

QStringList Using::checkedBoxes(const QWidget &page)
{
    QStringList codes;
    const auto boxes = page.findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes) {
        if (box->isChecked())
            codes += box->property("identifier").toString();
    }
    codes.sort();
    return codes;
}
