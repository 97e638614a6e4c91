#pragma once

#include "RecordViewController.h"
#include "UserSchema.h"

namespace Ui
{
class UserForm;
}

class GroupChoice;

/// The page of the users; the sheet holds their group, name, password and memo. Once a user has
/// been opened for editing, the name field is read-only, even when users are added later.
class UserViewController : public RecordViewController<UserSchema>
{
    Q_OBJECT

public:
    explicit UserViewController(QWidget *parent = nullptr);
    ~UserViewController() override;

    QString objectValueForTableColumn(const QString &column, int row) override;

protected:
    void initLocalizables() override;
    void localInit() override;
    void setAllStatus(Operation status) override;
    UserSchema getSchema() override;
    bool verify() override;

private:
    void fillForAdding();
    void fillFrom(const UserSchema &user);

    std::unique_ptr<Ui::UserForm> ui;
    GroupChoice *m_groups; ///< Owned by this.
};
