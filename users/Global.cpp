#include "Global.h"

#include "BLGeneral.h"
#include "UserGroupSchema.h"

using namespace Qt::StringLiterals;

namespace
{

std::optional<UserSchema> &session()
{
    static std::optional<UserSchema> user;
    return user;
}

} // namespace

void Global::setLoggedUser(const UserSchema &user)
{
    session() = user;
}

const std::optional<UserSchema> &Global::loggedUser()
{
    return session();
}

QString Global::getPermission(int groupID)
{
    QString permission = u""_s;
    openDB();
    BLGeneral groups(u"UserGroup"_s);
    const auto found = groups.select(u"ID="_s + QString::number(groupID), UserGroupSchema{});
    if (found && !found->isEmpty())
        permission = found->last().Permission;
    closeDB();
    return permission;
}

void Global::reset()
{
    session().reset();
}

SessionRights::SessionRights()
    : m_groupID(session() ? session()->UserGroupID : 0),
      m_permission(Global::getPermission(m_groupID))
{
}

bool SessionRights::holds(QLatin1String code) const
{
    return m_groupID == 0 || m_permission.contains(code);
}
