#pragma once

#include <QList>
#include <QString>

#include <sqlite3.h>

/// The peer: what one would write by hand with SQLite for this one table.
struct PlainUser {
    int id;
    int shopId;
    int userGroupId;
    QString user;
    QString password;
    QString memo;
};
Q_DECLARE_TYPEINFO(PlainUser, Q_RELOCATABLE_TYPE);

inline QString plainText(sqlite3_stmt *statement, int column)
{
    return QString::fromUtf8(
        reinterpret_cast<const char *>(sqlite3_column_text(statement, column)));
}

inline QList<PlainUser> plainSelect(sqlite3 *database, const char *sql)
{
    QList<PlainUser> users;
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW)
        users.append({sqlite3_column_int(statement, 0), sqlite3_column_int(statement, 1),
                      sqlite3_column_int(statement, 2), plainText(statement, 3),
                      plainText(statement, 4), plainText(statement, 5)});
    sqlite3_finalize(statement);
    return users;
}
