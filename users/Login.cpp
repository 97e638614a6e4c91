#include "Login.h"

#include "BLGeneral.h"
#include "Global.h"

using namespace Qt::StringLiterals;

namespace
{

QList<UserSchema> select(BLGeneral &users, const QString &whereClause)
{
    return users.select(whereClause, UserSchema{}).value_or(QList<UserSchema>());
}

void createMissingRoot(BLGeneral &users)
{
    if (select(users, u"User='root'"_s).isEmpty())
        users.insert(UserSchema().setRoot());
}

} // namespace

QList<UserSchema> Login::matchingUsers(const QString &user, const QString &password)
{
    const QString whereClause = u"User='"_s + user + u"' AND Password='"_s + password + u"'"_s;
    Global::openDB();
    BLGeneral users(u"User"_s);
    createMissingRoot(users);
    const QList<UserSchema> found = select(users, whereClause);
    Global::closeDB();
    return found;
}
