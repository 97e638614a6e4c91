// The half of DB that reads the catalogue and raw rows.

#include "DB.h"
#include "MiscTool.h"
#include "Statement.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace
{

/// These lines have no arrow, unlike those of MiscTool::printMsg; log readers know both shapes.
void logFailedSelect(QLatin1String method)
{
    qInfo().noquote() << "[DB]("_L1 + method + "):Select Failed."_L1;
}

} // namespace

QStringList DB::getTables()
{
    Statement statement(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s);
    if (!statement.isPrepared()) {
        logFailedSelect("getTables"_L1);
        return {};
    }
    QStringList tables;
    while (statement.step()) {
        const QString name = MiscTool::getNSString(statement.columnText(0));
        if (name != "sqlite_sequence"_L1)
            tables.append(name);
    }
    return tables;
}

QStringList DB::getColumns(const QString &table)
{
    Statement statement("SELECT sql FROM sqlite_master WHERE tbl_name = '"_L1 + table
                        + "' AND type = 'table'"_L1);
    if (!statement.isPrepared()) {
        logFailedSelect("getColumns"_L1);
        return {};
    }
    QStringList columns;
    while (statement.step()) {
        const QString createText = MiscTool::getNSString(statement.columnText(0));
        columns = convert2Columns(getColumnsWithType(createText, table));
    }
    return columns;
}

QStringList DB::getColumnsWithType(const QString &createText, const QString &table)
{
    const qsizetype begin = "CREATE TABLE "_L1.size() + table.size() + "("_L1.size();
    // A text that another program laid out may be too short to hold anything between the two.
    const QString definitions = createText.mid(begin, createText.size() - begin - 1);
    return begin < createText.size() ? definitions.split(u',') : QStringList();
}

QStringList DB::convert2Columns(const QStringList &definitions)
{
    QStringList columns;
    for (const QString &definition : definitions)
        columns.append(definition.section(u' ', 0, 0));
    return columns;
}

QList<QMap<QString, QString>> DB::getRecordsBySQL(const QString &sql, const QString &table)
{
    Statement statement(sql);
    if (!statement.isPrepared()) {
        logFailedSelect("getColumns"_L1); // sic: one word for both operations
        return {};
    }
    QList<QMap<QString, QString>> records;
    while (statement.step()) {
        const QStringList columns = getColumns(table);
        QMap<QString, QString> &record = records.emplaceBack();
        for (int i = 0; i < columns.size(); ++i)
            record.insert(columns[i], QString::fromUtf8(statement.columnText(i)));
    }
    return records;
}

QList<QMap<QString, QString>> DB::getRecords(const QString &table)
{
    return getRecordsBySQL("SELECT * FROM "_L1 + table, table);
}
