#include "AbstractViewController.h"

#include "BusyBudget.h"
#include "Global.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "ui_AbstractViewController.h"
#include "ui_RecordPanel.h"

#include <QAccessible>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto deleteQuestionName = "deleteQuestion"_L1;

/// A question with two buttons, not yet shown: what "confirm" says, and Cancel.
struct Question {
    QMessageBox *box; ///< Deleted once it is answered.
    QPushButton *confirm;
    QPushButton *cancel;

    Question(QWidget *sheetOf, const QString &name, const QString &text, const QString &details,
             const QString &confirmText)
        : box(new QMessageBox(QMessageBox::Warning, sheetOf->windowTitle(), text,
                              QMessageBox::NoButton, sheetOf)),
          confirm(box->addButton(confirmText, QMessageBox::AcceptRole)),
          cancel(box->addButton(qtTrId("Cancel"), QMessageBox::RejectRole))
    {
        box->setObjectName(name);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setInformativeText(details);
        box->setEscapeButton(cancel);
        Mnemonics::keepUnique(box);
    }
};

} // namespace

AbstractViewController::AbstractViewController(const Module &module, QWidget *parent)
    : QWidget(parent), m_module(module), page(std::make_unique<Ui::AbstractViewController>()),
      panel(new QDialog(this)), panelParts(std::make_unique<Ui::RecordPanel>())
{
    page->setupUi(this);
    table = page->table;
    panelParts->setupUi(panel);
    QSizePolicy keepsItsRoom = page->troubleLabel->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    page->troubleLabel->setSizePolicy(keepsItsRoom);
    page->troubleLabel->setForegroundRole(QPalette::BrightText);
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
    const BusyBudget budget;
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
    m_arePermissionsDue = !rights.areKnown();
    const auto enableIfHeld = [&rights](QPushButton &button, QLatin1String code) {
        button.setEnabled(rights.holds(code));
        if (rights.areKnown() && !button.isEnabled())
            button.setToolTip(qtTrId("NoPermissionAlert"));
    };
    enableIfHeld(*page->addButton, m_module.add);
    enableIfHeld(*page->editButton, m_module.edit);
    enableIfHeld(*page->delButton, m_module.remove);
}

void AbstractViewController::refresh()
{
    if (page->moduleBox->isHidden() || !m_isStorable || hasOpenSheet())
        return;
    const BusyBudget budget;
    reloadData();
    if (hasRowWithoutKey())
        reloadData(); // now it has the key that the table gave it
}

// The three buttons have a widget of their own: disabled with it, each of them keeps its own state.
void AbstractViewController::setStorable(bool isStorable)
{
    m_isStorable = isStorable;
    table->setEmptyText(isStorable ? qtTrId("Records.Empty") : QString());
    page->buttons->setEnabled(isStorable);
    panelParts->saveButton->setEnabled(isStorable && m_isSaveAllowed);
    if (auto *question = findChild<QMessageBox *>(deleteQuestionName))
        question->defaultButton()->setEnabled(isStorable);
}

bool AbstractViewController::hasOpenSheet() const
{
    return std::ranges::any_of(findChildren<QDialog *>(), &QWidget::isVisible);
}

bool AbstractViewController::mayView()
{
    const SessionRights rights;
    showReadable(rights.areKnown());
    if (!rights.areKnown())
        return false;
    if (m_arePermissionsDue)
        setPermissions();
    const bool isAllowed = rights.holds(m_module.view);
    page->moduleBox->setVisible(isAllowed);
    page->hintLabel->setVisible(isAllowed);
    page->refusedView->setHidden(isAllowed);
    m_isRefusalDue = !isAllowed;
    if (isVisible())
        showRefusal();
    return isAllowed;
}

void AbstractViewController::showReadable(bool isReadable)
{
    page->troubleLabel->setText(BusyBudget::isUsedUp() ? qtTrId("Records.Busy")
                                                       : qtTrId("Records.Unreadable"));
    page->troubleLabel->setHidden(isReadable);
    if (!isReadable) {
        QAccessibleEvent alert(page->troubleLabel, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    table->setEmptyText(isReadable ? qtTrId("Records.Empty") : QString());
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
    const BusyBudget budget;
    operation = Operation::AddRecord;
    setAllStatus(operation);
    showPanel(*page->addButton);
}

void AbstractViewController::editAction()
{
    if (table->selectedRecord() < 0)
        return;
    const BusyBudget budget;
    operation = Operation::EditRecord;
    setAllStatus(operation);
    showPanel(*page->editButton);
}

// A double click opens the record even for users who may not edit it: they can look at it but not
// save it.
void AbstractViewController::showPanel(const QAbstractButton &starter)
{
    m_isSaveAllowed = starter.isEnabledTo(page->buttons);
    panelParts->saveButton->setEnabled(m_isStorable && m_isSaveAllowed);
    panelParts->saveButton->setToolTip(m_isSaveAllowed ? QString() : starter.toolTip());
    panel->setWindowTitle(page->moduleBox->title());
    panel->open();
}

void AbstractViewController::cancelAction()
{
    panel->reject();
}

void AbstractViewController::saveAction()
{
    const BusyBudget budget;
    if (!verify())
        return;
    const Stored stored = operation == Operation::EditRecord ? storedRecord() : Stored::Same;
    if (stored == Stored::Changed || stored == Stored::Deleted)
        askToSaveAnyway(stored == Stored::Deleted);
    else if (stored == Stored::Unreadable)
        MiscTool::showAlert(qtTrId("SaveFail"), QString());
    else
        save();
}

void AbstractViewController::askToSaveAnyway(bool isDeleted)
{
    const Question question(panel, u"saveQuestion"_s,
                            isDeleted ? qtTrId("Records.Deleted") : qtTrId("Records.Changed"),
                            qtTrId("Records.SaveAnyway.Info"), qtTrId("Records.SaveAnyway"));
    question.box->setDefaultButton(question.cancel);
    connect(question.confirm, &QPushButton::clicked, this, [this, isDeleted] {
        if (!isDeleted)
            return save();
        operation = Operation::AddRecord; // an update would find no row
        saveAction();
    });
    question.box->open();
}

void AbstractViewController::save()
{
    const BusyBudget budget;
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
    const BusyBudget budget;
    if (table->selectedRecord() < 0 || !deleteVerify())
        return;
    const Question question(this, deleteQuestionName, qtTrId("DelConfirm"), qtTrId("DelInfo"),
                            qtTrId("OK"));
    question.box->setWindowTitle(page->moduleBox->title());
    question.box->setDefaultButton(question.confirm);
    // The question blocks the window, so the selection stays until it is answered.
    connect(question.confirm, &QPushButton::clicked, this,
            [this] { deleteRecord(table->selectedRecord()); });
    question.box->open();
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

QString AbstractViewController::storedText(const QString &typed)
{
    return MiscTool::encode2UTF8(typed).replace(u'\'', "%27"_L1);
}

QString AbstractViewController::shownText(const QString &stored)
{
    return MiscTool::decodeFromUTF8(stored).value_or(QString());
}
