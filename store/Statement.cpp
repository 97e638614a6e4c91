#include "Statement.h"

#include "DBState.h"

#include <sqlite3.h>

Statement::Statement(const QString &sql)
    : m_isPrepared(sqlite3_prepare_v2(DBState::current().usableHandle(), sql.toUtf8().constData(),
                                      -1, &m_statement, nullptr)
                   == SQLITE_OK)
{
}

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

bool Statement::step()
{
    return sqlite3_step(m_statement) == SQLITE_ROW;
}

const char *Statement::columnText(int column) const
{
    return reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
}
