#pragma once

#include "AbstractViewController.h"
#include "BLGeneral.h"
#include "Global.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordTable.h"
#include "RecordWindow.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QCheckBox>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>

/// A person at the record window, with an empty database and settings. Message boxes are answered
/// with OK and noted. No table of texts is installed, so every text shown is its key.
class RecordsTrial
{
public:
    RecordsTrial() ///< Ends the program outside the tests' sandbox: it deletes the database.
    {
        const QString sandbox = qEnvironmentVariable("TOOLVANE_TEST_SANDBOX");
        if (sandbox.isEmpty() || !DB::dbFilePath().startsWith(sandbox))
            qFatal("run me through tests/support/isolated");
        QCoreApplication::setOrganizationName(QStringLiteral("Toolvane"));
        QCoreApplication::setApplicationName(QStringLiteral("Toolvane"));
        QSettings().clear();
        QFile::remove(DB::dbFilePath());
        owner.show();
    }
    ~RecordsTrial()
    {
        Global::reset();
        DB::reset();
    }
    Q_DISABLE_COPY_MOVE(RecordsTrial)

    QWidget owner; ///< Takes the place of the main window.
    MessageBoxes boxes;

    /// Opens the window anew, with this page in front.
    AbstractViewController &open(RecordWindow::Page shown)
    {
        RecordWindow::closeOf(owner);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        RecordWindow::open(shown, owner);
        auto *window = owner.findChild<RecordWindow *>();
        QTest::qWait(1); // a refusal's box comes first; the window is active again afterwards
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window))
            qFatal("the record window does not open");
        return page(shown);
    }
    AbstractViewController &page(RecordWindow::Page page) const
    {
        constexpr const char *pages[] = {"UserGroupViewController", "UserViewController",
                                         "TemplateViewController"};
        return PageControls::control<AbstractViewController>(owner, pages[int(page)]);
    }

    /// The output of the sqlite3 program, with "|" between columns.
    static QString sqlite(const QString &sql)
    {
        QProcess program;
        program.start(QStringLiteral("sqlite3"), {DB::dbFilePath(), sql});
        program.waitForFinished();
        const QString fault = QString::fromUtf8(program.readAllStandardError());
        return fault + QString::fromUtf8(program.readAllStandardOutput()).trimmed();
    }

    static int storeGroup(const QString &name, const QString &permission = {}) ///< Returns its key.
    {
        return stored(QStringLiteral("UserGroup"), UserGroupSchema{0, 0, name, permission, {}});
    }
    static void storeUser(const QString &name, int groupID,
                          const QString &password = QStringLiteral("pw"))
    {
        stored(QStringLiteral("User"), UserSchema{0, 0, groupID, name, password, {}});
    }
    /// Logs in a user of the group.
    static void logIn(int groupID)
    {
        Global::setLoggedUser(UserSchema{0, 0, groupID, QStringLiteral("somebody"), {}, {}});
    }

private:
    template <class Record>
    static int stored(const QString &table, const Record &record)
    {
        Global::openDB();
        BLGeneral gateway(table);
        gateway.insert(record);
        const int key = gateway.select("1=1", Record{})->last().ID;
        Global::closeDB();
        return key;
    }
};

/// Uses one page.
namespace Using
{

using PageControls::control;
using PageControls::press;
using PageControls::text;
using enum RecordWindow::Page;

inline RecordTable &table(const QWidget &page)
{
    return control<RecordTable>(page, "table");
}

inline QString cell(const QWidget &page, int row, int column = 0)
{
    return table(page).model()->index(row, column).data().toString();
}

/// The first column, from top to bottom.
inline QStringList names(const QWidget &page)
{
    QStringList names;
    for (int row = 0; row < table(page).model()->rowCount(); ++row)
        names += cell(page, row);
    return names;
}

/// By a click; returns its position.
inline QPoint selectRow(const QWidget &page, int row)
{
    const QModelIndex index = table(page).model()->index(row, 0);
    table(page).scrollTo(index);
    const QPoint place = table(page).visualRect(index).center();
    QTest::mouseClick(table(page).viewport(), Qt::LeftButton, {}, place);
    return place;
}

inline void doubleClickRow(const QWidget &page, int row)
{
    QTest::mouseDClick(table(page).viewport(), Qt::LeftButton, {}, selectRow(page, row));
}

/// By the button.
inline void edit(const QWidget &page, int row)
{
    selectRow(page, row);
    press(page, "editButton");
}

/// Replaces the text of the field, as an input method would.
inline void type(const QWidget &page, const char *field, const QString &text)
{
    auto &edit = control<QLineEdit>(page, field);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QInputMethodEvent typed;
    typed.setCommitString(text);
    QCoreApplication::sendEvent(&edit, &typed);
}

inline void check(const QWidget &page, const char *box)
{
    auto &checkBox = control<QCheckBox>(page, box);
    auto &tabs = control<QTabWidget>(page, "tabView");
    while (!checkBox.isVisible() && tabs.currentIndex() + 1 < tabs.count())
        tabs.setCurrentIndex(tabs.currentIndex() + 1);
    QTest::mouseClick(&checkBox, Qt::LeftButton, {}, QPoint(8, checkBox.height() / 2));
}

inline QDialog &panel(const QWidget &page)
{
    return control<QDialog>(page, "panel");
}

inline QMessageBox *deleteQuestion(const QWidget &page)
{
    return page.findChild<QMessageBox *>(QStringLiteral("deleteQuestion"));
}

inline void answerQuestion(const QWidget &page, int key)
{
    const QPointer<QMessageBox> question = deleteQuestion(page);
    QVERIFY(question && question->isVisible());
    QTest::keyClick(question, Qt::Key(key));
    QTRY_VERIFY(!question);
}

inline void deleteRow(const QWidget &page, int row)
{
    selectRow(page, row);
    press(page, "delButton");
    answerQuestion(page, Qt::Key_Return);
}

} // namespace Using
