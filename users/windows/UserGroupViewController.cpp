#include "UserGroupViewController.h"

#include "MiscTool.h"
#include "UserSchema.h"
#include "ui_AbstractViewController.h"
#include "ui_UserGroupForm.h"

#include <QCheckBox>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

// The columns' identifiers.
constexpr auto nameColumn = "Name"_L1;
constexpr auto memoColumn = "Memo"_L1;

constexpr int maxTabsWidth = 900;

/// The code of the right that a check box is for.
QString codeOf(const QCheckBox *box)
{
    return box->property("identifier").toString();
}

} // namespace

UserGroupViewController::UserGroupViewController(QWidget *parent)
    : RecordViewController({.table = "UserGroup"_L1,
                            .view = "A"_L1,
                            .add = "A2"_L1,
                            .edit = "A3"_L1,
                            .remove = "A4"_L1},
                           parent),
      ui(std::make_unique<Ui::UserGroupForm>())
{
    setObjectName(u"UserGroupViewController"_s);
    ui->setupUi(form());
    awakeFromNib();
}

UserGroupViewController::~UserGroupViewController() = default;

void UserGroupViewController::initLocalizables()
{
    setTitle(qtTrId("UserGroup"), qtTrId("UserGroup.Hint"));
    setColumns({{nameColumn, qtTrId("Name")}, {memoColumn, qtTrId("Memo")}});
    constexpr const char *modules[] = {QT_TRID_NOOP("UserGroup"), QT_TRID_NOOP("User"),
                                       QT_TRID_NOOP("Category"),  QT_TRID_NOOP("Provider"),
                                       QT_TRID_NOOP("Product"),   QT_TRID_NOOP("Inventory")};
    constexpr const char *rights[] = {QT_TRID_NOOP("View"), QT_TRID_NOOP("Add"),
                                      QT_TRID_NOOP("Edit"), QT_TRID_NOOP("Delete")};
    for (int tab = 0; tab < ui->tabView->count(); ++tab)
        ui->tabView->setTabText(tab, qtTrId(modules[tab]) + u' ' + qtTrId("Permission"));
    // All tabs are in sight, unless a large font or a long language makes them scroll.
    ui->tabView->setMinimumWidth(std::min(ui->tabView->tabBar()->sizeHint().width(), maxTabsWidth));
    // The buttons that scroll are for the mouse: arrow keys reach every tab.
    for (QToolButton *scroller : ui->tabView->tabBar()->findChildren<QToolButton *>())
        scroller->setFocusPolicy(Qt::NoFocus);
    for (int i = 0; QCheckBox * box : boxes())
        box->setText(qtTrId(rights[i++ % 4]));
}

void UserGroupViewController::setPermissions()
{
    m_permissionCBs = boxes();
    RecordViewController::setPermissions();
}

QList<QCheckBox *> UserGroupViewController::boxes() const
{
    QList<QCheckBox *> boxes = ui->tabView->findChildren<QCheckBox *>();
    std::ranges::sort(boxes, {}, codeOf);
    return boxes;
}

bool UserGroupViewController::loadRecords()
{
    if (!RecordViewController::loadRecords())
        return false;
    if (data.isEmpty())
        insertDefaultGroup();
    m_isFirstLoading = false;
    return true;
}

void UserGroupViewController::insertDefaultGroup()
{
    UserGroupSchema group;
    group.Name = storedText(qtTrId("DefaultUserGroup"));
    group.Memo = storedText(qtTrId("DefaultUserGroupMemo"));
    group.Permission = u""_s;
    for (const QCheckBox *box : std::as_const(m_permissionCBs))
        group.Permission += m_isFirstLoading ? QString() : codeOf(box);
    if (blGeneral->insert(group))
        data.append(group); // its key stays 0 until the next loading
}

UserGroupSchema UserGroupViewController::getSchema()
{
    UserGroupSchema group;
    group.Name = storedText(ui->nameField->text());
    group.Memo = storedText(ui->memoField->text());
    group.Permission = u""_s;
    for (const QCheckBox *box : std::as_const(m_permissionCBs))
        group.Permission += box->isChecked() ? codeOf(box) : QString();
    return group;
}

bool UserGroupViewController::verify()
{
    const QString name = ui->nameField->text();
    if (name.isEmpty())
        return refuse(*ui->nameField, "UserGroupNullAlert");
    if (name.size() > maxTextLength)
        return refuse(*ui->nameField, "UserGroupOverLenAlert");
    const std::optional<bool> taken =
        operation == Operation::AddRecord ? isTaken(nameColumn, name) : false;
    if (!taken)
        return refuse(*ui->nameField, "SaveFail");
    if (*taken)
        return refuse(*ui->nameField, "UserGroupExistAlert");
    return true;
}

void UserGroupViewController::setAllStatus(Operation status)
{
    if (status == Operation::AddRecord) {
        ui->nameField->clear();
        ui->nameField->setFocus();
        ui->memoField->clear();
        for (QCheckBox *box : std::as_const(m_permissionCBs))
            box->setChecked(false);
    } else if (status != Operation::None) {
        const UserGroupSchema group = data.value(table->selectedRecord());
        ui->nameField->setText(shownText(group.Name));
        ui->nameField->setFocus();
        ui->memoField->setText(shownText(group.Memo));
        // Boxes without a code in it stay as they are, even if they were checked for another group.
        for (QCheckBox *box : std::as_const(m_permissionCBs)) {
            if (group.Permission.contains(codeOf(box)))
                box->setChecked(true);
        }
    }
}

bool UserGroupViewController::deleteVerify()
{
    if (table->selectedRecord() < 0)
        return true;
    BLGeneral users(u"User"_s);
    const QString ofGroup = u"UserGroupID="_s + QString::number(data[table->selectedRecord()].ID);
    const auto found = users.select(ofGroup, UserSchema{});
    showReadable(found.has_value());
    if (!found)
        return false;
    if (found->isEmpty())
        return true;
    MiscTool::showAlert(qtTrId("UserGroupHasUsersAlert"), qtTrId("UserGroupHasUsersInfo"));
    return false;
}

QString UserGroupViewController::objectValueForTableColumn(const QString &column, int row)
{
    if (column == nameColumn)
        return shownText(data[row].Name);
    if (column == memoColumn)
        return shownText(data[row].Memo);
    return {};
}
