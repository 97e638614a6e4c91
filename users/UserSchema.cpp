#include "UserSchema.h"

using namespace Qt::StringLiterals;

UserSchema &UserSchema::setRoot()
{
    UserGroupID = 0;
    User = u"root"_s;
    Password = u"kelp"_s;
    Memo = u"Super User"_s;
    return *this;
}

bool UserSchema::isRoot() const
{
    return UserGroupID == 0 && User == "root"_L1;
}
