#pragma once

#include <QByteArray>

#include <memory>

class QIODevice;

/// Checks an Ed25519 signature (RFC 8032, section 5.1.7) over bytes that arrive piece by piece.
///
/// libsodium checks such a signature only over a message that is in memory as a whole, and its
/// piecewise form is another kind of signature (Ed25519ph). An installation file may be larger than
/// what memory is there to spare, so the one equation is put together here, from the library's own
/// hash and curve operations. It accepts what the library's own check accepts, except for keys
/// outside the curve's main group, which no honest tool makes.
///
/// Any thread, one object each.
class SignatureCheck
{
public:
    static constexpr qsizetype keySize = 32;
    static constexpr qsizetype signatureSize = 64;

    /// False where libsodium is not installed: then nothing is ever valid.
    static bool isAvailable();

    /// A key or signature of another size makes everything invalid.
    SignatureCheck(const QByteArray &publicKey, const QByteArray &signature);
    ~SignatureCheck();
    SignatureCheck(const SignatureCheck &) = delete;
    SignatureCheck &operator=(const SignatureCheck &) = delete;

    void add(QByteArrayView bytes);
    /// Whether the signature is the key's over all that was added. Call once.
    bool isValid();

    /// The whole message at once.
    static bool isValid(QByteArrayView message, const QByteArray &publicKey,
                        const QByteArray &signature);
    /// From where the device stands to its end, without holding more than one piece in memory.
    static bool isValid(QIODevice &message, const QByteArray &publicKey,
                        const QByteArray &signature);

private:
    struct Hash;

    QByteArray m_key;
    QByteArray m_signature;
    std::unique_ptr<Hash> m_hash; ///< None when nothing can be valid.
};
