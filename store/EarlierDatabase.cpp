#include "EarlierDatabase.h"

#include "PropertyList.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <sqlite3.h>

#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::milliseconds busyTimeout{1000};

using Connection = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

// Not read-only: what a killed program left in the journal could not be read then.
Connection openExisting(const QString &path)
{
    sqlite3 *handle = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    if (handle)
        sqlite3_busy_timeout(handle, int(busyTimeout.count()));
    return {handle, &sqlite3_close};
}

// SQLITE_OK if the table is there with all the columns that its description names.
int findTable(sqlite3 *database, const QString &table)
{
    const QString description = ":/schema/"_L1 + table + ".plist"_L1;
    const QStringList fields = PropertyList::readDictionaryFile(description)
                                   .value_or(QVariantMap())
                                   .value(u"Fields"_s)
                                   .toStringList();
    QStringList columns;
    for (const QString &field : fields)
        columns << field.section(u' ', 0, 0);
    const QString sql = u"SELECT %1 FROM \"%2\""_s.arg(columns.join(u','), table);
    sqlite3_stmt *statement = nullptr;
    const int code =
        sqlite3_prepare_v2(database, sql.toUtf8().constData(), -1, &statement, nullptr);
    sqlite3_finalize(statement);
    return code;
}

bool isHeld(int code)
{
    return code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

// SQLITE_NOTFOUND for what some other program made.
int findOurTables(sqlite3 *database)
{
    const QStringList descriptions = QDir(u":/schema"_s).entryList({u"*.plist"_s});
    for (const QString &description : descriptions) {
        const int code = findTable(database, QFileInfo(description).completeBaseName());
        if (code == SQLITE_OK || isHeld(code))
            return code;
    }
    return SQLITE_NOTFOUND;
}

int copy(sqlite3 *from, sqlite3 *to)
{
    sqlite3_backup *backup = sqlite3_backup_init(to, "main", from, "main");
    if (!backup)
        return sqlite3_errcode(to);
    const int code = sqlite3_backup_step(backup, -1); // all pages
    sqlite3_backup_finish(backup);
    return code == SQLITE_DONE ? SQLITE_OK : code;
}

int copyTo(const QString &path, sqlite3 *earlier)
{
    QTemporaryFile temporary(path + u".XXXXXX"_s); // readable by its owner alone
    if (!temporary.open())
        return SQLITE_CANTOPEN;
    {
        const Connection copied = openExisting(temporary.fileName());
        if (const int code = copy(earlier, copied.get()))
            return code;
    }
    // Never in place of a file: another program may have done the same meanwhile.
    if (QFile::rename(temporary.fileName(), path))
        temporary.setAutoRemove(false);
    return QFileInfo::exists(path) ? SQLITE_OK : SQLITE_CANTOPEN;
}

} // namespace

int EarlierDatabase::takeOver(const QString &path)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString earlier = documents + "/DB.sqlite3"_L1;
    if (QFileInfo::exists(path) || !QFileInfo(earlier).isFile())
        return SQLITE_OK;
    const Connection database = openExisting(earlier);
    int code = findOurTables(database.get());
    if (code == SQLITE_NOTFOUND)
        return SQLITE_OK;
    if (code == SQLITE_OK)
        code = copyTo(path, database.get());
    if (code != SQLITE_OK)
        qWarning().noquote() << earlier.simplified() + u": not taken over: "_s
                + QString::fromUtf8(sqlite3_errstr(code));
    return code;
}
