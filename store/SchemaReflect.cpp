// The part of SchemaReflect that writes records as SQL and JSON text.

#include "SchemaReflect.h"

#include "DB.h"
#include "FixedText.h"
#include "PropertyList.h"

using namespace Qt::StringLiterals;

namespace
{

constexpr int writtenDecimals = 2;

/// A property of a record that is being written.
struct Field {
    RecordView record;
    int index;
    RecordColumn column;
};

// Each appends what one property contributes.

void appendName(QString &text, const Field &field)
{
    text += field.column.name;
}

/// Nothing for a property that is not mapped.
void appendValue(QString &text, const Field &field)
{
    switch (field.column.type) {
    case PropertyType::Integer:
        text += QString::number(field.record.integer(field.index));
        break;
    case PropertyType::Double:
        text += fixedText(field.record.number(field.index), writtenDecimals);
        break;
    case PropertyType::Text:
        text += field.record.text(field.index);
        break;
    case PropertyType::Other:
        break;
    }
}

void appendSQLValue(QString &text, const Field &field)
{
    const QLatin1String quote = field.column.type == PropertyType::Text ? "'"_L1 : ""_L1;
    text += quote;
    appendValue(text, field);
    text += quote;
}

void appendAssignment(QString &text, const Field &field)
{
    if (field.column.type == PropertyType::Other)
        return;
    text += field.column.name;
    text += u'=';
    appendSQLValue(text, field);
}

void appendMember(QString &text, const Field &field)
{
    text += u'"';
    text += field.column.name;
    text += "\":\""_L1;
    appendValue(text, field);
    text += u'"';
}

/// What `append` writes for the properties from `first` on, separated by commas.
QString joined(RecordView record, int first, void (*append)(QString &text, const Field &field))
{
    QString text;
    const QList<RecordColumn> columns = recordColumns(record.recordClass());
    for (int i = first; i < columns.size(); ++i) {
        if (i > first)
            text += u',';
        append(text, {record, i, columns[i]});
    }
    return text;
}

/// The array under `key` in the table's description.
QStringList described(const QString &table, const QString &key)
{
    const QString path = ":/schema/"_L1 + table + ".plist"_L1;
    return PropertyList::readDictionaryFile(path).value_or(QVariantMap()).value(key).toStringList();
}

} // namespace

PropertyType SchemaReflect::getPropertyType(const QMetaProperty &property)
{
    switch (property.metaType().id()) {
    case QMetaType::Int:
        return PropertyType::Integer;
    case QMetaType::Double:
        return PropertyType::Double;
    case QMetaType::QString:
        return PropertyType::Text;
    default:
        return PropertyType::Other;
    }
}

QString SchemaReflect::getColumnNameList(RecordView record)
{
    return joined(record, 1, appendName);
}

QString SchemaReflect::getColumnValueList(RecordView record)
{
    return joined(record, 1, appendSQLValue);
}

QString SchemaReflect::getUpdateStr(RecordView record)
{
    if (record.count() < 2)
        return {};
    return joined(record, 1, appendAssignment) + " WHERE ID="_L1
        + QString::number(record.value(0).toInt());
}

QString SchemaReflect::getFullInsertStatement(const QString &table, RecordView record)
{
    return "INSERT INTO "_L1 + table + u'(' + getColumnNameList(record) + ") VALUES("_L1
        + getColumnValueList(record) + u')';
}

QString SchemaReflect::getFullUpdateStatement(const QString &table, RecordView record)
{
    return "UPDATE "_L1 + table + " SET "_L1 + getUpdateStr(record);
}

QString SchemaReflect::getSelectStatementIncludeWhere(const QString &table,
                                                      const QString &whereClause)
{
    return "SELECT * FROM "_L1 + table + " WHERE "_L1 + whereClause;
}

QString SchemaReflect::getDeleteStatementIncludeWhere(const QString &table,
                                                      const QString &whereClause)
{
    return "DELETE FROM "_L1 + table + " WHERE "_L1 + whereClause;
}

QString SchemaReflect::getCreateTableSQL(const QString &table)
{
    QStringList fields = described(table, u"Fields"_s);
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const QString dialect = DB::getDBType();
        const bool isMySQL = dialect == "mysql"_L1;
        if (i == 0 && dialect == "sqlite3"_L1)
            fields[i] += " AUTOINCREMENT"_L1;
        if (i == 0 && isMySQL)
            fields[i] += " AUTO_INCREMENT"_L1;
        if (i == fields.size() - 1 && isMySQL)
            fields[i] += ",INDEX("_L1 + described(table, u"Indexes"_s).join(u',') + u')';
    }
    return "CREATE TABLE IF NOT EXISTS "_L1 + table + u'(' + fields.join(u',') + u')';
}

QString SchemaReflect::getCreateIndexSQL(const QString &table)
{
    return "CREATE INDEX IF NOT EXISTS "_L1 + table + "Index"_L1 + " ON "_L1 + table + u'('
        + described(table, u"Indexes"_s).join(u',') + u')';
}

QString SchemaReflect::toJSON(RecordView record)
{
    return u'{' + joined(record, 0, appendMember) + u'}';
}

QVariant SchemaReflect::getValue(RecordView record, int fieldIndex)
{
    return record.value(fieldIndex);
}
