#pragma once

#include "Record.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

struct HttpLimits;
struct sqlite3;

/// Where a page of records begins and how long it is. The page holds up to stepLength + 2 records.
struct RecordPage {
    int from;
    int stepLength;
};

/// The process's one database connection, and the switch that says where records live: in the
/// SQLite file ("sqlite3", from the first open() on) or behind a web service ("webservice", once
/// the type is asked for before any open()).
///
/// Faults are returned and written to the system log. Every operation may be called at any time;
/// without a usable connection it fails like a statement with an error. Interface thread only.
class DB
{
public:
    DB() = delete;

    static QString dbFilePath(); ///< "DB.sqlite3" in the documents folder.

    /// Sets the type to "sqlite3", then opens the file, which is made for its owner alone where it
    /// is missing. Gives SQLite's result code; nothing is logged. An earlier connection stays open.
    static int open();
    /// Stores the address of the web service, which a table's name is put behind directly. Always
    /// 0; the type stays as it is.
    static int open(const QString &webServiceURL);
    /// Closes the connection, or forgets the web service's address, by the type.
    static void close();
    static std::optional<QString> getWebServiceURL();
    /// The connection last opened, also after close(), when it may no longer be used.
    static sqlite3 *getDatabase();
    /// The type; where it is unset it becomes "webservice" by being asked for.
    static QString getDBType();

    /// Runs SQL text; 0 on success, else SQLite's code, or -1 where the type is not "sqlite3".
    static int exec(const QString &sql);
    /// The message of a failed call as text; it is released.
    static QString getDBError(char *message);

    static QStringList getTables(); ///< Without SQLite's own "sqlite_sequence".
    static QStringList getColumns(const QString &table);
    /// The column definitions within "CREATE TABLE <table>(…)". Only the lengths are looked at: the
    /// text must be laid out as SchemaReflect writes it.
    static QStringList getColumnsWithType(const QString &createText, const QString &table);
    static QStringList convert2Columns(const QStringList &definitions); ///< Their first words.
    /// Rows as texts by column name; the names are those of the table, by position. NULL gives a
    /// null text.
    static QList<QMap<QString, QString>> getRecordsBySQL(const QString &sql, const QString &table);
    static QList<QMap<QString, QString>> getRecords(const QString &table);

    /// The records that a SELECT yields; none where it cannot be prepared. The prototype only names
    /// the class: `DB::select(sql, UserSchema{})`.
    template <RecordClass T>
    static std::optional<QList<T>> select(const QString &sql, const T &)
    {
        return collect<T>([&](RecordList records) { return selectInto(sql, records, {}); });
    }
    /// The same for one page, see SchemaReflect::getSchemaValueFromeSQLiteRS.
    template <RecordClass T>
    static std::optional<QList<T>> select(const QString &sql, const T &, int from, int stepLength)
    {
        const RecordPage page{from, stepLength};
        return collect<T>([&](RecordList records) { return selectInto(sql, records, page); });
    }
    /// Both of them; false is "none".
    static bool selectInto(const QString &sql, RecordList records,
                           const std::optional<RecordPage> &page);

    /// Runs a select that answers whether there is a list, and makes the list.
    template <RecordClass T, class Select>
    static std::optional<QList<T>> collect(Select select)
    {
        auto records = std::make_optional<QList<T>>();
        if (!select(RecordList(*records)))
            records.reset();
        return records;
    }

    static void setWebServiceLimits(const HttpLimits &limits);
    static const HttpLimits &webServiceLimits();

    static void reset(); ///< Back to the state at start, every connection closed; for tests.
};
