#include "SignatureCheck.h"

#include "SodiumLibrary.h"

#include <QIODevice>

#include <algorithm>
#include <array>

namespace
{

constexpr std::size_t elementSize = 32; // of a number modulo the group's order, of a point
constexpr qint64 pieceSize = 256 * 1024;

using Element = std::array<unsigned char, elementSize>;
using WideNumber = std::array<unsigned char, 2 * elementSize>;

const unsigned char *bytesOf(QByteArrayView bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.data());
}

Element elementAt(const QByteArray &bytes, qsizetype offset)
{
    Element element;
    std::copy_n(bytesOf(bytes) + offset, elementSize, element.begin());
    return element;
}

// One signature has one form: a number past the group's order would make another.
bool isReduced(const SodiumLibrary &sodium, const Element &number)
{
    WideNumber wide{};
    std::copy(number.begin(), number.end(), wide.begin());
    Element reduced;
    sodium.scalarReduce(reduced.data(), wide.data());
    return reduced == number;
}

} // namespace

struct SignatureCheck::Hash {
    crypto_hash_sha512_state state;
};

bool SignatureCheck::isAvailable()
{
    return SodiumLibrary::get() != nullptr;
}

SignatureCheck::SignatureCheck(const QByteArray &publicKey, const QByteArray &signature)
    : m_key(publicKey), m_signature(signature)
{
    const SodiumLibrary *sodium = SodiumLibrary::get();
    if (!sodium || publicKey.size() != keySize || signature.size() != signatureSize)
        return;
    m_hash = std::make_unique<Hash>();
    sodium->hashInit(&m_hash->state);
    add(QByteArrayView(signature).first(qsizetype(elementSize)));
    add(publicKey);
}

SignatureCheck::~SignatureCheck() = default;

void SignatureCheck::add(QByteArrayView bytes)
{
    if (m_hash)
        SodiumLibrary::get()->hashUpdate(&m_hash->state, bytesOf(bytes),
                                         static_cast<unsigned long long>(bytes.size()));
}

// A signature is a point R and a number s; with h the hash of R, the key A and the message it is
// valid when R = s·B - h·A, B being the curve's base point.
bool SignatureCheck::isValid()
{
    if (!m_hash)
        return false;
    const SodiumLibrary &sodium = *SodiumLibrary::get();
    const Element key = elementAt(m_key, 0);
    const Element point = elementAt(m_signature, 0);
    const Element number = elementAt(m_signature, qsizetype(elementSize));
    WideNumber digest;
    sodium.hashFinal(&m_hash->state, digest.data());
    Element hash;
    sodium.scalarReduce(hash.data(), digest.data());
    Element left;
    Element right;
    Element difference;
    return isReduced(sodium, number) && sodium.multiplyBase(left.data(), number.data()) == 0
        && sodium.multiply(right.data(), hash.data(), key.data()) == 0
        && sodium.subtract(difference.data(), left.data(), right.data()) == 0
        && difference == point;
}

bool SignatureCheck::isValid(QByteArrayView message, const QByteArray &publicKey,
                             const QByteArray &signature)
{
    SignatureCheck check(publicKey, signature);
    check.add(message);
    return check.isValid();
}

bool SignatureCheck::isValid(QIODevice &message, const QByteArray &publicKey,
                             const QByteArray &signature)
{
    SignatureCheck check(publicKey, signature);
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (;;) {
        const qint64 count = message.read(piece.data(), piece.size());
        if (count < 0)
            return false;
        if (count == 0)
            return check.isValid();
        check.add(QByteArrayView(piece).first(count));
    }
}
