#include "PropertyListBinary.h"

#include <QDateTime>
#include <QTimeZone>
#include <QtEndian>

#include <bit>
#include <cmath>

namespace PropertyList
{

namespace
{

constexpr QByteArrayView signature("bplist00");
constexpr qsizetype trailerSize = 32;

/// A number of 1 to 8 bytes, the highest first.
quint64 bigEndian(QByteArrayView bytes)
{
    quint64 number = 0;
    for (const char byte : bytes)
        number = number << 8 | quint8(byte);
    return number;
}

/// An empty QVariant means "refused" throughout; no value of a property list is one.
class BinaryReader
{
public:
    BinaryReader(QByteArrayView bytes, const Limits &limits) : m_bytes(bytes), m_budget(limits) { }

    QVariant readDocument()
    {
        if (m_bytes.size() < signature.size() + trailerSize)
            return {};
        const QByteArrayView trailer = m_bytes.last(trailerSize);
        m_offsetWidth = quint8(trailer[6]);
        m_referenceWidth = quint8(trailer[7]);
        m_objectCount = bigEndian(trailer.sliced(8, 8));
        const quint64 topObject = bigEndian(trailer.sliced(16, 8));
        m_tableOffset = bigEndian(trailer.sliced(24, 8));
        if (m_offsetWidth < 1 || m_offsetWidth > 8 || m_referenceWidth < 1 || m_referenceWidth > 8)
            return {};
        m_end = quint64(m_bytes.size() - trailerSize);
        if (m_tableOffset > m_end || m_objectCount > (m_end - m_tableOffset) / m_offsetWidth)
            return {};
        return readObject(topObject);
    }

private:
    /// Bytes before the trailer, or a null view if they would pass it.
    QByteArrayView slice(quint64 offset, quint64 size) const
    {
        if (offset > m_end || size > m_end - offset)
            return {};
        return m_bytes.sliced(qsizetype(offset), qsizetype(size));
    }

    QVariant readObject(quint64 number)
    {
        if (number >= m_objectCount || !m_budget.takeObject())
            return {};
        const quint64 offset =
            bigEndian(slice(m_tableOffset + number * m_offsetWidth, m_offsetWidth));
        const QByteArrayView marker = slice(offset, 1);
        if (marker.isEmpty())
            return {};
        const int kind = quint8(marker[0]) >> 4;
        const quint8 low = quint8(marker[0]) & 0x0f;
        switch (kind) {
        case 0x0:
            return low == 8 || low == 9 ? QVariant(low == 9) : QVariant();
        case 0x1:
            return readInteger(slice(offset + 1, 1U << low));
        case 0x2:
            return readReal(slice(offset + 1, 1U << low));
        case 0x3:
            return low == 3 ? readDate(slice(offset + 1, 8)) : QVariant();
        default:
            return readCounted(kind, low, offset + 1);
        }
    }

    /// Kinds whose marker holds a count, or says that an integer object with the count follows.
    QVariant readCounted(int kind, quint8 low, quint64 offset)
    {
        quint64 count = low;
        if (low == 0x0f) {
            const QByteArrayView marker = slice(offset, 1);
            if (marker.isEmpty() || quint8(marker[0]) >> 4 != 0x1 || (marker[0] & 0x0f) > 3)
                return {};
            const QByteArrayView size = slice(offset + 1, 1U << (marker[0] & 0x0f));
            if (size.isNull())
                return {};
            count = bigEndian(size);
            offset += 1 + quint64(size.size());
        }
        if (count > m_end) // also keeps the products below from wrapping
            return {};
        switch (kind) {
        case 0x4:
            return readBytes(slice(offset, count));
        case 0x5:
            return readLatin(slice(offset, count));
        case 0x6:
            return readUtf16(slice(offset, count * 2));
        case 0xa:
            return readArray(slice(offset, count * m_referenceWidth));
        case 0xd:
            return readDictionary(slice(offset, count * 2 * m_referenceWidth));
        default:
            return {};
        }
    }

