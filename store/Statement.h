#pragma once

#include <QString>

struct sqlite3_stmt;

/// A statement prepared on the store's connection, finalised when it goes out of scope.
class Statement
{
public:
    explicit Statement(const QString &sql);
    ~Statement();
    Q_DISABLE_COPY_MOVE(Statement)

    bool isPrepared() const { return m_isPrepared; }
    sqlite3_stmt *get() const { return m_statement; }
    bool step(); ///< Whether it yielded a row.
    const char *columnText(int column) const; ///< Null for NULL; good until the next step.

private:
    sqlite3_stmt *m_statement = nullptr;
    bool m_isPrepared;
};
