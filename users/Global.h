#pragma once

#include "DBSession.h"
#include "UserSchema.h"

#include <QString>

#include <optional>

/// The session of this process: the database (see DBSession) and who is logged in. Interface thread
/// only.
class Global : public DBSession
{
public:
    Global() = delete;

    /// Replaces the session's user, who stays until the process ends: there is no log-out.
    static void setLoggedUser(const UserSchema &user);
    /// None until the first login.
    static const std::optional<UserSchema> &loggedUser();

    /// The rights of a group (see SessionRights), "" where there is no such group. Closes the
    /// database behind, even where it was open before: opening is not counted.
    static QString getPermission(int groupID);

    static void reset(); ///< Nobody is logged in, as at start; for tests.
};
