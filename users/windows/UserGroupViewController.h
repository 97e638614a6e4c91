#pragma once

#include "RecordViewController.h"
#include "UserGroupSchema.h"

namespace Ui
{
class UserGroupForm;
}

class QCheckBox;

/// The page of the user groups; the sheet holds their rights too. Creates a first group if there is
/// none, and refuses to delete a group that still has users.
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
    bool loadRecords() override;

private:
    QList<QCheckBox *> boxes() const; ///< In the order of their codes.
    void insertDefaultGroup();

    std::unique_ptr<Ui::UserGroupForm> ui;
    /// All boxes in the order in which their codes are stored. Filled after the first loading.
    QList<QCheckBox *> m_permissionCBs;
    /// A default group that is created by the first loading that succeeds has no rights.
    bool m_isFirstLoading = true;
};
