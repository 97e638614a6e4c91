#include "AbstractViewController.h"

#include "MiscTool.h"
#include "Mnemonics.h"
#include "SessionRights.h"
#include "ui_AbstractViewController.h"
#include "ui_RecordPanel.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

AbstractViewController::AbstractViewController(const Module &module, QWidget *parent)
    : QWidget(parent), m_module(module), m_model(new RecordTableModel(*this, this)),
      page(std::make_unique<Ui::AbstractViewController>()), panel(new QDialog(this)),
      panelParts(std::make_unique<Ui::RecordPanel>())
{
    page->setupUi(this);
    panelParts->setupUi(panel);
    Mnemonics::keepUnique(panel);
    page->table->setRecords(*m_model, u"Records/"_s + module.table);
    connectActions();
}

AbstractViewController::~AbstractViewController() = default;

void AbstractViewController::focusTable()
{
    page->table->setFocus();
}

void AbstractViewController::connectActions()
{
    using Page = AbstractViewController;
    connect(page->addButton, &QPushButton::clicked, this, &Page::addAction);
    connect(page->editButton, &QPushButton::clicked, this, &Page::editAction);
    connect(page->delButton, &QPushButton::clicked, this, &Page::deleteAction);
    connect(page->table, &RecordTable::returnPressed, page->editButton, &QPushButton::click);
    connect(page->table, &RecordTable::deletePressed, page->delButton, &QPushButton::click);
    connect(panelParts->saveButton, &QPushButton::clicked, this, &Page::saveAction);
    connect(panelParts->cancelButton, &QPushButton::clicked, this, &Page::cancelAction);
}

void AbstractViewController::awakeFromNib()
{
    initLocalizables();
    page->table->setAccessibleName(page->moduleBox->title());
    localInit();
    reloadData();
    setPermissions();
    connect(page->table, &RecordTable::doubleClicked, this, &AbstractViewController::editAction);
}

void AbstractViewController::initLocalizables()
{
    page->addButton->setToolTip(qtTrId("Add"));
    page->delButton->setToolTip(qtTrId("Delete"));
    page->editButton->setToolTip(qtTrId("Edit"));
    panelParts->cancelButton->setText(qtTrId("Cancel"));
    panelParts->saveButton->setText(qtTrId("Save"));
}

void AbstractViewController::setPermissions()
{
    const SessionRights rights;
    const auto disableUnless = [&rights](QPushButton &button, QLatin1String code) {
        if (rights.holds(code))
            return;
        button.setEnabled(false);
        button.setToolTip(qtTrId("NoPermissionAlert"));
    };
    disableUnless(*page->addButton, m_module.add);
    disableUnless(*page->editButton, m_module.edit);
    disableUnless(*page->delButton, m_module.remove);
}

bool AbstractViewController::mayView()
{
    const bool isAllowed = SessionRights().holds(m_module.view);
    page->moduleBox->setVisible(isAllowed);
    page->hintLabel->setVisible(isAllowed);
    page->refusedView->setHidden(isAllowed);
    m_isRefusalDue = !isAllowed;
    if (isVisible())
        tellRefusal();
    return isAllowed;
}

// Of a page in a tab that nobody has opened there is nothing to tell yet.
void AbstractViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QMetaObject::invokeMethod(this, &AbstractViewController::tellRefusal, Qt::QueuedConnection);
}

void AbstractViewController::tellRefusal()
{
    if (std::exchange(m_isRefusalDue, false))
        MiscTool::showAlert(qtTrId("NoPermissionAlert"), qtTrId("NoPermissionInfo"));
}

void AbstractViewController::addAction()
{
    operation = Operation::AddRecord;
    setAllStatus(operation);
    showPanel(*page->addButton);
}

void AbstractViewController::editAction()
{
    if (selectedRow() < 0)
        return;
    operation = Operation::EditRecord;
    setAllStatus(operation);
    showPanel(*page->editButton);
}

// A double click shows a record to those as well who may not edit it: they look at it, and cannot
// save.
void AbstractViewController::showPanel(const QAbstractButton &starter)
{
    panelParts->saveButton->setEnabled(starter.isEnabled());
    panelParts->saveButton->setToolTip(starter.isEnabled() ? QString() : starter.toolTip());
    panel->setWindowTitle(page->moduleBox->title());
    panel->open();
}

void AbstractViewController::cancelAction()
{
    panel->reject();
}

void AbstractViewController::saveAction()
{
    if (!verify())
        return;
    const int newestBefore = newestID();
    if (!writeRecord()) {
        MiscTool::showAlert(qtTrId("SaveFail"), QString());
        return;
    }
    reloadData();
    panel->accept();
    focusTable();
    if (operation == Operation::AddRecord && newestID() > newestBefore)
        selectID(newestID()); // otherwise it would be lost from sight in a long list
}

void AbstractViewController::deleteAction()
{
    if (selectedRow() < 0 || !deleteVerify())
        return;
    auto *question = new QMessageBox(QMessageBox::Warning, page->moduleBox->title(),
                                     qtTrId("DelConfirm"), QMessageBox::NoButton, this);
    question->setObjectName(u"deleteQuestion"_s);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setInformativeText(qtTrId("DelInfo"));
    QPushButton *confirm = question->addButton(qtTrId("OK"), QMessageBox::AcceptRole);
    question->setEscapeButton(question->addButton(qtTrId("Cancel"), QMessageBox::RejectRole));
    question->setDefaultButton(confirm);
    // The sheet keeps the selection as it is until it is answered.
    connect(confirm, &QPushButton::clicked, this, [this] { deleteRecord(selectedRow()); });
    Mnemonics::keepUnique(question);
    question->open();
}

int AbstractViewController::selectedRow() const
{
    return page->table->selectedRow();
}

void AbstractViewController::selectRow(int row)
{
    page->table->selectRecord(row);
}

void AbstractViewController::reloadTable()
{
    m_model->reloadData();
    page->table->fitColumns();
}

QWidget *AbstractViewController::form() const
{
    return panelParts->form;
}

bool AbstractViewController::refuse(QWidget &field, const char *messageKey)
{
    field.setFocus();
    MiscTool::showAlert(qtTrId(messageKey), QString());
    return false;
}
