#pragma once

#include "Record.h"

#include <QString>

struct sqlite3_stmt;
namespace simdjson::dom
{
class object;
}

/// Turns records into SQL and JSON text, and rows and JSON objects into records, by the properties
/// of the record's class. Stateless; interface thread, since the dialect is asked of `DB`.
///
/// Texts are put together as they are: no value and no clause is quoted or escaped. A caller that
/// has text of the user's percent-escapes it first (MiscTool::encode2UTF8).
class SchemaReflect
{
public:
    SchemaReflect() = delete;

    static PropertyType getPropertyType(const QMetaProperty &property);

    // Pieces of statements. Property 0, the key, is never listed; a class without a further
    // property gives empty texts. A property that is not mapped leaves an empty slot in the values
    // and in the update list, but its name stands in the name list: such a statement fails.

    static QString getColumnNameList(RecordView record); ///< "ShopID,User"
    static QString getColumnValueList(RecordView record); ///< "1,'alice'"
    static QString getUpdateStr(RecordView record); ///< "ShopID=1,User='alice' WHERE ID=3"

    // Whole statements, without a semicolon. A where-clause comes without the word WHERE.

    static QString getFullInsertStatement(const QString &table, RecordView record);
    static QString getFullUpdateStatement(const QString &table, RecordView record);
    static QString getSelectStatementIncludeWhere(const QString &table, const QString &whereClause);
    static QString getDeleteStatementIncludeWhere(const QString &table, const QString &whereClause);

    // From the table's description, the resource ":/schema/<table>.plist": "Fields" holds a column
    // definition each, "Indexes" the names of the columns to index. Where there is no description
    // the statement has nothing between its brackets and fails when it is run.

    static QString getCreateTableSQL(const QString &table); ///< In the dialect of DB::getDBType().
    static QString getCreateIndexSQL(const QString &table);

    // Rows to records, by position: column i fills property i, the key included. Doubles keep six
    // decimals here and two in statements. NULL reads as 0 or leaves a text missing. The statement
    // stays the caller's and is only stepped.

    /// All rows; nothing where the database type is not "sqlite3".
    static void getSchemaValueFromeRS(RecordList records, sqlite3_stmt *statement);
    /// All rows; a step that fails ends them.
    static void getSchemaValueFromeSQLiteRS(RecordList records, sqlite3_stmt *statement);
    /// Discards `from` rows, then steps stepLength + 2 times and takes the rows that come. A
    /// finished statement starts again by itself, so a page past the end goes on, after one step
    /// without a row, with the first rows.
    static void getSchemaValueFromeSQLiteRS(RecordList records, sqlite3_stmt *statement, int from,
                                            int stepLength);

    /// Fills a new record by name: each property takes the member of its name. Numbers may come as
    /// JSON numbers or texts; a missing member, or one of another kind, leaves 0 or a missing text.
    static void convertFromJSON(const simdjson::dom::object &object, RecordWriter record);
    /// The same for one of many objects, with the class's columns looked up once.
    static void convertFromJSON(const simdjson::dom::object &object,
                                const QList<RecordColumn> &columns, RecordWriter record);

    /// One line without blanks, every value a JSON string. Texts are not escaped: one with a quote
    /// or a backslash makes it invalid.
    static QString toJSON(RecordView record);

    /// The property's value; invalid for a position past the end.
    static QVariant getValue(RecordView record, int fieldIndex);
};
