// Proves that a signature is accepted exactly when libsodium's own whole-message check accepts it,
// however the message arrives.

#include "Maker.h"
#include "SignatureCheck.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTest>

namespace
{

bool libraryAccepts(const QByteArray &message, const QByteArray &key, const QByteArray &signature)
{
    const auto bytes = [](const QByteArray &array) {
        return reinterpret_cast<const unsigned char *>(array.constData());
    };
    return crypto_sign_verify_detached(bytes(signature), bytes(message),
                                       static_cast<unsigned long long>(message.size()), bytes(key))
        == 0;
}

QByteArray flipped(QByteArray bytes, qsizetype bit)
{
    bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << (bit % 8)));
    return bytes;
}

// The same number modulo the group's order, written in another way.
QByteArray unreduced(QByteArray signature)
{
    const QByteArray order =
        QByteArray::fromHex("edd3f55c1a631258d69cf7a2def9de1400000000000000000000000000000010");
    int carry = 0;
    for (qsizetype i = 0; i < order.size(); ++i) {
        carry += uchar(signature[32 + i]) + uchar(order[i]);
        signature[32 + i] = static_cast<char>(carry & 0xff);
        carry >>= 8;
    }
    return signature;
}

} // namespace

class TestSignatureCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // RFC 8032, section 7.1.
    void acceptsTheStandardsVectors_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QByteArray>("signature");
        QTest::newRow("empty")
            << QByteArray("d75a980182b10ab7d54bfed3c964073a0ee172f3daa62325af021a68f707511a")
            << QByteArray()
            << QByteArray("e5564300c360ac729086e2cc806e828a84877f1eb8e5d974d873e06522490155"
                          "5fb8821590a33bacc61e39701cf9b46bd25bf5f0595bbe24655141438e7a100b");
        QTest::newRow("two bytes")
            << QByteArray("fc51cd8e6218a1a38da47ed00230f0580816ed13ba3303ac5deb911548908025")
            << QByteArray("af82")
            << QByteArray("6291d657deec24024827e69c3abe01a30ce548a284743a445e3680d7db5ac3ac"
                          "18ff9b538d16f290ae67f760984dc6594a7c15e9716ed28dc027beceea1ec40a");
    }
    void acceptsTheStandardsVectors()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, message);
        QFETCH(QByteArray, signature);
        QVERIFY(SignatureCheck::isValid(QByteArray::fromHex(message), QByteArray::fromHex(key),
                                        QByteArray::fromHex(signature)));
    }

    void agreesWithTheLibraryOnEveryFlippedBit()
    {
        const Maker maker;
        const QByteArray message("what the maker made");
        const QByteArray signature = maker.sign(message);
        QVERIFY(SignatureCheck::isValid(message, maker.publicKey, signature));
        int differences = 0;
        const auto compare = [&](const QByteArray &m, const QByteArray &k, const QByteArray &s) {
            const bool accepted = SignatureCheck::isValid(m, k, s);
            if (accepted || libraryAccepts(m, k, s))
                ++differences;
        };
        for (qsizetype bit = 0; bit < message.size() * 8; ++bit)
            compare(flipped(message, bit), maker.publicKey, signature);
        for (qsizetype bit = 0; bit < signature.size() * 8; ++bit)
            compare(message, maker.publicKey, flipped(signature, bit));
        for (qsizetype bit = 0; bit < maker.publicKey.size() * 8; ++bit)
            compare(message, flipped(maker.publicKey, bit), signature);
        compare(message, maker.publicKey, unreduced(signature));
        compare(message, QByteArray(32, '\0'), signature);
        compare(message, QByteArray(32, '\0'), QByteArray(64, '\0'));
        QCOMPARE(differences, 0);
    }

    void takesTheMessageInPiecesOfAnySize()
    {
        const Maker maker;
        QRandomGenerator random(7);
        for (int round = 0; round < 40; ++round) {
            QByteArray message(random.bounded(3000), '\0');
            for (char &byte : message)
                byte = static_cast<char>(random.bounded(256));
            SignatureCheck check(maker.publicKey, maker.sign(message));
            for (qsizetype at = 0; at < message.size();) {
                const qsizetype size =
                    std::min<qsizetype>(random.bounded(1, 300), message.size() - at);
                check.add(QByteArrayView(message).sliced(at, size));
                at += size;
            }
            QVERIFY(check.isValid());
        }
    }

    void readsADeviceToItsEnd()
    {
        const Maker maker;
        QByteArray message(1'000'000, 'm');
        const QByteArray signature = maker.sign(message);
        QBuffer device(&message);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QVERIFY(SignatureCheck::isValid(device, maker.publicKey, signature));
        message.back() = 'n';
        QVERIFY(device.seek(0));
        QVERIFY(!SignatureCheck::isValid(device, maker.publicKey, signature));
    }

    void refusesWhatIsNoKeyOrSignature()
    {
        const Maker maker;
        const QByteArray signature = maker.sign("m");
        QVERIFY(!SignatureCheck::isValid("m", {}, signature));
        QVERIFY(!SignatureCheck::isValid("m", maker.publicKey + 'x', signature));
        QVERIFY(!SignatureCheck::isValid("m", maker.publicKey, {}));
        QVERIFY(!SignatureCheck::isValid("m", maker.publicKey, signature.chopped(1)));
    }
};

QTEST_GUILESS_MAIN(TestSignatureCheck)
#include "tst_signature_check.moc"
