#include "UserViewController.h"

#include "GroupPopUp.h"
#include "ShownText.h"
#include "UserGroupSchema.h"
#include "ui_AbstractViewController.h"
#include "ui_UserForm.h"

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
    awakeFromNib();
}

UserViewController::~UserViewController() = default;

void UserViewController::initLocalizables()
{
    RecordViewController::initLocalizables();
    page->hintLabel->setText(qtTrId("User.Hint"));
    page->moduleBox->setTitle(qtTrId("User"));
    m_model->setColumns({{userColumn, qtTrId("User")}, {memoColumn, qtTrId("Memo")}});
    ui->userGroupLabel->setText(qtTrId("UserGroup"));
    ui->userLabel->setText(qtTrId("User"));
    ui->passwordLabel->setText(qtTrId("Password"));
    ui->rePasswordLabel->setText(qtTrId("RePassword"));
    ui->memoLabel->setText(qtTrId("Memo"));
    localInit();
}

void UserViewController::localInit()
{
    BLGeneral groups(u"UserGroup"_s);
    const auto all = groups.select("1=1", UserGroupSchema{});
    ui->userGroupPopUp->addGroups(all.value_or(QList<UserGroupSchema>()));
}

UserSchema UserViewController::getSchema()
{
    const bool isGroupShown = ui->userGroupPopUp->currentIndex() >= 0;
    UserSchema user;
    user.UserGroupID = isGroupShown ? ui->userGroupPopUp->selectedTag() : m_unlistedGroup;
    user.User = MiscTool::encode2UTF8(ui->userField->text());
    user.Password = MiscTool::encode2UTF8(ui->passwordField->text());
    user.Memo = MiscTool::encode2UTF8(ui->memoField->text());
    return user;
}

// It is the label beside the password that is measured, so an empty password passes; such a user
// cannot log in.
bool UserViewController::verify()
{
    const QString name = ui->userField->text();
    const QString passwordLabel = ui->passwordLabel->text();
    if (name.isEmpty())
        return refuse(*ui->userField, "UserNullAlert");
    if (name.size() > ShownText::maximumLength)
        return refuse(*ui->userField, "UserOverLenAlert");
    if (passwordLabel.isEmpty())
        return refuse(*ui->passwordField, "PasswordNullAlert");
    if (passwordLabel.size() > ShownText::maximumLength)
        return refuse(*ui->passwordField, "PasswordOverLenAlert");
    if (ui->passwordField->text() != ui->rePasswordField->text())
        return refuse(*ui->rePasswordField, "PasswordNotSameAlert");
    if (operation == Operation::AddRecord
        && isTaken(u"User='"_s + MiscTool::encode2UTF8(name) + u'\''))
        return refuse(*ui->userField, "UserExistAlert");
    return true;
}

void UserViewController::setAllStatus(Operation status)
{
    if (status == Operation::AddRecord)
        fillForAdding();
    else if (status != Operation::None)
        fillFrom(data.value(selectedRow()));
}

void UserViewController::fillForAdding()
{
    localInit();
    m_unlistedGroup = 0;
    ui->userGroupPopUp->setCurrentIndex(ui->userGroupPopUp->count() > 0 ? 0 : -1);
    ui->userField->clear();
    ui->userField->setFocus();
    ui->passwordField->clear();
    ui->rePasswordField->clear();
    ui->memoField->clear();
}

void UserViewController::fillFrom(const UserSchema &user)
{
    selectGroupFor(user);
    ui->userGroupPopUp->setFocus(); // the first control that takes input
    ui->userField->setReadOnly(true);
    ui->userField->setText(ShownText::of(user.User));
    ui->passwordField->setText(ShownText::of(user.Password));
    ui->rePasswordField->setText(ShownText::of(user.Password));
    ui->memoField->setText(ShownText::of(user.Memo));
}

// The item is looked up by the user's own key, not by that of the group. Where no item has it, the
// user's group must survive the saving: its item is chosen, or none where it has none.
void UserViewController::selectGroupFor(const UserSchema &user)
{
    m_unlistedGroup = user.UserGroupID;
    const int byUser = ui->userGroupPopUp->indexOfItemWithTag(user.ID);
    ui->userGroupPopUp->setCurrentIndex(
        byUser >= 0 ? byUser : ui->userGroupPopUp->indexOfItemWithTag(user.UserGroupID));
}

QString UserViewController::objectValueForTableColumn(const QString &column, int row)
{
    if (column == userColumn)
        return ShownText::of(data[row].User);
    if (column == memoColumn)
        return ShownText::of(data[row].Memo);
    return {};
}
