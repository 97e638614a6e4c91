#pragma once

#include "RecordViewController.h"
#include "UserGroupSchema.h"

namespace Ui
{
class UserGroupForm;
}

class QCheckBox;

/// The user groups, and in the sheet what each of them may do. Makes a first group where there is
/// none, and keeps a group that still has users.
class UserGroupViewController : public RecordViewController<UserGroupSchema>
{
    Q_OBJECT

public:
    explicit UserGroupViewController(QWidget *parent = nullptr);
    ~UserGroupViewController() override;

    QString objectValueForTableColumn(const QString &column, int row) override;

protected:
    void initLocalizables() override;
    void setPermissions() override;
    void setAllStatus(Operation status) override;
    UserGroupSchema getSchema() override;
    bool verify() override;
    bool deleteVerify() override;
    void loadRecords() override;

private:
    QList<QCheckBox *> boxes() const;
    void makeDefaultGroup();

    std::unique_ptr<Ui::UserGroupForm> ui;
    /// The 24 boxes in the order in which their codes are stored. Filled after the first loading,
    /// so that the default group which that makes holds no right.
    QList<QCheckBox *> m_permissionCBs;
};
