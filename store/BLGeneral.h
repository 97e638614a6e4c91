#pragma once

#include "DB.h"
#include "Record.h"

#include <QAnyStringView>

/// Stores and fetches the records of one table, in the local database or through the web service,
/// as DB::getDBType() says:
///
///     BLGeneral users(u"User"_s);
///     users.insert(user);
///     if (const auto all = users.select("1=1", UserSchema{})) …
///
/// Locally, an operation opens the database and closes it again unless DBSession has it open.
/// Where-clauses are SQL conditions without the word WHERE and reach the database or the service as
/// they are. Writes answer whether they succeeded; faults go to the system log. Each operation
/// blocks until it is done, a request of the web service up to its time limit (60 s unless set
/// otherwise). Interface thread only.
class BLGeneral
{
public:
    /// The gateway of a table, which is made where it is missing.
    explicit BLGeneral(const QString &tableName);
    /// The gateway of the table that the record's class names (`UserGroupSchema`: "UserGroup").
    /// Makes the table and stores the record in it, unless records live behind the web service. A
    /// class without "Schema" in its name is a programming error.
    explicit BLGeneral(RecordView record);

    QString tableName;

    /// Makes the table and its index; true when they exist afterwards, and at once where the web
    /// service keeps the tables.
    bool initTable();

    bool insert(RecordView record);
    bool update(RecordView record); ///< The row is found by the record's `ID`.
    bool delete_(QAnyStringView whereClause);

    /// The records for which the clause holds; none on an error of the local database.
    template <RecordClass T>
    std::optional<QList<T>> select(QAnyStringView whereClause, const T &)
    {
        return DB::collect<T>(
            [&](RecordList records) { return selectInto(whereClause, records, {}); });
    }
    /// A page of them: up to stepLength + 2 records from position `from` on. Locally a page past
    /// the last record goes on with the first ones.
    template <RecordClass T>
    std::optional<QList<T>> select(QAnyStringView whereClause, const T &, int from, int stepLength)
    {
        const RecordPage page{from, stepLength};
        return DB::collect<T>(
            [&](RecordList records) { return selectInto(whereClause, records, page); });
    }

    // The web-service form, whatever the database type is. What is sent is decided by the record's
    // key: a record with a key is an update, one without an insert. A request without a whole reply
    // reads as status 0, which is success, or as an empty list; nothing is logged.

    QString getWebServiceURL() const; ///< The service's address with the table's name behind it.
    int execHTTP(RecordView record) const;
    int deleteHTTP(QAnyStringView whereClause) const;
    void selectHTTP(QAnyStringView whereClause, RecordList records) const;
    void selectHTTP(QAnyStringView whereClause, RecordList records, int from, int stepLength) const;
    template <RecordClass T>
    QList<T> selectHTTP(QAnyStringView whereClause, const T &) const
    {
        QList<T> records;
        selectHTTP(whereClause, RecordList(records));
        return records;
    }
    template <RecordClass T>
    QList<T> selectHTTP(QAnyStringView whereClause, const T &, int from, int stepLength) const
    {
        QList<T> records;
        selectHTTP(whereClause, RecordList(records), from, stepLength);
        return records;
    }

private:
    bool selectInto(QAnyStringView whereClause, RecordList records,
                    const std::optional<RecordPage> &page);
};
