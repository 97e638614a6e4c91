#pragma once

#include "Record.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

struct HttpLimits;
struct sqlite3;

/// Where a page of records begins and how long it is: it holds up to stepLength + 2 records.
struct RecordPage {
    int from;
    int stepLength;
};

/// The process's one database connection, and the switch that says where records are kept: in the
/// SQLite file ("sqlite3", from the first open() on) or behind a web service ("webservice", if the
/// type is read before any open()). DBSession opens the one or the other.
///
/// Errors are returned and written to the system log. Every operation may be called at any time;
/// without a usable connection it fails like a statement with an error. Interface thread only.
class DB
{
public:
    DB() = delete;

    static QString dbFilePath(); ///< "DB.sqlite3" in the documents folder.

    /// Sets the type to "sqlite3", then opens the file; a new one is readable by its owner alone.
    /// Returns SQLite's result code and logs nothing. An earlier connection stays open.
    static int open();
    /// Sets the address of the web service; a table's name is appended to it without a separator.
    /// Always returns 0; the type stays as it is.
    static int open(const QString &webServiceURL);
    /// The address of the web service that keeps the records: what the settings hold under
    /// "Addresses/WebService", else what was compiled in. Empty if the file keeps them. It is read
    /// once, with the time limit of requests, "WebService/TimeoutSeconds" from 1 to 3600: while the
    /// program runs, the records do not move.
    static QString configuredWebService();
    /// Closes the connection or clears the web service's address, depending on the type.
    static void close();
    static std::optional<QString> getWebServiceURL();
    /// The connection opened last. After close() it is still returned but must not be used.
    static sqlite3 *getDatabase();
    /// The type. Reading it while it is unset sets it to "webservice".
    static QString getDBType();

    /// Runs one SQL statement. Returns 0 on success, else SQLite's code, or -1 if the type is not
    /// "sqlite3".
    static int exec(const QString &sql);
    /// The text of a failed call's message. Takes ownership of the message and frees it.
    static QString getDBError(char *message);

    static QStringList getTables(); ///< Without SQLite's own "sqlite_sequence".
    static QStringList getColumns(const QString &table); ///< Empty if there is no such table.
    /// The column definitions within "CREATE TABLE <table>(…)". They are found by length alone: the
    /// text must have the layout that SchemaReflect writes.
    static QStringList getColumnsWithType(const QString &createText, const QString &table);
    static QStringList convert2Columns(const QStringList &definitions); ///< Their first words.
    /// Rows as texts by column name. Names are taken from the table by position, whatever the
    /// statement selects. NULL gives a null text.
    static QList<QMap<QString, QString>> getRecordsBySQL(const QString &sql, const QString &table);
    static QList<QMap<QString, QString>> getRecords(const QString &table);

    /// The records that a SELECT yields; none if it cannot be prepared. An error at a later row
    /// ends them: BLGeneral::select() distinguishes that from the end. The prototype only names the
    /// class: `DB::select(sql, UserSchema{})`.
    template <RecordClass T>
    static std::optional<QList<T>> select(const QString &sql, const T &)
    {
        return collect<T>(
            [&](RecordList records) { return selectInto(sql, records, {}) != Selected::Nothing; });
    }
    /// One page of them, see SchemaReflect::getSchemaValueFromeSQLiteRS.
    template <RecordClass T>
    static std::optional<QList<T>> select(const QString &sql, const T &, int from, int stepLength)
    {
        const RecordPage page{from, stepLength};
        return collect<T>([&](RecordList records) {
            return selectInto(sql, records, page) != Selected::Nothing;
        });
    }

    /// Makes a list and passes it to `select`; none if that returns false.
    template <RecordClass T, class Select>
    static std::optional<QList<T>> collect(Select select)
    {
        auto records = std::make_optional<QList<T>>();
        if (!select(RecordList(*records)))
            records.reset();
        return records;
    }
    enum class Selected { Nothing, Part, All }; ///< Less than all only after an error.
    /// Both forms of select, without the template. All records if there is no page.
    static Selected selectInto(const QString &sql, RecordList records,
                               const std::optional<RecordPage> &page);

    /// Ten seconds, unless the settings say otherwise. A change applies to the requests that
    /// follow.
    static HttpLimits &webServiceLimits();

    static void reset(); ///< Closes every connection and restores the initial state; for tests.

private:
    static bool isLocal(); ///< Unlike getDBType() it leaves an unset type unset.
    /// The connection if it is open, else null, which SQLite rejects as misuse.
    static sqlite3 *usableDatabase();
};

/// Opens and closes the database for a stretch of work. One flag is kept and no count: the first
/// closeDB() closes, however often openDB() was called.
///
/// Callers write `Global::openDB()`: the session of the logged-in user derives from this class,
/// which is here because the gateway needs it too. Interface thread only.
class DBSession
{
public:
    /// Opens the file, or passes DB the configured address. Sets the flag even if the file cannot
    /// be opened.
    static void openDB();
    static void closeDB();
    static bool isDBOpen();

protected:
    DBSession() = default;
};
