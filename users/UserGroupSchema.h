#pragma once

#include <QObject>
#include <QString>

/// A row of the table "UserGroup"; the properties are its columns, in order. `Name` and
/// `Memo` are stored percent-escaped.
class UserGroupSchema
{
    Q_GADGET
    Q_PROPERTY(int ID MEMBER ID)
    Q_PROPERTY(int ShopID MEMBER ShopID)
    Q_PROPERTY(QString Name MEMBER Name)
    Q_PROPERTY(QString Permission MEMBER Permission)
    Q_PROPERTY(QString Memo MEMBER Memo)

public:
    int ID = 0; ///< The key; 0 until the table has given one.
    int ShopID = 0; ///< Always stored as 0; nothing reads it.
    QString Name;
    /// The group's rights: codes of two characters, joined without a separator, see SessionRights.
    QString Permission;
    QString Memo;

    bool operator==(const UserGroupSchema &) const = default;
};
Q_DECLARE_TYPEINFO(UserGroupSchema, Q_RELOCATABLE_TYPE);
