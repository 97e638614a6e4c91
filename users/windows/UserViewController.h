#pragma once

#include "RecordViewController.h"
#include "UserSchema.h"

namespace Ui
{
class UserForm;
}

/// The users, and in the sheet their group, name, password and memo. A user who was opened for
/// editing keeps the name: from then on the field takes no input, in later additions too.
class UserViewController : public RecordViewController<UserSchema>
{
    Q_OBJECT

public:
    explicit UserViewController(QWidget *parent = nullptr);
    ~UserViewController() override;

    QString objectValueForTableColumn(const QString &column, int row) override;

protected:
    void initLocalizables() override;
    void localInit() override; ///< Adds the groups to the pop-up.
    void setAllStatus(Operation status) override;
    UserSchema getSchema() override;
    bool verify() override;

private:
    void fillForAdding();
    void fillFrom(const UserSchema &user);
    void selectGroupFor(const UserSchema &user);

    std::unique_ptr<Ui::UserForm> ui;
    int m_unlistedGroup = 0; ///< The user's group while the pop-up shows none.
};
