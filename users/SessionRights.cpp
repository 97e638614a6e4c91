#include "SessionRights.h"

#include "Global.h"

SessionRights::SessionRights()
    : m_groupID(Global::loggedUser() ? Global::loggedUser()->UserGroupID : 0),
      m_permission(Global::getPermission(m_groupID))
{
}

bool SessionRights::holds(QLatin1String code) const
{
    return m_groupID == 0 || m_permission.contains(code);
}