    /// Up to 4 bytes are unsigned, 8 bytes are signed; 16 bytes hold larger numbers.
    static QVariant readInteger(QByteArrayView bytes)
    {
        if (bytes.isNull() || bytes.size() > 16)
            return {};
        if (bytes.size() < 16)
            return qint64(bigEndian(bytes));
        if (bigEndian(bytes.first(8)) != 0)
            return {};
        return bigEndian(bytes.last(8));
    }

    static QVariant readReal(QByteArrayView bytes)
    {
        if (bytes.size() == 4)
            return double(std::bit_cast<float>(quint32(bigEndian(bytes))));
        return bytes.size() == 8 ? QVariant(std::bit_cast<double>(bigEndian(bytes))) : QVariant();
    }

    /// Seconds since 2001-01-01 00:00 UTC.
    static QVariant readDate(QByteArrayView bytes)
    {
        constexpr qint64 epoch = 978'307'200;
        constexpr double maxSeconds = 1e12; // some 30,000 years: further than the calendar reaches
        if (bytes.isNull())
            return {};
        const auto seconds = std::bit_cast<double>(bigEndian(bytes));
        if (!(std::abs(seconds) <= maxSeconds))
            return {};
        return QDateTime::fromMSecsSinceEpoch(epoch * 1000 + qint64(seconds * 1000), Qt::UTC);
    }

    QVariant readBytes(QByteArrayView bytes)
    {
        if (bytes.isNull() || !m_budget.takeBytes(quint64(bytes.size())))
            return {};
        return bytes.toByteArray();
    }

    QVariant readLatin(QByteArrayView bytes)
    {
        if (bytes.isNull() || !m_budget.takeBytes(quint64(bytes.size())))
            return {};
        return QString::fromLatin1(bytes);
    }

    QVariant readUtf16(QByteArrayView bytes)
    {
        if (bytes.isNull() || !m_budget.takeBytes(quint64(bytes.size())))
            return {};
        QString text(bytes.size() / 2, Qt::Uninitialized);
        qFromBigEndian<char16_t>(bytes.data(), text.size(), text.data());
        return text;
    }

    quint64 reference(QByteArrayView references, qsizetype index) const
    {
        return bigEndian(references.sliced(index * m_referenceWidth, m_referenceWidth));
    }

    QVariant readArray(QByteArrayView references)
    {
        if (references.isNull() || !m_budget.enter())
            return {};
        QVariantList list;
        for (qsizetype i = 0; i < references.size() / m_referenceWidth; ++i) {
            list.append(readObject(reference(references, i)));
            if (!list.last().isValid())
                return {};
        }
        m_budget.leave();
        return list;
    }

    /// The references of all keys come before those of the values.
    QVariant readDictionary(QByteArrayView references)
    {
        if (references.isNull() || !m_budget.enter())
            return {};
        QVariantMap map;
        const qsizetype count = references.size() / m_referenceWidth / 2;
        for (qsizetype i = 0; i < count; ++i) {
            const QVariant key = readObject(reference(references, i));
            if (key.metaType() != QMetaType::fromType<QString>())
                return {};
            const QVariant value = readObject(reference(references, count + i));
            if (!value.isValid())
                return {};
            map.insert(key.toString(), value);
        }
        m_budget.leave();
        return map;
    }

    QByteArrayView m_bytes;
    Budget m_budget;
    quint64 m_end = 0;
    quint64 m_tableOffset = 0;
    quint64 m_objectCount = 0;
    quint8 m_offsetWidth = 0;
    quint8 m_referenceWidth = 0;
};

} // namespace

bool isBinary(QByteArrayView bytes)
{
    return bytes.startsWith(signature);
}

QVariant readBinary(QByteArrayView bytes, const Limits &limits)
{
    return BinaryReader(bytes, limits).readDocument();
}

} // namespace PropertyList
