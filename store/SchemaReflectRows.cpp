// The part of SchemaReflect that reads rows.

#include "DB.h"
#include "LeadingNumber.h"
#include "SchemaReflect.h"

#include <sqlite3.h>

#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace
{

/// Numbers reach a property as text, doubles with six decimals.
double throughText(double value)
{
    constexpr int readDecimals = 6;
    std::array<char, 1 + 309 + 1 + readDecimals> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, readDecimals)
                         .ptr;
    return leadingDouble({text.data(), end});
}

QString textColumn(sqlite3_stmt *statement, int column)
{
    return QString::fromUtf8(
        reinterpret_cast<const char *>(sqlite3_column_text(statement, column)));
}

void readRow(sqlite3_stmt *statement, const QList<RecordColumn> &columns, RecordWriter record)
{
    for (int i = 0; i < columns.size(); ++i) {
        switch (columns[i].type) {
        case PropertyType::Integer:
            record.setInteger(i, sqlite3_column_int(statement, i));
            break;
        case PropertyType::Double:
            record.setDouble(i, throughText(sqlite3_column_double(statement, i)));
            break;
        case PropertyType::Text:
            record.setText(i, textColumn(statement, i));
            break;
        case PropertyType::Other:
            break;
        }
    }
}

} // namespace

void SchemaReflect::getSchemaValueFromeRS(RecordList records, sqlite3_stmt *statement)
{
    if (DB::getDBType() == "sqlite3"_L1)
        getSchemaValueFromeSQLiteRS(records, statement);
}

bool SchemaReflect::getSchemaValueFromeSQLiteRS(RecordList records, sqlite3_stmt *statement)
{
    const QList<RecordColumn> columns = recordColumns(records.recordClass());
    int code = SQLITE_OK;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW)
        readRow(statement, columns, records.append());
    return code == SQLITE_DONE;
}

bool SchemaReflect::getSchemaValueFromeSQLiteRS(RecordList records, sqlite3_stmt *statement,
                                                int from, int stepLength)
{
    const QList<RecordColumn> columns = recordColumns(records.recordClass());
    bool isWhole = true;
    const auto hasRow = [&] {
        const int code = sqlite3_step(statement);
        isWhole = isWhole && (code == SQLITE_ROW || code == SQLITE_DONE);
        return code == SQLITE_ROW;
    };
    for (int i = 0; i < from; ++i)
        hasRow();
    const qint64 last = qint64(from) + stepLength;
    for (qint64 i = qint64(from) - 1; i <= last; ++i) {
        if (hasRow())
            readRow(statement, columns, records.append());
    }
    return isWhole;
}
