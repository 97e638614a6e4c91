#pragma once

#include <QByteArray>

class QFile;

/// Where versions are announced, and whose signature they must bear.
struct UpdateSource {
    QByteArray feedAddress; ///< Empty when none is set.
    QByteArray publicKey; ///< Ed25519, 32 bytes; empty when none was compiled in.

    /// What the user defaults hold under "Addresses/UpdateFeed", else what was compiled in, else
    /// empty. Any thread.
    static QByteArray configuredFeedAddress();

    /// The maker's key, compiled in and nothing else: who may change a settings file must not
    /// become the maker by it. Empty when there is none, or when it is not a key.
    static QByteArray compiledInKey();
};

/// Checks Ed25519 signatures (RFC 8032) with libsodium, which is loaded with the first one: the
/// program starts without it. A key or signature of another size makes everything invalid. Any
/// thread.
namespace UpdateSignature
{

/// False if libsodium is not installed: then nothing is ever valid.
bool isAvailable();

bool isValid(QByteArrayView message, const QByteArray &publicKey, const QByteArray &signature);

/// Over the whole open file. One without a name is not read into memory, however large it is. One
/// with a name is: somebody could cut it short under the map, and the program would crash.
bool isValid(QFile &message, const QByteArray &publicKey, const QByteArray &signature);

} // namespace UpdateSignature
