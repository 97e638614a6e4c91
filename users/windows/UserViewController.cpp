#include "UserViewController.h"

#include "GroupChoice.h"
#include "ui_AbstractViewController.h"
#include "ui_UserForm.h"

#include <QDialog>

#include <optional>

using namespace Qt::StringLiterals;

namespace
{

// The columns' identifiers.
constexpr auto userColumn = "User"_L1;
constexpr auto memoColumn = "Memo"_L1;

} // namespace

UserViewController::UserViewController(QWidget *parent)
    : RecordViewController(
        {.table = "User"_L1, .view = "B"_L1, .add = "B2"_L1, .edit = "B3"_L1, .remove = "B4"_L1},
        parent),
      ui(std::make_unique<Ui::UserForm>())
{
    setObjectName(u"UserViewController"_s);
    ui->setupUi(form());
    m_groups = new GroupChoice(*ui->userGroupPopUp, *ui->groupsLabel, this);
    connect(panel, &QDialog::finished, m_groups, &GroupChoice::stop);
    awakeFromNib();
}

UserViewController::~UserViewController() = default;

void UserViewController::initLocalizables()
{
    setTitle(qtTrId("User"), qtTrId("User.Hint"));
    setColumns({{userColumn, qtTrId("User")}, {memoColumn, qtTrId("Memo")}});
    localInit();
}

void UserViewController::localInit()
{
    m_groups->load();
}

UserSchema UserViewController::getSchema()
{
    UserSchema user;
    user.UserGroupID = m_groups->chosen();
    user.User = storedText(ui->userField->text());
    user.Password = storedText(ui->passwordField->text());
    user.Memo = storedText(ui->memoField->text());
    return user;
}

// The label beside the password is measured, not the password, so an empty password passes. Such a
// user cannot log in.
bool UserViewController::verify()
{
    const QString name = ui->userField->text();
    const QString passwordLabel = ui->passwordLabel->text();
    if (name.isEmpty())
        return refuse(*ui->userField, "UserNullAlert");
    if (name.size() > maxTextLength)
        return refuse(*ui->userField, "UserOverLenAlert");
    if (passwordLabel.isEmpty())
        return refuse(*ui->passwordField, "PasswordNullAlert");
    if (passwordLabel.size() > maxTextLength)
        return refuse(*ui->passwordField, "PasswordOverLenAlert");
    if (ui->passwordField->text() != ui->rePasswordField->text())
        return refuse(*ui->rePasswordField, "PasswordNotSameAlert");
    // A new user without an item for the group would get all rights.
    if (operation == Operation::AddRecord && !m_groups->isLoaded()) {
        localInit();
        return refuse(*ui->userGroupPopUp, "SaveFail");
    }
    const std::optional<bool> taken =
        operation == Operation::AddRecord ? isTaken(userColumn, name) : false;
    if (!taken)
        return refuse(*ui->userField, "SaveFail");
    if (*taken)
        return refuse(*ui->userField, "UserExistAlert");
    return true;
}

void UserViewController::setAllStatus(Operation status)
{
    if (status == Operation::AddRecord)
        fillForAdding();
    else if (status != Operation::None)
        fillFrom(data.value(table->selectedRecord()));
}

void UserViewController::fillForAdding()
{
    m_groups->startNew();
    ui->userField->clear();
    ui->userField->setFocus();
    ui->passwordField->clear();
    ui->rePasswordField->clear();
    ui->memoField->clear();
}

void UserViewController::fillFrom(const UserSchema &user)
{
    m_groups->startEditing(user);
    ui->userGroupPopUp->setFocus(); // the first control that takes input
    ui->userField->setReadOnly(true);
    ui->userField->setText(shownText(user.User));
    ui->passwordField->setText(shownText(user.Password));
    ui->rePasswordField->setText(shownText(user.Password));
    ui->memoField->setText(shownText(user.Memo));
}

QString UserViewController::objectValueForTableColumn(const QString &column, int row)
{
    if (column == userColumn)
        return shownText(data[row].User);
    if (column == memoColumn)
        return shownText(data[row].Memo);
    return {};
}
