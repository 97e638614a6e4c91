#pragma once

#include <QByteArray>

#include <stop_token>

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

/// Over the whole open file: its hash() if the signature is right, else empty. Both are taken of
/// the same bytes. A file without a name is not read into memory, however large it is. One with a
/// name is: somebody could cut it short under the map, and the program would crash.
QByteArray hashIfValid(QFile &message, const QByteArray &publicKey, const QByteArray &signature);

/// BLAKE2b-256 over the whole open file, which is read piece by piece. Empty without libsodium,
/// after a stop request, and if the file cannot be read.
QByteArray hash(QFile &file, const std::stop_token &stop);

} // namespace UpdateSignature
