#include "DB.h"

#include "DBState.h"
#include "MiscTool.h"
#include "SchemaReflect.h"
#include "Statement.h"

#include <QFile>

#include <sqlite3.h>

#include <chrono>

using namespace Qt::StringLiterals;

namespace
{

/// How long a statement waits for another process that holds the file.
constexpr std::chrono::milliseconds busyTimeout{5000};

/// A new file is made before SQLite sees it, since SQLite would let everybody read it; the journals
/// take the file's mode. A file that is there is not touched: opening and closing it would drop the
/// locks that an earlier connection of this process holds on it.
void createForOwner(const QString &path)
{
    QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly,
                     QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool isLocal()
{
    return DBState::current().type == "sqlite3"_L1;
}

} // namespace

DBState &DBState::current()
{
    static DBState state;
    return state;
}

QString DB::dbFilePath()
{
    return MiscTool::getAppDocumentFolder() + "/DB.sqlite3"_L1;
}

int DB::open()
{
    DBState &state = DBState::current();
    state.type = u"sqlite3"_s;
    if (state.isUsable)
        state.earlierHandles.push_back(state.handle);
    const QString path = dbFilePath();
    createForOwner(path);
    const int code = sqlite3_open16(path.utf16(), &state.handle);
    state.isUsable = state.handle != nullptr;
    if (state.isUsable)
        sqlite3_busy_timeout(state.handle, int(busyTimeout.count()));
    return code;
}

int DB::open(const QString &webServiceURL)
{
    DBState::current().webServiceURL = webServiceURL;
    return 0;
}

void DB::close()
{
    DBState &state = DBState::current();
    if (isLocal())
        state.isUsable = sqlite3_close(state.usableHandle()) != SQLITE_OK;
    else if (state.type == "webservice"_L1)
        state.webServiceURL = QString();
}

std::optional<QString> DB::getWebServiceURL()
{
    const QString &address = DBState::current().webServiceURL;
    return address.isNull() ? std::nullopt : std::optional(address);
}

sqlite3 *DB::getDatabase()
{
    return DBState::current().handle;
}

QString DB::getDBType()
{
    DBState &state = DBState::current();
    if (state.type.isNull())
        state.type = u"webservice"_s;
    return state.type;
}

// Values come unescaped into the text, so one that holds a quote and a semicolon could smuggle in a
// statement of its own: a call runs one statement. The library says where the first one ends.
static bool isOneStatement(sqlite3 *database, const QByteArray &sql)
{
    if (!sql.contains(';'))
        return true;
    sqlite3_stmt *statement = nullptr;
    const char *rest = nullptr;
    const int code = sqlite3_prepare_v2(database, sql.constData(), -1, &statement, &rest);
    sqlite3_finalize(statement);
    return code != SQLITE_OK // which running it will tell better
        || QByteArrayView(rest).trimmed().isEmpty();
}

int DB::exec(const QString &sql)
{
    int code = -1;
    char *message = nullptr;
    if (isLocal()) {
        sqlite3 *const database = DBState::current().usableHandle();
        const QByteArray text = sql.toUtf8();
        if (isOneStatement(database, text)) {
            code = sqlite3_exec(database, text.constData(), nullptr, nullptr, &message);
        } else {
            code = SQLITE_MISUSE;
            message = sqlite3_mprintf("more than one statement");
        }
        if (code == SQLITE_OK)
            return code;
    }
    MiscTool::printMsg(u"DB"_s, u"exec"_s, getDBError(message));
    return code;
}

QString DB::getDBError(char *message)
{
    if (!isLocal())
        return u""_s;
    QString text = MiscTool::getNSString(message);
    sqlite3_free(message);
    return text;
}

bool DB::selectInto(const QString &sql, RecordList records, const std::optional<RecordPage> &page)
{
    if (!isLocal())
        return false;
    const Statement statement(sql);
    if (!statement.isPrepared()) {
        MiscTool::printMsg(u"DB"_s, u"select"_s, u"failed"_s);
        return false;
    }
    if (page)
        SchemaReflect::getSchemaValueFromeSQLiteRS(records, statement.get(), page->from,
                                                   page->stepLength);
    else
        SchemaReflect::getSchemaValueFromeSQLiteRS(records, statement.get());
    return true;
}

void DB::setWebServiceLimits(const HttpLimits &limits)
{
    DBState::current().webServiceLimits = limits;
}

const HttpLimits &DB::webServiceLimits()
{
    return DBState::current().webServiceLimits;
}

void DB::reset()
{
    DBState &state = DBState::current();
    for (sqlite3 *handle : state.earlierHandles)
        sqlite3_close(handle);
    sqlite3_close(state.usableHandle());
    state = DBState();
}
