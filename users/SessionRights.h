#pragma once

#include <QLatin1String>
#include <QString>

/// What the session's user may do, as it stood when this was made.
///
/// A right has a code of two characters: a letter for the module (A user groups, B users,
/// C categories, D providers, E products, F inventory) and a digit (1 view, 2 add, 3 edit,
/// 4 delete). A group holds the codes of its rights, put together. Whoever belongs to group 0, and
/// a session without a login, holds every right.
class SessionRights
{
public:
    SessionRights(); ///< Asks the database, which is closed afterwards.

    /// Whether the code occurs in what the group holds. A letter alone asks for any right of the
    /// module, which is what opens its page.
    bool holds(QLatin1String code) const;

private:
    int m_groupID;
    QString m_permission;
};
