#pragma once

#include "Record.h"

#include <QString>

struct sqlite3_stmt;
namespace simdjson::dom
{
class object;
}

/// Turns records into SQL and JSON text, and rows and JSON objects into records, by the properties
/// of the record's class. It has no state. Interface thread only, because `DB` names the dialect.
///
/// No value and no clause is escaped. A caller percent-escapes what the user typed before it passes
/// it on.
class SchemaReflect
{
public:
    SchemaReflect() = delete;

    static PropertyType getPropertyType(const QMetaProperty &property);

    // Pieces of statements. Property 0, the key, is never listed; a class with no other property
    // gives empty texts. A property that is not mapped leaves an empty slot in the values and in
    // the update list but is named in the name list: such a statement fails.

    static QString getColumnNameList(RecordView record); ///< "ShopID,User"
    static QString getColumnValueList(RecordView record); ///< "1,'alice'"
    static QString getUpdateStr(RecordView record); ///< "ShopID=1,User='alice' WHERE ID=3"

    // Whole statements, without a semicolon. A where-clause comes without the word WHERE.

    static QString getFullInsertStatement(const QString &table, RecordView record);
    static QString getFullUpdateStatement(const QString &table, RecordView record);
    static QString getSelectStatementIncludeWhere(const QString &table, const QString &whereClause);
    static QString getDeleteStatementIncludeWhere(const QString &table, const QString &whereClause);

    // From the table's description, the resource ":/schema/<table>.plist": "Fields" holds the
    // column definitions, "Indexes" the names of the columns to index. Without a description the
    // statement has nothing between its brackets and fails when it is run.

    static QString getCreateTableSQL(const QString &table); ///< In the dialect of DB::getDBType().
    static QString getCreateIndexSQL(const QString &table);

    // Rows to records, by position: column i fills property i, the key included. Doubles keep six
    // decimals here and two in statements. NULL reads as 0 or as a null text. The statement is only
    // stepped; the caller still owns it.

    /// All rows; none if the database type is not "sqlite3".
    static void getSchemaValueFromeRS(RecordList records, sqlite3_stmt *statement);
    /// All rows; a step that fails ends them. Returns whether none failed.
    static bool getSchemaValueFromeSQLiteRS(RecordList records, sqlite3_stmt *statement);
    /// Discards `from` rows, then steps stepLength + 2 times and takes the rows that it gets. A
    /// finished statement starts again by itself, so a page that reaches past the end continues
    /// with the first rows, after one step without a row. Returns whether no step failed.
    static bool getSchemaValueFromeSQLiteRS(RecordList records, sqlite3_stmt *statement, int from,
                                            int stepLength);

    /// Fills a new record by name: each property takes the member with its name. Numbers may be
    /// JSON numbers or strings; a missing member, or one of another kind, leaves 0 or a null text.
    static void convertFromJSON(const simdjson::dom::object &object, RecordWriter record);
    /// Appends the records of a web service's reply to a select: a JSON object whose member
    /// "RESULT" is an array with one object per record, in order. Any other reply gives none; an
    /// element that is not an object is skipped. A number that no double can hold is lost, and half
    /// a surrogate pair is read as U+FFFD. Any thread.
    static void appendSelectReply(QByteArrayView reply, RecordList records);

    /// One line without blanks, every value a JSON string. Texts are not escaped: a quote or a
    /// backslash in one makes the JSON invalid.
    static QString toJSON(RecordView record);

    /// The value of one property; invalid for a position past the end.
    static QVariant getValue(RecordView record, int fieldIndex);
};
