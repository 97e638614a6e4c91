#pragma once

#include <QObject>
#include <QString>

/// A row of the table "User"; the properties are its columns, in their order. The texts are kept
/// percent-escaped, the password too, which is in the clear otherwise.
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
    int ID = 0;
    int ShopID = 0;
    int UserGroupID = 0; ///< 0 is the group without restrictions.
    QString User; ///< The login name.
    QString Password;
    QString Memo;

    /// Makes this the user with all rights, keeping `ID` and `ShopID`, and gives it back.
    UserSchema &setRoot();
    bool isRoot() const;
};
Q_DECLARE_TYPEINFO(UserSchema, Q_RELOCATABLE_TYPE);
