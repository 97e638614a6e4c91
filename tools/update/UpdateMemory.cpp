#include "UpdateMemory.h"

#include "UpdateFeed.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QSettings>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr qsizetype maxWithdrawn = 200;
constexpr auto lockTimeout = 2s;
constexpr auto skippedKey = "Update/Skipped"_L1;
constexpr auto checkTimeKey = "Update/LastCheck/Time"_L1;
constexpr auto checkResultKey = "Update/LastCheck/Result"_L1;
constexpr auto checkArgumentKey = "Update/LastCheck/Argument"_L1;

QDateTime dateOf(const QVariant &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODate).toUTC();
}

} // namespace

UpdateMemory::UpdateMemory(const QByteArray &publicKey)
    : m_group(u"Update/Key-"_s
              + QString::fromLatin1(
                  publicKey.toHex().first(std::min<qsizetype>(16, 2 * publicKey.size()))))
{
}

QDateTime UpdateMemory::newestFeed() const
{
    return dateOf(QSettings().value(m_group + u"/NewestFeed"_s));
}

QList<QVersionNumber> UpdateMemory::withdrawn() const
{
    QList<QVersionNumber> versions;
    const QStringList texts = QSettings().value(m_group + u"/Withdrawn"_s).toStringList();
    for (const QString &text : texts)
        versions += versionOf(text);
    return versions;
}

bool UpdateMemory::remember(const UpdateFeed &feed) const
{
    // Two programs may have fetched a feed each. Who cannot get the lock still compares.
    QSettings settings;
    QDir().mkpath(QFileInfo(settings.fileName()).path());
    QLockFile lock(settings.fileName() + u".feeds"_s);
    lock.tryLock(lockTimeout);
    settings.sync();
    const QDateTime newest = dateOf(settings.value(m_group + u"/NewestFeed"_s));
    if (newest.isValid() && feed.date < newest)
        return false;
    settings.setValue(m_group + u"/NewestFeed"_s, feed.date.toString(Qt::ISODate));
    QStringList texts = settings.value(m_group + u"/Withdrawn"_s).toStringList();
    for (const UpdateItem &item : feed.items) {
        if (item.withdrawn && !texts.contains(item.version.toString()))
            texts += item.version.toString();
    }
    settings.setValue(m_group + u"/Withdrawn"_s,
                      texts.mid(std::max<qsizetype>(0, texts.size() - maxWithdrawn)));
    settings.sync(); // before the lock is released
    return true;
}

QVersionNumber UpdateMemory::skipped()
{
    return versionOf(QSettings().value(skippedKey).toString());
}

void UpdateMemory::setSkipped(const QVersionNumber &version)
{
    QSettings().setValue(skippedKey, version.toString());
}

QString UpdateMemory::LastCheck::sentence(bool withResult) const
{
    if (!time.isValid())
        return {};
    const QString when = QLocale().toString(time.toLocalTime(), QLocale::ShortFormat);
    if (!withResult)
        return qtTrId("Update.LastCheck").arg(when);
    const QString text = qtTrId(result.toUtf8().constData());
    return qtTrId("Update.LastCheck.Result")
        .arg(when, argument.isEmpty() ? text : text.arg(argument));
}

UpdateMemory::LastCheck UpdateMemory::lastCheck()
{
    const QSettings settings;
    return {.time = dateOf(settings.value(checkTimeKey)),
            .result = settings.value(checkResultKey).toString(),
            .argument = settings.value(checkArgumentKey).toString()};
}

void UpdateMemory::setLastCheck(const LastCheck &check)
{
    QSettings settings;
    settings.setValue(checkTimeKey, check.time.toString(Qt::ISODate));
    settings.setValue(checkResultKey, check.result);
    settings.setValue(checkArgumentKey, check.argument);
}
