#include "AbstractViewController.h"

#include "Global.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "ui_AbstractViewController.h"
#include "ui_RecordPanel.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

AbstractViewController::AbstractViewController(const Module &module, QWidget *parent)
    : QWidget(parent), m_module(module), page(std::make_unique<Ui::AbstractViewController>()),
      panel(new QDialog(this)), panelParts(std::make_unique<Ui::RecordPanel>())
{
    page->setupUi(this);
    table = page->table;
    panelParts->setupUi(panel);
    Mnemonics::keepUnique(panel);
    using Page = AbstractViewController;
    connect(page->addButton, &QPushButton::clicked, this, &Page::addAction);
    connect(page->editButton, &QPushButton::clicked, this, &Page::editAction);
    connect(page->delButton, &QPushButton::clicked, this, &Page::deleteAction);
    connect(table, &RecordTable::returnPressed, page->editButton, &QPushButton::click);
    connect(table, &RecordTable::deletePressed, page->delButton, &QPushButton::click);
    connect(panelParts->saveButton, &QPushButton::clicked, this, &Page::saveAction);
    connect(panelParts->cancelButton, &QPushButton::clicked, this, &Page::cancelAction);
}

AbstractViewController::~AbstractViewController() = default;

void AbstractViewController::focusTable()
{
    table->setFocus();
}

void AbstractViewController::awakeFromNib()
{
    initLocalizables();
    localInit();
    reloadData();
    setPermissions();
    connect(table, &RecordTable::doubleClicked, this, &AbstractViewController::editAction);
}

void AbstractViewController::setTitle(const QString &title, const QString &hint)
{
    page->moduleBox->setTitle(title);
    table->setAccessibleName(title);
    page->hintLabel->setText(hint);
}

void AbstractViewController::setColumns(const QList<RecordTable::Column> &columns)
{
    table->setRecords(*this, columns, u"Records/"_s + m_module.table);
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
        showRefusal();
    return isAllowed;
}

// A refused page in a tab that has not been opened yet shows no message box.
void AbstractViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QMetaObject::invokeMethod(this, &AbstractViewController::showRefusal, Qt::QueuedConnection);
}

void AbstractViewController::showRefusal()
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
    if (table->selectedRecord() < 0)
        return;
    operation = Operation::EditRecord;
    setAllStatus(operation);
    showPanel(*page->editButton);
}

// A double click opens the record even for users who may not edit it: they can look at it but not
// save it.
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
        selectID(newestID()); // in a long list it would be out of sight
}

void AbstractViewController::deleteAction()
{
    if (table->selectedRecord() < 0 || !deleteVerify())
        return;
    auto *question = new QMessageBox(QMessageBox::Warning, page->moduleBox->title(),
                                     qtTrId("DelConfirm"), QMessageBox::NoButton, this);
    question->setObjectName(u"deleteQuestion"_s);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setInformativeText(qtTrId("DelInfo"));
    QPushButton *confirm = question->addButton(qtTrId("OK"), QMessageBox::AcceptRole);
    question->setEscapeButton(question->addButton(qtTrId("Cancel"), QMessageBox::RejectRole));
    question->setDefaultButton(confirm);
    // The question blocks the window, so the selection stays until it is answered.
    connect(confirm, &QPushButton::clicked, this,
            [this] { deleteRecord(table->selectedRecord()); });
    Mnemonics::keepUnique(question);
    question->open();
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

QString AbstractViewController::shownText(const QString &stored)
{
    return MiscTool::decodeFromUTF8(stored).value_or(QString());
}
