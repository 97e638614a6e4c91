#include "UserViewController.h"

#include "UserGroupSchema.h"
#include "ui_AbstractViewController.h"
#include "ui_UserForm.h"

#include <QHash>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

// The columns' identifiers.
constexpr auto userColumn = "User"_L1;
constexpr auto memoColumn = "Memo"_L1;

/// Marks the item "All rights", which may have the same title as a group.
constexpr int allRightsRole = Qt::UserRole + 1;
constexpr int maxNameWidth = 260; // in the lines about the groups

} // namespace

UserViewController::UserViewController(QWidget *parent)
    : RecordViewController(
        {.table = "User"_L1, .view = "B"_L1, .add = "B2"_L1, .edit = "B3"_L1, .remove = "B4"_L1},
        parent),
      ui(std::make_unique<Ui::UserForm>())
{
    setObjectName(u"UserViewController"_s);
    ui->setupUi(form());
    connect(ui->userGroupPopUp, &QComboBox::currentIndexChanged, this,
            &UserViewController::showGroups);
    awakeFromNib();
}

UserViewController::~UserViewController() = default;

void UserViewController::initLocalizables()
{
    setTitle(qtTrId("User"), qtTrId("User.Hint"));
    setColumns({{userColumn, qtTrId("User")}, {memoColumn, qtTrId("Memo")}});
    localInit();
}

// A title that the pop-up already has moves to the end; items of groups that no longer exist stay.
// This works on a list first: finding each title in the pop-up takes a time that grows with the
// square of the number of groups.
void UserViewController::localInit()
{
    QComboBox &popUp = *ui->userGroupPopUp;
    removeAllRightsItem();
    QList<std::pair<QString, int>> items;
    for (int i = 0; i < popUp.count(); ++i)
        items.append({popUp.itemText(i), popUp.itemData(i).toInt()});
    const auto groups = BLGeneral(u"UserGroup"_s).select("1=1", UserGroupSchema{});
    m_areGroupsRead = groups.has_value();
    for (const UserGroupSchema &group : groups.value_or(QList<UserGroupSchema>()))
        items.append({shownText(group.Name), group.ID});

    QHash<QString, qsizetype> lastPosition;
    for (qsizetype i = 0; i < items.size(); ++i)
        lastPosition[items[i].first] = i;
    popUp.clear();
    for (qsizetype i = 0; i < items.size(); ++i) {
        const auto &[title, ID] = items[i];
        if (lastPosition[title] == i)
            popUp.addItem(title, ID);
    }
    popUp.setCurrentIndex(std::min(popUp.count() - 1, 0));
}

UserSchema UserViewController::getSchema()
{
    UserSchema user;
    user.UserGroupID = chosenGroup();
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
    if (operation == Operation::AddRecord && !m_areGroupsRead) {
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
    m_presentGroup.reset();
    localInit();
    m_unlistedGroup = 0;
    ui->userGroupPopUp->setCurrentIndex(ui->userGroupPopUp->count() > 0 ? 0 : -1);
    showGroups();
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
    ui->userField->setText(shownText(user.User));
    ui->passwordField->setText(shownText(user.Password));
    ui->rePasswordField->setText(shownText(user.Password));
    ui->memoField->setText(shownText(user.Memo));
}

// The item is looked up by the user's own key, not by that of the group. If no item has it, saving
// must not change the user's group: its item is selected, or none if it has no item.
void UserViewController::selectGroupFor(const UserSchema &user)
{
    QComboBox &popUp = *ui->userGroupPopUp;
    m_presentGroup.reset();
    removeAllRightsItem();
    if (user.UserGroupID == 0) {
        popUp.addItem(qtTrId("User.Group.All"), 0);
        popUp.setItemData(popUp.count() - 1, true, allRightsRole);
    }
    m_unlistedGroup = user.UserGroupID;
    const int byUser = popUp.findData(user.ID);
    popUp.setCurrentIndex(byUser >= 0 ? byUser : popUp.findData(user.UserGroupID));
    m_presentGroup = user.UserGroupID;
    m_presentGroupName = groupName(user.UserGroupID);
    showGroups();
}

void UserViewController::removeAllRightsItem()
{
    const int item = ui->userGroupPopUp->findData(true, allRightsRole);
    if (item >= 0)
        ui->userGroupPopUp->removeItem(item);
}

int UserViewController::chosenGroup() const
{
    const bool isGroupShown = ui->userGroupPopUp->currentIndex() >= 0;
    return isGroupShown ? ui->userGroupPopUp->currentData().toInt() : m_unlistedGroup;
}

QString UserViewController::groupName(int ID) const
{
    if (ID == 0)
        return qtTrId("User.Group.All");
    const auto found =
        BLGeneral(u"UserGroup"_s).select(u"ID="_s + QString::number(ID), UserGroupSchema{});
    if (!found)
        return QString::number(ID);
    return found->isEmpty() ? qtTrId("User.Group.Gone") : shownText(found->last().Name);
}

// Editing a password is no reason to look at the group, which the form may change all the same.
void UserViewController::showGroups()
{
    const int chosen = chosenGroup();
    const bool isMove = m_presentGroup && *m_presentGroup != chosen;
    QString next = isMove ? ui->userGroupPopUp->currentText() : m_presentGroupName;
    QString present = m_presentGroupName;
    if (isMove && next == present) {
        present += u" (%1)"_s.arg(*m_presentGroup);
        next += u" (%1)"_s.arg(chosen);
    }
    QLabel &lines = *ui->groupsLabel;
    QFont font; // the rest is inherited
    font.setBold(isMove);
    lines.setFont(font);
    lines.setForegroundRole(isMove ? QPalette::BrightText : QPalette::WindowText);
    const auto line = [&lines](const QString &text, const QString &name) {
        return text.arg(QFontMetrics(lines.font()).elidedText(name, Qt::ElideMiddle, maxNameWidth));
    };
    lines.setText(m_presentGroup ? line(qtTrId("User.Group.Present"), present) + u'\n'
                          + line(qtTrId("User.Group.Saved"), next)
                                 : QString(u'\n'));
    ui->userGroupPopUp->setAccessibleDescription(lines.text().simplified());
}

QString UserViewController::objectValueForTableColumn(const QString &column, int row)
{
    if (column == userColumn)
        return shownText(data[row].User);
    if (column == memoColumn)
        return shownText(data[row].Memo);
    return {};
}
