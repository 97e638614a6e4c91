#include "IconName.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

bool isIconName(const QString &name)
{
    static const QRegularExpression decent(uR"(\A[A-Za-z0-9_-][A-Za-z0-9._-]{0,99}\z)"_s);
    // The list itself; the database with the journals that SQLite keeps beside it.
    static const QRegularExpression ours(uR"(\A(Apps\.plist|DB\.sqlite3.*)\z)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return decent.match(name).hasMatch() && !ours.match(name).hasMatch();
}

QByteArray iconAddress(const QString &server, const QString &name)
{
    static const QRegularExpression slashes(u"/+"_s);
    QString joined = server + u"images/"_s + name + u".png"_s;
    return joined.replace(slashes, u"/"_s).toUtf8();
}
