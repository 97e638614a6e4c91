// Icons come from a server: no bytes may crash what takes the picture out of them, and what it lets
// through is whole in itself and never more than came. The checksums of the chunks are made right
// first: else nothing that the fuzzer changes would get past them.

#include "PngChunks.h"

#include <QtEndian>

#include <zlib.h>

#include <cstdint>
#include <cstdlib>

static QByteArray withChecksums(QByteArray bytes)
{
    for (qsizetype at = 8; at + 12 <= bytes.size();) {
        const quint64 size = qFromBigEndian<quint32>(bytes.data() + at);
        if (size > quint64(bytes.size() - at - 12))
            break;
        const auto *data = reinterpret_cast<const Bytef *>(bytes.constData()) + at + 4;
        qToBigEndian(quint32(crc32(0, data, uInt(size + 4))), bytes.data() + at + 8 + size);
        at += qsizetype(size) + 12;
    }
    return bytes;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr quint32 maxSide = 64;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    pictureOfPng(bytes, maxSide);
    const QByteArray sound = withChecksums(bytes);
    const auto picture = pictureOfPng(sound, maxSide);
    if (picture && (picture->size() > sound.size() || pictureOfPng(*picture, maxSide) != picture))
        std::abort();
    return 0;
}
