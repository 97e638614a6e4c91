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
    return storedPermission(groupID).value_or(u""_s);
}

std::optional<QString> Global::storedPermission(int groupID)
{
    openDB();
    BLGeneral groups(u"UserGroup"_s);
    const auto found = groups.select(u"ID="_s + QString::number(groupID), UserGroupSchema{});
    closeDB();
    if (!found)
        return std::nullopt;
    return found->isEmpty() ? u""_s : found->last().Permission;
}

void Global::reset()
{
    session().reset();
}

SessionRights::SessionRights()
    : m_groupID(session() ? session()->UserGroupID : 0),
      m_permission(Global::storedPermission(m_groupID))
{
}

bool SessionRights::holds(QLatin1String code) const
{
    return m_groupID == 0 || (m_permission && m_permission->contains(code));
}

bool SessionRights::areKnown() const
{
    return m_groupID == 0 || m_permission;
}
