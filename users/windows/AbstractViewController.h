#pragma once

#include "BLGeneral.h"
#include "RecordTable.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class AbstractViewController;
class RecordPanel;
} // namespace Ui

class QAbstractButton;
class QDialog;
class QPushButton;

/// The page of one table: lists its records and edits them in a sheet on the window that shows the
/// page. This class does what is the same on all pages, RecordViewController.h what depends on the
/// record's class. A page adds its fields, its checks and the columns of its table:
///
/// 1. derive from RecordViewController<YourSchema> and name the table and the codes of its rights;
/// 2. override initLocalizables(), getSchema(), verify(), setAllStatus() and
///    objectValueForTableColumn();
/// 3. lay out the fields in resources/interface, and put them into form();
/// 4. call awakeFromNib() last in the constructor, and add the page to RecordWindow.
///
/// A refusal, or an error that the user can correct, is shown in a message box.
class AbstractViewController : public QWidget, public RecordTableSource
{
    Q_OBJECT

public:
    /// What the sheet is open for. ViewRecord fills the fields like EditRecord, but saving fails;
    /// no button leads to it.
    enum class Operation { None, AddRecord, EditRecord, ViewRecord };
    Q_ENUM(Operation)

    /// The table that the page edits, and the codes of the rights for it, see SessionRights.
    struct Module {
        QLatin1String table;
        QLatin1String view, add, edit, remove;
    };

    ~AbstractViewController() override;

    Operation operation = Operation::None; ///< Keeps its last value after the sheet has closed.
    /// The gateway of the table. Null on a page that the user may not see; it then saves nothing.
    std::unique_ptr<BLGeneral> blGeneral;

    /// Checks the right to see the page, then loads the records. If they cannot be read, the rows
    /// stay as they are, and a line says so.
    virtual void reloadData() = 0;
    /// Loads the records again because the page comes into sight. Does nothing on a page that was
    /// refused, while its sheet or a question is open, and while nothing can be stored: a service
    /// that does not answer reads as an empty table.
    void refresh();
    /// Whether a change would be stored. Meanwhile Add, Edit, Delete and Save are disabled; those
    /// that the user's rights allow are then enabled again.
    void setStorable(bool isStorable);
    bool hasOpenSheet() const; ///< Or a question.
    void focusTable();
    void addAction();
    void editAction(); ///< Does nothing if no row is selected.
    void deleteAction(); ///< Asks first. Does nothing if no row is selected.
    /// Checks the fields, then saves and closes the sheet. Asks first if somebody else changed or
    /// deleted the record meanwhile. After an error the sheet stays open with what was typed.
    void saveAction();
    void cancelAction();

protected:
    /// The page is ready for use only after awakeFromNib().
    AbstractViewController(const Module &module, QWidget *parent);

    void showEvent(QShowEvent *event) override;

    /// Use these two in initLocalizables().
    void setTitle(const QString &title, const QString &hint);
    void setColumns(const QList<RecordTable::Column> &columns);

    /// Sets the page up: calls the three hooks below, and reloadData() before the last of them.
    void awakeFromNib();
    /// Sets the texts and columns that are not in the interface description.
    virtual void initLocalizables() { }
    /// Loads what the sheet offers for choice. It may be called again before the sheet opens.
    virtual void localInit() { }
    /// Disables what the user may not do; nothing is enabled again while the page lives, except
    /// after the rights could not be read.
    virtual void setPermissions();
    /// Prepares the sheet's fields for the operation.
    virtual void setAllStatus(Operation status) = 0;
    /// Whether the sheet's fields may be saved. If not, a message box names the first error.
    virtual bool verify() = 0;
    /// Whether the selected record may be deleted. If not, a message box gives the reason.
    virtual bool deleteVerify() { return true; }
    /// Inserts or updates the record, depending on the operation; false on failure.
    virtual bool writeRecord() = 0;
    enum class Stored { Same, Changed, Deleted, Unreadable };
    /// What became of the selected record since it was loaded. Always the same behind the web
    /// service, which can only be asked for the record as a whole and answers errors with nothing.
    virtual Stored storedRecord() = 0;
    virtual bool hasRowWithoutKey() const = 0; ///< A record that the page created by itself.
    virtual void deleteRecord(int row) = 0; ///< A failure is not reported; the row stays.
    virtual int newestID() const = 0; ///< The highest ID of the records; 0 if there are none.
    virtual void selectID(int ID) = 0; ///< Does nothing if no record has this ID.

    /// Whether the user may see the page. If not, it is hidden, and a message box says so once the
    /// user opens it. False, with the line of showReadable(), if the rights cannot be read.
    bool mayView();
    /// Shows or hides the line that says why the records cannot be read.
    void showReadable(bool isReadable);
    QWidget *form() const; ///< The part of the sheet that holds the fields.
    /// Focuses the field and shows the message. Always false, so that verify() can return it.
    static bool refuse(QWidget &field, const char *messageKey);

    /// The limit of a record's texts, in UTF-16 units before percent-escaping.
    static constexpr qsizetype maxTextLength = 100;
    /// Undoes the percent-escapes of a stored text; empty if they are not valid UTF-8.
    static QString shownText(const QString &stored);
    /// The text as it is stored. Its apostrophes are escaped, too: statements put it between single
    /// quotes.
    static QString storedText(const QString &typed);

    const Module m_module;
    std::unique_ptr<Ui::AbstractViewController> page;
    RecordTable *table;
    QDialog *panel; ///< The sheet.
    std::unique_ptr<Ui::RecordPanel> panelParts;

private:
    void showPanel(const QAbstractButton &starter);
    void showRefusal();
    void save();
    void askToSaveAnyway(bool isDeleted);

    bool m_isStorable = true;
    bool m_isSaveAllowed = false; ///< By the rights, for what the sheet is open for.
    bool m_isRefusalDue = false;
    bool m_arePermissionsDue = false; ///< They could not be read when the page was set up.
};
