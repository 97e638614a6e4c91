#pragma once

#include "UserSchema.h"

#include <QList>

/// The check behind the login window. It opens the database and closes it afterwards. Interface
/// thread only.
namespace Login
{

/// The users with exactly this name and password; a login succeeds if there is exactly one. Creates
/// the root user if it is missing. Both texts are compared as they were typed, while the record
/// pages store them percent-escaped: a name or password that escaping changes never matches.
QList<UserSchema> matchingUsers(const QString &user, const QString &password);

} // namespace Login
