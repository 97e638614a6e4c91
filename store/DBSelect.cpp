// The half of DB that reads: records, the catalogue and raw rows.

#include "DB.h"
#include "MiscTool.h"
#include "SchemaReflect.h"

#include <QDebug>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace
{

/// A prepared statement, finalised when it goes out of scope.
class Statement
{
public:
    Statement(sqlite3 *database, const QString &sql)
        : m_isPrepared(
            sqlite3_prepare_v2(database, sql.toUtf8().constData(), -1, &m_statement, nullptr)
            == SQLITE_OK)
    {
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Q_DISABLE_COPY_MOVE(Statement)

    bool isPrepared() const { return m_isPrepared; }
    sqlite3_stmt *get() const { return m_statement; }
    bool step() { return sqlite3_step(m_statement) == SQLITE_ROW; }
    /// Null for NULL; valid until the next step.
    const char *text(int column) const
    {
        return reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
    }

private:
    sqlite3_stmt *m_statement = nullptr;
    bool m_isPrepared;
};

/// Calls `use` for each row. The log line has no arrow, unlike those of MiscTool::printMsg; log
/// readers know both forms.
template <class Use>
void forEachRow(Statement &statement, QLatin1String method, Use use)
{
    if (!statement.isPrepared())
        qInfo().noquote() << "[DB]("_L1 + method + "):Select Failed."_L1;
    while (statement.isPrepared() && statement.step())
        use(statement);
}

} // namespace

DB::Selected DB::selectInto(const QString &sql, RecordList records,
                            const std::optional<RecordPage> &page)
{
    if (!isLocal())
        return Selected::Nothing;
    using Reflect = SchemaReflect;
    const Statement statement(usableDatabase(), sql);
    const bool isWhole = statement.isPrepared()
        && (page ? Reflect::getSchemaValueFromeSQLiteRS(records, statement.get(), page->from,
                                                        page->stepLength)
                 : Reflect::getSchemaValueFromeSQLiteRS(records, statement.get()));
    if (isWhole)
        return Selected::All;
    MiscTool::printMsg(u"DB"_s, u"select"_s, u"failed"_s);
    return statement.isPrepared() ? Selected::Part : Selected::Nothing;
}

QStringList DB::getTables()
{
    QStringList tables;
    Statement statement(usableDatabase(), u"SELECT name FROM sqlite_master WHERE type = 'table'"_s);
    forEachRow(statement, "getTables"_L1, [&tables](const Statement &row) {
        const QString name = MiscTool::getNSString(row.text(0));
        if (name != "sqlite_sequence"_L1)
            tables.append(name);
    });
    return tables;
}

QStringList DB::getColumns(const QString &table)
{
    QStringList columns;
    Statement statement(usableDatabase(),
                        "SELECT sql FROM sqlite_master WHERE tbl_name = '"_L1 + table
                            + "' AND type = 'table'"_L1);
    forEachRow(statement, "getColumns"_L1, [&](const Statement &row) {
        columns = convert2Columns(getColumnsWithType(MiscTool::getNSString(row.text(0)), table));
    });
    return columns;
}

QStringList DB::getColumnsWithType(const QString &createText, const QString &table)
{
    const qsizetype begin = "CREATE TABLE "_L1.size() + table.size() + "("_L1.size();
    // Another program may have written the text, and it may be too short for any definition.
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
    QList<QMap<QString, QString>> records;
    Statement statement(usableDatabase(), sql);
    // The log line names getColumns here too, which is not a slip.
    forEachRow(statement, "getColumns"_L1, [&](const Statement &row) {
        const QStringList columns = getColumns(table);
        QMap<QString, QString> &record = records.emplaceBack();
        for (int i = 0; i < columns.size(); ++i)
            record.insert(columns[i], QString::fromUtf8(row.text(i)));
    });
    return records;
}

QList<QMap<QString, QString>> DB::getRecords(const QString &table)
{
    return getRecordsBySQL("SELECT * FROM "_L1 + table, table);
}
