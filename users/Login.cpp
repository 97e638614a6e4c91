#include "Login.h"

#include "BLGeneral.h"
#include "BusyBudget.h"
#include "Global.h"

using namespace Qt::StringLiterals;

namespace
{

// Not after a failed select, as while the database is busy: there may be a root with a password of
// its own.
void createMissingRoot(BLGeneral &users)
{
    const auto roots = users.select(u"User='root'"_s, UserSchema{});
    if (roots && roots->isEmpty())
        users.insert(UserSchema().setRoot());
}

} // namespace

QList<UserSchema> Login::matchingUsers(const QString &user, const QString &password)
{
    const QString whereClause = u"User='"_s + user + u"' AND Password='"_s + password + u"'"_s;
    const BusyBudget budget;
    Global::openDB();
    BLGeneral users(u"User"_s);
    createMissingRoot(users);
    const auto found = users.select(whereClause, UserSchema{});
    Global::closeDB();
    return found.value_or(QList<UserSchema>());
}
