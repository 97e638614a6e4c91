#include "StoredGrant.h"

#include "MiscTool.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto key = "AuthorizedLocation"_L1;

} // namespace

bool StoredGrant::exists()
{
    return QSettings().contains(key);
}

QUrl StoredGrant::resolve()
{
    const QSettings settings;
    if (!settings.contains(key))
        return {};
    return MiscTool::urlForBookmark(settings.value(key).toByteArray()).value_or(QUrl());
}

void StoredGrant::store(const QByteArray &bookmark)
{
    QSettings settings;
    settings.setValue(key, bookmark);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        MiscTool::printMsg(u"StoredGrant"_s, u"store"_s,
                           u"cannot write %1"_s.arg(settings.fileName()));
}
