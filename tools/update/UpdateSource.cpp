#include "UpdateSource.h"

#include "LibrarySymbol.h"

#include <QFile>
#include <QSettings>

#include <sodium.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace
{

using Verify = decltype(&crypto_sign_verify_detached);

Verify load()
{
    QLibrary library(u"sodium"_s, 23);
    decltype(&sodium_init) init = nullptr;
    Verify verify = nullptr;
    const bool isLoaded = resolveSymbol(library, "sodium_init", init)
        && resolveSymbol(library, "crypto_sign_verify_detached", verify) && init() >= 0;
    return isLoaded ? verify : nullptr;
}

Verify verifier()
{
    static const Verify verify = load();
    return verify;
}

const unsigned char *bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.data());
}

bool hasName(const QFile &file)
{
    struct stat status = {};
    return fstat(file.handle(), &status) != 0 || status.st_nlink > 0;
}

} // namespace

QByteArray UpdateSource::configuredFeedAddress()
{
    return QSettings()
        .value("Addresses/UpdateFeed"_L1, QLatin1String(TOOLVANE_UPDATE_FEED))
        .toString()
        .toUtf8();
}

QByteArray UpdateSource::compiledInKey()
{
    const QByteArray key = QByteArray::fromBase64(TOOLVANE_UPDATE_KEY);
    return key.size() == crypto_sign_PUBLICKEYBYTES ? key : QByteArray();
}

bool UpdateSignature::isAvailable()
{
    return verifier() != nullptr;
}

bool UpdateSignature::isValid(QByteArrayView message, const QByteArray &publicKey,
                              const QByteArray &signature)
{
    return isAvailable() && publicKey.size() == crypto_sign_PUBLICKEYBYTES
        && signature.size() == crypto_sign_BYTES
        && verifier()(bytesOf(signature), bytesOf(message),
                      static_cast<unsigned long long>(message.size()), bytesOf(publicKey))
        == 0;
}

bool UpdateSignature::isValid(QFile &message, const QByteArray &publicKey,
                              const QByteArray &signature)
{
    const qint64 size = message.size();
    uchar *map = hasName(message) ? nullptr : message.map(0, size);
    if (!map)
        return message.seek(0) && isValid(message.readAll(), publicKey, signature);
    const bool result = isValid(QByteArrayView(map, size), publicKey, signature);
    message.unmap(map);
    return result;
}
