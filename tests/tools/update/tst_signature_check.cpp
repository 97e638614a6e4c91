// Proves that a signature is accepted for the very message, key and bytes that it was made of, and
// for nothing else.

#include "Maker.h"
#include "SignatureCheck.h"

#include <QBuffer>
#include <QTest>

namespace
{

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
    void refusesEveryFlippedBitAndMadeUpKeys()
    {
        const Maker maker;
        const QByteArray message("what the maker made");
        const QByteArray signature = maker.sign(message);
        QVERIFY(SignatureCheck::isValid(message, maker.publicKey, signature));
        int accepted = 0;
        const auto check = [&](const QByteArray &m, const QByteArray &k, const QByteArray &s) {
            accepted += SignatureCheck::isValid(m, k, s) ? 1 : 0;
        };
        for (qsizetype bit = 0; bit < message.size() * 8; ++bit)
            check(flipped(message, bit), maker.publicKey, signature);
        for (qsizetype bit = 0; bit < signature.size() * 8; ++bit)
            check(message, maker.publicKey, flipped(signature, bit));
        for (qsizetype bit = 0; bit < maker.publicKey.size() * 8; ++bit)
            check(message, flipped(maker.publicKey, bit), signature);
        check(message, maker.publicKey, unreduced(signature));
        check(message, QByteArray(32, '\0'), QByteArray(64, '\0'));
        check(message, {}, signature);
        check(message, maker.publicKey + 'x', signature);
        check(message, maker.publicKey, {});
        check(message, maker.publicKey, signature.chopped(1));
        QCOMPARE(accepted, 0);
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
};

QTEST_GUILESS_MAIN(TestSignatureCheck)
#include "tst_signature_check.moc"
