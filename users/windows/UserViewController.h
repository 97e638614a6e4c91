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
    /// Of two groups with the same name only the later one has an item. While a user of group 0 is
    /// edited, a last item with 0 as its data stands for all rights.
    void localInit() override;
    void setAllStatus(Operation status) override;
    UserSchema getSchema() override;
    bool verify() override;

private:
    void fillForAdding();
    void fillFrom(const UserSchema &user);
    void selectGroupFor(const UserSchema &user);
    void removeAllRightsItem();
    int chosenGroup() const; ///< The one that Save stores.
    QString groupName(int ID) const; ///< As the database has it now.
    void showGroups();

    std::unique_ptr<Ui::UserForm> ui;
    bool m_areGroupsRead = false; ///< When the pop-up was filled last.
    int m_unlistedGroup = 0; ///< The user's group if the pop-up shows none.
    std::optional<int> m_presentGroup; ///< Of the user who is edited; none while one is added.
    QString m_presentGroupName;
};
