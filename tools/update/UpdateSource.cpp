#include "UpdateSource.h"

#include "LibrarySymbol.h"

#include <QFile>
#include <QSettings>

#include <sodium.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype pieceSize = 1024 * 1024;

struct Sodium {
    decltype(&crypto_sign_verify_detached) verify = nullptr;
    decltype(&crypto_generichash_init) hashInit = nullptr;
    decltype(&crypto_generichash_update) hashUpdate = nullptr;
    decltype(&crypto_generichash_final) hashFinal = nullptr;
};

bool load(Sodium &sodium)
{
    QLibrary library(u"sodium"_s, 23);
    decltype(&sodium_init) init = nullptr;
    return resolveSymbol(library, "sodium_init", init)
        && resolveSymbol(library, "crypto_sign_verify_detached", sodium.verify)
        && resolveSymbol(library, "crypto_generichash_init", sodium.hashInit)
        && resolveSymbol(library, "crypto_generichash_update", sodium.hashUpdate)
        && resolveSymbol(library, "crypto_generichash_final", sodium.hashFinal) && init() >= 0;
}

// The library, initialised; null if it is not installed.
const Sodium *libsodium()
{
    static Sodium sodium;
    static const bool isLoaded = load(sodium);
    return isLoaded ? &sodium : nullptr;
}

const unsigned char *bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.data());
}

class Hash
{
public:
    explicit Hash(const Sodium &sodium) : m_sodium(sodium)
    {
        m_sodium.hashInit(&m_state, nullptr, 0, crypto_generichash_BYTES);
    }

    void add(QByteArrayView bytes)
    {
        m_sodium.hashUpdate(&m_state, bytesOf(bytes),
                            static_cast<unsigned long long>(bytes.size()));
    }
    QByteArray result()
    {
        QByteArray hash(crypto_generichash_BYTES, '\0');
        m_sodium.hashFinal(&m_state, reinterpret_cast<unsigned char *>(hash.data()),
                           crypto_generichash_BYTES);
        return hash;
    }

private:
    const Sodium &m_sodium;
    crypto_generichash_state m_state;
};

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
    return libsodium() != nullptr;
}

bool UpdateSignature::isValid(QByteArrayView message, const QByteArray &publicKey,
                              const QByteArray &signature)
{
    return isAvailable() && publicKey.size() == crypto_sign_PUBLICKEYBYTES
        && signature.size() == crypto_sign_BYTES
        && libsodium()->verify(bytesOf(signature), bytesOf(message),
                               static_cast<unsigned long long>(message.size()), bytesOf(publicKey))
        == 0;
}

QByteArray UpdateSignature::hashIfValid(QFile &message, const QByteArray &publicKey,
                                        const QByteArray &signature)
{
    const qint64 size = message.size();
    uchar *map = hasName(message) ? nullptr : message.map(0, size);
    const QByteArray read = !map && message.seek(0) ? message.readAll() : QByteArray();
    const QByteArrayView bytes = map ? QByteArrayView(map, size) : QByteArrayView(read);
    QByteArray result;
    if (bytes.size() == size && isValid(bytes, publicKey, signature)) {
        Hash hash(*libsodium());
        hash.add(bytes);
        result = hash.result();
    }
    if (map)
        message.unmap(map);
    return result;
}

QByteArray UpdateSignature::hash(QFile &file, const std::stop_token &stop)
{
    if (!isAvailable() || !file.seek(0))
        return {};
    Hash hash(*libsodium());
    QByteArray piece(pieceSize, Qt::Uninitialized);
    qint64 count = 0;
    while (!stop.stop_requested() && (count = file.read(piece.data(), piece.size())) > 0)
        hash.add(QByteArrayView(piece).first(count));
    return count == 0 && !stop.stop_requested() ? hash.result() : QByteArray();
}
