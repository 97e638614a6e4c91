#pragma once

#include <QObject>
#include <QString>

/// A row of the table "User"; the properties are its columns, in order. The texts are stored
/// percent-escaped. So is the password, which is not encrypted in any other way.
class UserSchema
{
    Q_GADGET
    Q_PROPERTY(int ID MEMBER ID)
    Q_PROPERTY(int ShopID MEMBER ShopID)
    Q_PROPERTY(int UserGroupID MEMBER UserGroupID)
    Q_PROPERTY(QString User MEMBER User)
    Q_PROPERTY(QString Password MEMBER Password)
    Q_PROPERTY(QString Memo MEMBER Memo)

public:
    int ID = 0; ///< The key; 0 until the table has given one.
    int ShopID = 0; ///< Always stored as 0; nothing reads it.
    /// The `ID` of the user's group, which may have been deleted. 0 is the group without
    /// restrictions, which has no row of its own.
    int UserGroupID = 0;
    QString User; ///< The login name.
    QString Password;
    QString Memo;

    /// Makes this the user with all rights; `ID` and `ShopID` stay. Returns the record itself.
    UserSchema &setRoot()
    {
        UserGroupID = 0;
        User = QStringLiteral("root");
        Password = QStringLiteral("kelp");
        Memo = QStringLiteral("Super User");
        return *this;
    }
    bool operator==(const UserSchema &) const = default;
    /// Whether this is the user that setRoot() makes; others may have all rights too.
    bool isRoot() const { return UserGroupID == 0 && User == QLatin1String("root"); }
};
Q_DECLARE_TYPEINFO(UserSchema, Q_RELOCATABLE_TYPE);
