#pragma once

#include "AbstractViewController.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordTable.h"
#include "RecordWindow.h"
#include "UserGroupSchema.h"
#include "UserSchema.h"

#include <QCheckBox>
#include <QMessageBox>

/// A person at the record window, with an empty database and settings. Message boxes are answered
/// with OK and noted. No table of texts is installed, so every text shown is its key.
class RecordsTrial
{
public:
    RecordsTrial(); ///< Ends the program outside the tests' sandbox: it deletes the database.
    ~RecordsTrial();

    QWidget owner; ///< Stands for the main window.
    MessageBoxes boxes;

    /// Opens the window anew, with this page in front.
    AbstractViewController &open(RecordWindow::Page page);
    RecordWindow &window() const;
    QWidget &page(const char *name) const;

    /// What the database's own program answers, columns parted by "|".
    static QString sqlite(const QString &sql);
    static QString databaseFile();

    static int store(const UserSchema &user); ///< Gives the new row's key, as those below.
    static int storeGroup(const QString &name, const QString &permission = {});
    static int storeUser(const QString &name, int groupID,
                         const QString &password = QStringLiteral("pw"));
    /// Has a user of the group logged in.
    static void logIn(int groupID);
};

/// Uses one page.
namespace Using
{

using PageControls::control;
using PageControls::press;
using PageControls::text;
using enum RecordWindow::Page;

RecordTable &table(const QWidget &page);
QString cell(const QWidget &page, int row, int column = 0);
QStringList names(const QWidget &page); ///< The first column, from top to bottom.
void selectRow(const QWidget &page, int row); ///< By a click.
void doubleClickRow(const QWidget &page, int row);
void edit(const QWidget &page, int row); ///< By the button.
/// Replaces what stands in the field, as an input method would.
void type(const QWidget &page, const char *field, const QString &text);
void check(const QWidget &page, const char *box);
QDialog &panel(const QWidget &page);
QMessageBox *deleteQuestion(const QWidget &page);
void answerQuestion(const QWidget &page, QMessageBox::ButtonRole role);
QStringList checkedBoxes(const QWidget &page); ///< Their codes.

} // namespace Using
