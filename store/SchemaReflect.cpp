// The part of SchemaReflect that writes: records to SQL and JSON text.

#include "SchemaReflect.h"

#include "DB.h"
#include "FixedText.h"
#include "PropertyList.h"

using namespace Qt::StringLiterals;

namespace
{

constexpr int writtenDecimals = 2;

/// Empty for a property that is not mapped.
QString valueText(RecordView record, int index)
{
    switch (SchemaReflect::getPropertyType(record.property(index))) {
    case PropertyType::Integer:
        return QString::number(record.value(index).toInt());
    case PropertyType::Double:
        return fixedText(record.value(index).toDouble(), writtenDecimals);
    case PropertyType::Text:
        return record.value(index).toString();
    case PropertyType::Other:
        return {};
    }
    Q_UNREACHABLE();
}

QString sqlValue(RecordView record, int index)
{
    const QString text = valueText(record, index);
    const bool isText =
        SchemaReflect::getPropertyType(record.property(index)) == PropertyType::Text;
    return isText ? u'\'' + text + u'\'' : text;
}

QString name(RecordView record, int index)
{
    return QString::fromLatin1(record.property(index).name());
}

QString assignment(RecordView record, int index)
{
    if (SchemaReflect::getPropertyType(record.property(index)) == PropertyType::Other)
        return {};
    return name(record, index) + u'=' + sqlValue(record, index);
}

QString member(RecordView record, int index)
{
    return u'"' + name(record, index) + "\":\""_L1 + valueText(record, index) + u'"';
}

/// What `piece` makes of the properties from `first` on, joined by commas.
QString joined(RecordView record, int first, QString (*piece)(RecordView, int))
{
    QStringList pieces;
    for (int i = first; i < record.count(); ++i)
        pieces.append(piece(record, i));
    return pieces.join(u',');
}

/// The array `key` of the table's description.
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
    return joined(record, 1, name);
}

QString SchemaReflect::getColumnValueList(RecordView record)
{
    return joined(record, 1, sqlValue);
}

QString SchemaReflect::getUpdateStr(RecordView record)
{
    if (record.count() < 2)
        return {};
    return joined(record, 1, assignment) + " WHERE ID="_L1
        + QString::number(record.value(u"ID"_s).toInt());
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
    return u'{' + joined(record, 0, member) + u'}';
}

QVariant SchemaReflect::getValue(RecordView record, int fieldIndex)
{
    return record.value(fieldIndex);
}
