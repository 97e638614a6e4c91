#include "UserGroupViewController.h"

#include "PermissionBoxes.h"
#include "ShownText.h"
#include "UserSchema.h"
#include "ui_AbstractViewController.h"
#include "ui_UserGroupForm.h"

#include <QCheckBox>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

// The columns' identifiers.
constexpr auto nameColumn = "Name"_L1;
constexpr auto memoColumn = "Memo"_L1;

constexpr int widestTabs = 900;

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
    RecordViewController::initLocalizables();
    page->hintLabel->setText(qtTrId("UserGroup.Hint"));
    page->moduleBox->setTitle(qtTrId("UserGroup"));
    m_model->setColumns({{nameColumn, qtTrId("Name")}, {memoColumn, qtTrId("Memo")}});
    ui->nameLabel->setText(qtTrId("Name"));
    ui->memoLabel->setText(qtTrId("Memo"));
    constexpr const char *modules[] = {QT_TRID_NOOP("UserGroup"), QT_TRID_NOOP("User"),
                                       QT_TRID_NOOP("Category"),  QT_TRID_NOOP("Provider"),
                                       QT_TRID_NOOP("Product"),   QT_TRID_NOOP("Inventory")};
    constexpr const char *rights[] = {QT_TRID_NOOP("View"), QT_TRID_NOOP("Add"),
                                      QT_TRID_NOOP("Edit"), QT_TRID_NOOP("Delete")};
    for (int tab = 0; tab < ui->tabView->count(); ++tab)
        ui->tabView->setTabText(tab, qtTrId(modules[tab]) + u' ' + qtTrId("Permission"));
    // All tabs in sight; in a large font or a long language they scroll.
    ui->tabView->setMinimumWidth(std::min(ui->tabView->tabBar()->sizeHint().width(), widestTabs));
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
    return {ui->userGroupViewCB, ui->userGroupAddCB, ui->userGroupEditCB, ui->userGroupDeleteCB,
            ui->userViewCB,      ui->userAddCB,      ui->userEditCB,      ui->userDeleteCB,
            ui->categoryViewCB,  ui->categoryAddCB,  ui->categoryEditCB,  ui->categoryDeleteCB,
            ui->providerViewCB,  ui->providerAddCB,  ui->providerEditCB,  ui->providerDeleteCB,
            ui->productViewCB,   ui->productAddCB,   ui->productEditCB,   ui->productDeleteCB,
            ui->inventoryViewCB, ui->inventoryAddCB, ui->inventoryEditCB, ui->inventoryDeleteCB};
}

void UserGroupViewController::loadRecords()
{
    RecordViewController::loadRecords();
    if (data.isEmpty())
        makeDefaultGroup();
}

void UserGroupViewController::makeDefaultGroup()
{
    UserGroupSchema group;
    group.Name = MiscTool::encode2UTF8(qtTrId("DefaultUserGroup"));
    group.Memo = MiscTool::encode2UTF8(qtTrId("DefaultUserGroupMemo"));
    group.Permission = PermissionBoxes::allCodes(m_permissionCBs);
    if (blGeneral->insert(group))
        data.append(group); // without the key that the table gave it, until the next loading
}

UserGroupSchema UserGroupViewController::getSchema()
{
    UserGroupSchema group;
    group.Name = MiscTool::encode2UTF8(ui->nameField->text());
    group.Memo = MiscTool::encode2UTF8(ui->memoField->text());
    group.Permission = PermissionBoxes::checkedCodes(m_permissionCBs);
    return group;
}

bool UserGroupViewController::verify()
{
    const QString name = ui->nameField->text();
    if (name.isEmpty())
        return refuse(*ui->nameField, "UserGroupNullAlert");
    if (name.size() > ShownText::maximumLength)
        return refuse(*ui->nameField, "UserGroupOverLenAlert");
    if (operation == Operation::AddRecord
        && isTaken(u"Name='"_s + MiscTool::encode2UTF8(name) + u'\''))
        return refuse(*ui->nameField, "UserGroupExistAlert");
    return true;
}

void UserGroupViewController::setAllStatus(Operation status)
{
    if (status == Operation::AddRecord) {
        ui->nameField->clear();
        ui->nameField->setFocus();
        ui->memoField->clear();
        PermissionBoxes::uncheckAll(m_permissionCBs);
    } else if (status != Operation::None) {
        const UserGroupSchema group = data.value(selectedRow());
        ui->nameField->setText(ShownText::of(group.Name));
        ui->nameField->setFocus();
        ui->memoField->setText(ShownText::of(group.Memo));
        PermissionBoxes::checkHeld(m_permissionCBs, group.Permission);
    }
}

bool UserGroupViewController::deleteVerify()
{
    if (selectedRow() < 0)
        return true;
    BLGeneral users(u"User"_s);
    const QString ofGroup = u"UserGroupID="_s + QString::number(data[selectedRow()].ID);
    const auto found = users.select(ofGroup, UserSchema{});
    if (!found || found->isEmpty())
        return true;
    MiscTool::showAlert(qtTrId("UserGroupHasUsersAlert"), qtTrId("UserGroupHasUsersInfo"));
    return false;
}

QString UserGroupViewController::objectValueForTableColumn(const QString &column, int row)
{
    if (column == nameColumn)
        return ShownText::of(data[row].Name);
    if (column == memoColumn)
        return ShownText::of(data[row].Memo);
    return {};
}
