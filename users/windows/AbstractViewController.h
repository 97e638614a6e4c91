#pragma once

#include "BLGeneral.h"
#include "RecordTableModel.h"

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
/// page. What all pages do alike stands here, what needs the record's class in
/// RecordViewController.h; a page adds its fields, its checks and the columns of its table:
///
/// 1. derive from RecordViewController<YourSchema>, naming the table and the codes of its rights;
/// 2. override initLocalizables(), getSchema(), verify(), setAllStatus() and
///    objectValueForTableColumn();
/// 3. lay the fields out in resources/interface, and put them into form();
/// 4. call awakeFromNib() last in the constructor, and add the page to RecordWindow.
///
/// Refusals and faults that the user can mend are shown in one message box each.
class AbstractViewController : public QWidget, public RecordTableSource
{
    Q_OBJECT

public:
    enum class Operation { None, AddRecord, EditRecord, ViewRecord };
    Q_ENUM(Operation)

    /// Which table the page edits, and the codes of the rights that it asks for, see SessionRights.
    struct Module {
        QLatin1String table;
        QLatin1String view, add, edit, remove;
    };

    ~AbstractViewController() override;

    Operation operation = Operation::None; ///< Keeps its last value after the sheet has closed.
    std::unique_ptr<BLGeneral> blGeneral; ///< None on a page that the user may not see.

    virtual void reloadData() = 0; ///< Asks for the right to see the page, then loads the records.
    void focusTable();
    void addAction();
    void editAction(); ///< Nothing where no row is selected.
    void deleteAction(); ///< Asks first. Nothing where no row is selected.
    void saveAction();
    void cancelAction();

protected:
    AbstractViewController(const Module &module, QWidget *parent);

    void showEvent(QShowEvent *event) override;

    void awakeFromNib();
    virtual void initLocalizables();
    virtual void localInit() { }
    /// Disables what the user may not do; nothing is enabled again while the page lives.
    virtual void setPermissions();
    /// Prepares the sheet's fields for the operation.
    virtual void setAllStatus(Operation status) = 0;
    /// Whether the sheet's fields may be saved; says in a message box what is wrong first.
    virtual bool verify() = 0;
    virtual bool deleteVerify() { return true; }
    virtual bool writeRecord() = 0; ///< What the operation says; false where it failed.
    virtual void deleteRecord(int row) = 0;
    virtual int newestID() const = 0; ///< The highest of all records; 0 without records.
    virtual void selectID(int ID) = 0;

    /// Whether the user may see the page, which is hidden otherwise, and says so once it is open.
    bool mayView();
    int selectedRow() const; ///< The position in the list of records, -1 for none.
    void selectRow(int row);
    void reloadTable();
    QWidget *form() const; ///< The sheet's room for fields.
    /// Focuses the field and shows the message of the key. Always false, so that verify() can end
    /// with it.
    static bool refuse(QWidget &field, const char *messageKey);

    const Module m_module;
    RecordTableModel *m_model;
    std::unique_ptr<Ui::AbstractViewController> page;
    QDialog *panel; ///< The sheet.
    std::unique_ptr<Ui::RecordPanel> panelParts;

private:
    void connectActions();
    void showPanel(const QAbstractButton &starter);
    void tellRefusal();

    bool m_isRefusalDue = false;
};
