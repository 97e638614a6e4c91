#include "DB.h"

#include "BusyBudget.h"
#include "EarlierDatabase.h"
#include "Http.h"
#include "MiscTool.h"

#include <QFile>
#include <QSettings>

#include <sqlite3.h>

#include <chrono>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

/// 100,000 records are about 15 MB. HttpLimits' own limit is meant for pages and pictures.
constexpr qint64 maxReplyBytes = 64 * 1024 * 1024;

/// Everything that the record store remembers between two calls.
struct State {
    sqlite3 *handle = nullptr; ///< Stays as it was after a close; see isUsable.
    bool isUsable = false; ///< Whether the handle may be passed to SQLite.
    std::vector<sqlite3 *> earlierHandles; ///< Opened, then replaced by another open().
    QString type; ///< Null while unset.
    std::optional<QString> webServiceURL;
    std::optional<QString> configuredWebService; ///< None until it is read.
    HttpLimits webServiceLimits{.time = std::chrono::seconds(10), .bytes = maxReplyBytes};
    bool isSessionOpen = false;
};

State &state()
{
    static State state;
    return state;
}

/// A new file is created before SQLite opens it, because SQLite would let everybody read it; the
/// journals take the file's mode. An existing file is left alone: opening and closing it would drop
/// the locks that an earlier connection of this process holds on it.
void createForOwner(const QString &path)
{
    QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly,
                     QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

/// Values are put into the text unescaped, so one that holds a quote and a semicolon could add a
/// statement of its own: a call runs one statement. SQLite says where the first one ends.
bool isOneStatement(sqlite3 *database, const QByteArray &sql)
{
    if (!sql.contains(';'))
        return true;
    sqlite3_stmt *statement = nullptr;
    const char *rest = nullptr;
    const int code = sqlite3_prepare_v2(database, sql.constData(), -1, &statement, &rest);
    sqlite3_finalize(statement);
    return code != SQLITE_OK // running it gives the better message
        || QByteArrayView(rest).trimmed().isEmpty();
}

} // namespace

QString DB::dbFilePath()
{
    return MiscTool::getAppDocumentFolder() + "/DB.sqlite3"_L1;
}

int DB::open()
{
    state().type = u"sqlite3"_s;
    if (state().isUsable)
        state().earlierHandles.push_back(state().handle);
    const QString path = dbFilePath();
    if (const int failure = EarlierDatabase::takeOver(path)) {
        // A new and empty file would hide the earlier records for good.
        state().isUsable = false;
        return failure;
    }
    createForOwner(path);
    const int code = sqlite3_open16(path.utf16(), &state().handle);
    state().isUsable = state().handle != nullptr;
    if (state().isUsable)
        BusyBudget::applyTo(state().handle);
    return code;
}

int DB::open(const QString &webServiceURL)
{
    state().webServiceURL = webServiceURL;
    return 0;
}

QString DB::configuredWebService()
{
    std::optional<QString> &address = state().configuredWebService;
    if (!address) {
        const QSettings settings;
        address = settings.value(u"Addresses/WebService"_s, QStringLiteral(TOOLVANE_WEB_SERVICE))
                      .toString();
        const int seconds = settings.value(u"WebService/TimeoutSeconds"_s).toInt();
        if (seconds >= 1 && seconds <= 3600)
            state().webServiceLimits.time = std::chrono::seconds(seconds);
    }
    return *address;
}

void DB::close()
{
    if (isLocal())
        state().isUsable = sqlite3_close(usableDatabase()) != SQLITE_OK;
    else if (state().type == "webservice"_L1)
        state().webServiceURL.reset();
}

std::optional<QString> DB::getWebServiceURL()
{
    return state().webServiceURL;
}

sqlite3 *DB::getDatabase()
{
    return state().handle;
}

QString DB::getDBType()
{
    if (state().type.isNull())
        state().type = u"webservice"_s;
    return state().type;
}

bool DB::isLocal()
{
    return state().type == "sqlite3"_L1;
}

sqlite3 *DB::usableDatabase()
{
    return state().isUsable ? state().handle : nullptr;
}

int DB::exec(const QString &sql)
{
    int code = -1;
    char *message = nullptr;
    if (isLocal()) {
        sqlite3 *const database = usableDatabase();
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

HttpLimits &DB::webServiceLimits()
{
    return state().webServiceLimits;
}

void DB::reset()
{
    for (sqlite3 *handle : state().earlierHandles)
        sqlite3_close(handle);
    sqlite3_close(usableDatabase());
    state() = State();
}

void DBSession::openDB()
{
    if (isDBOpen())
        return;
    if (const QString service = DB::configuredWebService(); !service.isEmpty())
        DB::open(service);
    else
        DB::open();
    state().isSessionOpen = true;
}

void DBSession::closeDB()
{
    if (!isDBOpen())
        return;
    DB::close();
    state().isSessionOpen = false;
}

bool DBSession::isDBOpen()
{
    return state().isSessionOpen;
}
