#pragma once

#include "RecordViewController.h"
#include "UserSchema.h"

namespace Ui
{
class UserForm;
}

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
    /// Adds the groups to the pop-up: an item for each, with the group's name and its `ID` as data.
    /// Of two groups with the same name only the later one has an item.
    void localInit() override;
    void setAllStatus(Operation status) override;
    UserSchema getSchema() override;
    bool verify() override;

private:
    void fillForAdding();
    void fillFrom(const UserSchema &user);
    void selectGroupFor(const UserSchema &user);

    std::unique_ptr<Ui::UserForm> ui;
    int m_unlistedGroup = 0; ///< The user's group if the pop-up shows none.
};
