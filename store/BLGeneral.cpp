#include "BLGeneral.h"

#include "MiscTool.h"
#include "SchemaReflect.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

bool isWebService()
{
    return DB::getDBType() == "webservice"_L1;
}

/// Has the store open for the scope, and closes it afterwards only if it was closed before. An
/// address that did not come from the configuration stays as it is: no session gave it to DB.
class DBScope
{
public:
    DBScope()
        : m_hasOpened(!DBSession::isDBOpen()
                      && (!isWebService() || !DB::configuredWebService().isEmpty()))
    {
        if (m_hasOpened)
            DBSession::openDB();
    }
    ~DBScope()
    {
        if (m_hasOpened)
            DBSession::closeDB();
    }
    Q_DISABLE_COPY_MOVE(DBScope)

private:
    bool m_hasOpened;
};

bool runs(const QString &sql)
{
    return DB::exec(sql) == 0;
}

QString tableOf(RecordView record)
{
    const QString name = QString::fromLatin1(record.recordClass().className()).section(u':', -1);
    const qsizetype end = name.indexOf("Schema"_L1);
    Q_ASSERT_X(end > 0, "BLGeneral", "a record class is named after its table: <Table>Schema");
    return name.first(std::max<qsizetype>(end, 0));
}

} // namespace

BLGeneral::BLGeneral(const QString &table) : tableName(table)
{
    initTable();
}

BLGeneral::BLGeneral(RecordView record) : tableName(tableOf(record))
{
    if (initTable() && !isWebService() && !insert(record))
        MiscTool::printMsg(u"BLGeneral"_s, u"initWithSchema"_s, u"failed"_s);
}

bool BLGeneral::initTable()
{
    if (isWebService())
        return true;
    const DBScope open;
    if (!runs(SchemaReflect::getCreateTableSQL(tableName)))
        return false;
    const QString type = DB::getDBType();
    if (type == "sqlite3"_L1)
        return runs(SchemaReflect::getCreateIndexSQL(tableName));
    return type == "mysql"_L1; // its indexes are made with the table
}

bool BLGeneral::insert(RecordView record)
{
    const DBScope open;
    return isWebService() ? execHTTP(record) == 0
                          : runs(SchemaReflect::getFullInsertStatement(tableName, record));
}

bool BLGeneral::update(RecordView record)
{
    const DBScope open;
    return isWebService() ? execHTTP(record) == 0
                          : runs(SchemaReflect::getFullUpdateStatement(tableName, record));
}

bool BLGeneral::delete_(QAnyStringView whereClause)
{
    const DBScope open;
    return isWebService()
        ? deleteHTTP(whereClause) == 0
        : runs(SchemaReflect::getDeleteStatementIncludeWhere(tableName, whereClause.toString()));
}

bool BLGeneral::selectInto(QAnyStringView whereClause, RecordList records,
                           const std::optional<RecordPage> &page)
{
    const DBScope open;
    if (isWebService()) {
        selectHTTPInto(whereClause, records, page);
        return true;
    }
    const QString sql =
        SchemaReflect::getSelectStatementIncludeWhere(tableName, whereClause.toString());
    return DB::selectInto(sql, records, page) == DB::Selected::All;
}
