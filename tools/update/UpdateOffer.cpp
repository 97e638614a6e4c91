#include "UpdateOffer.h"

#include "SignatureCheck.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSettings>
#include <QSysInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 largestFile = 4LL * 1024 * 1024 * 1024;

bool suits(const UpdateItem &item, const UpdateRules &rules)
{
    return item.version > rules.installed && !item.withdrawn
        && !rules.withdrawn.contains(item.version)
        && (item.system.isEmpty() || item.system == rules.systemName)
        && (rules.system.isNull() || item.minimumSystem <= rules.system)
        && (item.channel.isEmpty() || item.channel == rules.channel);
}

bool canBeFetched(const UpdateItem &item)
{
    return item.signature.size() == SignatureCheck::signatureSize && item.length > 0
        && item.length <= largestFile && isSafeAddress(item.address);
}

} // namespace

UpdateRules UpdateRules::current()
{
    return {.installed =
                QVersionNumber::fromString(QCoreApplication::applicationVersion()).normalized(),
            .system = QVersionNumber::fromString(QSysInfo::kernelVersion()).normalized(),
            .systemName = QSysInfo::kernelType(),
            .channel = QSettings().value("Update/Channel"_L1).toString(),
            .withdrawn = {}};
}

std::optional<UpdateItem> chooseOffer(const UpdateFeed &feed, const UpdateRules &rules)
{
    // A feed may say that a version is withdrawn in one item and still hold its old one.
    UpdateRules all = rules;
    for (const UpdateItem &item : feed.items) {
        if (item.withdrawn)
            all.withdrawn += item.version;
    }
    std::optional<UpdateItem> best;
    for (const UpdateItem &item : feed.items) {
        if (suits(item, all) && canBeFetched(item) && (!best || item.version > best->version))
            best = item;
    }
    return best;
}

bool isSafeAddress(const QByteArray &address)
{
    constexpr QByteArrayView secure("https://");
    if (address.first(std::min(address.size(), secure.size())).compare(secure, Qt::CaseInsensitive)
        == 0)
        return address.size() > secure.size();
    // The text itself and nothing that takes it apart: two readers may see two hosts in
    // "http://127.0.0.1:80@elsewhere/".
    static const QRegularExpression ownMachine(
        uR"(\Ahttp://(127\.0\.0\.1|\[::1\])(:[0-9]{1,5})?/)"_s);
    return ownMachine.match(QString::fromLatin1(address)).hasMatch();
}

bool isPlainHttp(const QByteArray &address)
{
    constexpr QByteArrayView plain("http:");
    return address.first(std::min(address.size(), plain.size())).compare(plain, Qt::CaseInsensitive)
        == 0;
}
