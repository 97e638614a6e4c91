#pragma once

#include <QComboBox>

class UserGroupSchema;

/// The pop-up of user groups: an item for each, titled with the group's name and tagged with its
/// `ID`. Two groups of one name share an item, which is that of the later one.
class GroupPopUp : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    /// Adds an item for each group at the end. A title that the pop-up already has moves there;
    /// nothing is removed otherwise, so groups that are gone stay. Selects the first item.
    void addGroups(const QList<UserGroupSchema> &groups);

    int selectedTag() const { return currentData().toInt(); } ///< 0 where no item is selected.
    int indexOfItemWithTag(int tag) const { return findData(tag); } ///< -1 for none.
};
