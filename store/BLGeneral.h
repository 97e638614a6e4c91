#pragma once

#include "DB.h"
#include "Record.h"

#include <QAnyStringView>

/// Stores and fetches the records of one table, in the local database or through the web service,
/// depending on DB::getDBType():
///
///     BLGeneral users(u"User"_s);
///     users.insert(user);
///     if (const auto all = users.select("1=1", UserSchema{})) …
///
/// An operation opens the store and closes it again unless DBSession has it open.
/// Where-clauses are SQL conditions without the word WHERE and are passed on unchanged. Writes
/// return whether they succeeded; errors go to the system log. Each operation blocks until it is
/// done, a request of the web service up to its time limit (10 s by default). Interface thread
/// only.
class BLGeneral
{
public:
    /// The gateway of a table, which is created if it is missing.
    explicit BLGeneral(const QString &tableName);
    /// The gateway of the table that the record's class is named after (`UserGroupSchema`:
    /// "UserGroup"). Creates the table and stores the record in it, unless records are behind the
    /// web service. A class without "Schema" in its name is a programming error.
    explicit BLGeneral(RecordView record);

    QString tableName;

    /// Creates the table and its index if they are missing; true if they exist afterwards. With the
    /// web service, which has tables of its own, it does nothing and returns true.
    bool initTable();

    /// Locally the record's key is ignored: the table gives it a new one.
    bool insert(RecordView record);
    bool
    update(RecordView record); ///< The row is found by the record's key. None found is success.
    bool delete_(QAnyStringView whereClause);

    /// The records that satisfy the clause; none on an error of the local database, so that an
    /// empty list means that there are none. From the web service it may also mean an error.
    template <RecordClass T>
    std::optional<QList<T>> select(QAnyStringView whereClause, const T &)
    {
        return DB::collect<T>(
            [&](RecordList records) { return selectInto(whereClause, records, {}); });
    }
    /// A page of them: up to stepLength + 2 records from position `from` on. Locally a page that
    /// reaches past the last record continues with the first ones.
    template <RecordClass T>
    std::optional<QList<T>> select(QAnyStringView whereClause, const T &, int from, int stepLength)
    {
        const RecordPage page{from, stepLength};
        return DB::collect<T>(
            [&](RecordList records) { return selectInto(whereClause, records, page); });
    }

    // The web-service form, whatever the database type is. The results are the service's own
    // status numbers, 0 for success. A request without a whole reply reads as status 0 or as an
    // empty list; nothing is logged but a reply that was longer than DB::webServiceLimits() allows.

    QString getWebServiceURL() const; ///< The service's address followed by the table's name.
    /// Sends an update if the record has a key, else an insert.
    int execHTTP(RecordView record) const;
    int deleteHTTP(QAnyStringView whereClause) const;
    template <RecordClass T>
    QList<T> selectHTTP(QAnyStringView whereClause, const T &) const
    {
        QList<T> records;
        selectHTTPInto(whereClause, RecordList(records), {});
        return records;
    }
    template <RecordClass T>
    QList<T> selectHTTP(QAnyStringView whereClause, const T &, int from, int stepLength) const
    {
        QList<T> records;
        selectHTTPInto(whereClause, RecordList(records), RecordPage{from, stepLength});
        return records;
    }

private:
    bool selectInto(QAnyStringView whereClause, RecordList records,
                    const std::optional<RecordPage> &page);
    void selectHTTPInto(QAnyStringView whereClause, RecordList records,
                        const std::optional<RecordPage> &page) const;
};
