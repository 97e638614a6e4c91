#pragma once

#include "DB.h"
#include "UserSchema.h"

#include <QString>

#include <optional>

/// The session of this process: the database (see DBSession) and the user who is logged in.
/// Interface thread only.
class Global : public DBSession
{
public:
    Global() = delete;

    /// Replaces the session's user. There is no log-out.
    static void setLoggedUser(const UserSchema &user);
    /// None until the first login.
    static const std::optional<UserSchema> &loggedUser();

    /// The rights of a group (see SessionRights), "" if there is no such group. Closes the database
    /// afterwards, even if it was open before, because opening is not counted.
    static QString getPermission(int groupID);
    /// The same; none if the database could not be read.
    static std::optional<QString> storedPermission(int groupID);

    static void reset(); ///< Nobody is logged in, as at start; for tests.
};

/// What the session's user was allowed to do when this was made.
///
/// A right has a code of two characters: a letter for the module (A user groups, B users,
/// C categories, D providers, E products, F inventory) and a digit (1 view, 2 add, 3 edit,
/// 4 delete). A group's rights are their codes, joined without a separator. A user of group 0, and
/// a session without a login, has every right.
class SessionRights
{
public:
    SessionRights(); ///< Reads the database, which is closed afterwards.

    /// Whether the group's rights contain the code. A letter alone matches any right of the module;
    /// this is the test for opening the module's page.
    bool holds(QLatin1String code) const;
    /// Whether the database could be read. If not, a user of a group holds no right for now.
    bool areKnown() const;

private:
    int m_groupID;
    std::optional<QString> m_permission;
};
