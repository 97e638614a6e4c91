#pragma once

#include <QBuffer>
#include <QImage>
#include <QtEndian>

/// Pictures as a server might send them.
namespace Pictures
{

inline QByteArray png(int width, int height, Qt::GlobalColor color = Qt::red,
                      const char *format = "png")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

inline quint32 checksum(QByteArrayView bytes) // CRC-32 as in PNG, ISO 3309
{
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xedb88320U : 0U);
    }
    return ~crc;
}

/// A small file whose header claims another size: what counts is refused before it is unpacked.
inline QByteArray pngClaiming(int width, int height)
{
    QByteArray bytes = png(8, 8);
    qToBigEndian(quint32(width), bytes.data() + 16);
    qToBigEndian(quint32(height), bytes.data() + 20);
    qToBigEndian(checksum(QByteArrayView(bytes).sliced(12, 17)), bytes.data() + 29);
    return bytes;
}

} // namespace Pictures
