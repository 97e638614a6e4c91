#pragma once

#include <QObject>
#include <QString>

#include <optional>

class QComboBox;
class QLabel;
class UserSchema;

/// The pop-up of the groups in the sheet of a user, with the two lines that name the user's group
/// now and after saving. An item has the group's name as its title and its `ID` as its data. Of two
/// groups with the same name only the later one has an item. Both controls must outlive this.
class GroupChoice : public QObject
{
    Q_OBJECT

public:
    GroupChoice(QComboBox &popUp, QLabel &lines, QObject *parent);

    /// Adds the groups to the pop-up and selects the first item. Items of groups that no longer
    /// exist stay.
    void load();
    bool isLoaded() const
    {
        return m_isLoaded;
    } ///< Whether the groups could be read the last time.
    void startNew(); ///< Loads the groups for a user who is added.
    /// Proposes a group for the user. A user of group 0 gets a last item "All rights" with 0 as its
    /// data, until stop().
    void startEditing(const UserSchema &user);
    void stop();
    int chosen() const; ///< The `ID` of the group that saving stores.

private:
    void removeAllRightsItem();
    void show();

    QComboBox &m_popUp;
    QLabel &m_lines;
    bool m_isLoaded = false;
    int m_unlisted = 0; ///< The user's group if the pop-up shows none.
    std::optional<int> m_present; ///< Of the user who is edited; none while one is added.
    QString m_presentName;
};
