#include "DBSession.h"

#include "DB.h"
#include "DBState.h"

void DBSession::openDB()
{
    if (isDBOpen())
        return;
    DB::open();
    DBState::current().isOpenFlag = true;
}

void DBSession::closeDB()
{
    if (!isDBOpen())
        return;
    DB::close();
    DBState::current().isOpenFlag = false;
}

bool DBSession::isDBOpen()
{
    return DBState::current().isOpenFlag;
}

DBScope::DBScope() : m_hasOpened(!DBSession::isDBOpen())
{
    DBSession::openDB();
}

DBScope::~DBScope()
{
    if (m_hasOpened)
        DBSession::closeDB();
}
