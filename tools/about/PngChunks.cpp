#include "PngChunks.h"

#include <QList>
#include <QtEndian>

#include <zlib.h>

#include <algorithm>
#include <array>

namespace
{

constexpr QByteArrayView signature("\x89PNG\r\n\x1a\n");
constexpr qsizetype chunkFrame = 12; // length, type and checksum
constexpr qsizetype headerSize = 13;

quint32 numberAt(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.data() + at);
}

const Bytef *zlibBytes(QByteArrayView bytes)
{
    return reinterpret_cast<const Bytef *>(bytes.data());
}

struct Chunk {
    QByteArrayView type;
    QByteArrayView data;
    QByteArrayView whole;
};

/// The first chunk of the bytes; nothing if it is cut short or its checksum is wrong.
std::optional<Chunk> firstChunk(QByteArrayView bytes)
{
    if (bytes.size() < chunkFrame || numberAt(bytes, 0) > quint64(bytes.size() - chunkFrame))
        return {};
    const qsizetype size = numberAt(bytes, 0);
    const QByteArrayView checked = bytes.sliced(4, 4 + size);
    if (crc32(0, zlibBytes(checked), uInt(checked.size())) != numberAt(bytes, 8 + size))
        return {};
    return Chunk{checked.first(4), checked.sliced(4), bytes.first(chunkFrame + size)};
}

/// "IHDR": what the picture is like.
struct Header {
    quint32 width = 0;
    quint32 height = 0;
    int bitsOfPixel = 0; ///< 0 for a combination that the format does not have.
    bool isInterlaced = false;

    static Header read(QByteArrayView data)
    {
        const int depth = data[8];
        const int colour = data[9];
        const bool isByteOrTwo = depth == 8 || depth == 16;
        const bool isPowerOfTwo = depth == 1 || depth == 2 || depth == 4 || isByteOrTwo;
        int samples = 0;
        if (colour == 0 ? isPowerOfTwo : (colour == 3 && isPowerOfTwo && depth != 16))
            samples = 1;
        else if (isByteOrTwo && (colour == 2 || colour == 4 || colour == 6))
            samples = colour == 2 ? 3 : colour - 2; // grey or colour, with transparency: 2 or 4
        const bool isKnown = data[10] == 0 && data[11] == 0 && (data[12] == 0 || data[12] == 1);
        return {numberAt(data, 0), numberAt(data, 4), isKnown ? depth * samples : 0, data[12] == 1};
    }

    bool isWithin(quint32 maxSide) const
    {
        return bitsOfPixel > 0 && width > 0 && width <= maxSide && height > 0 && height <= maxSide;
    }

    /// Of the unpacked picture data: each line begins with a byte that names its filter.
    quint64 dataSize() const
    {
        struct Pass {
            quint32 x, y, stepX, stepY;
        };
        static constexpr std::array<Pass, 7> interlaced{{{0, 0, 8, 8},
                                                         {4, 0, 8, 8},
                                                         {0, 4, 4, 8},
                                                         {2, 0, 4, 4},
                                                         {0, 2, 2, 4},
                                                         {1, 0, 2, 2},
                                                         {0, 1, 1, 2}}};
        if (!isInterlaced)
            return sizeOf(width, height);
        quint64 size = 0;
        for (const Pass &pass : interlaced)
            size += sizeOf((width + pass.stepX - 1 - pass.x) / pass.stepX,
                           (height + pass.stepY - 1 - pass.y) / pass.stepY);
        return size;
    }

private:
    quint64 sizeOf(quint64 columns, quint64 lines) const
    {
        return columns == 0 ? 0 : lines * (1 + (columns * quint64(bitsOfPixel) + 7) / 8);
    }
};

/// Whether the data unpacks to just this size; takes no more memory than that.
bool unpacksTo(quint64 size, const QByteArray &data)
{
    QByteArray unpacked(qsizetype(size), Qt::Uninitialized);
    auto unpackedSize = uLongf(unpacked.size());
    return uncompress(reinterpret_cast<Bytef *>(unpacked.data()), &unpackedSize, zlibBytes(data),
                      uLong(data.size()))
        == Z_OK
        && unpackedSize == size;
}

/// What says how to show the picture, with the largest size that the format gives it; nothing in it
/// is compressed.
bool isSmallAndHarmless(const Chunk &chunk)
{
    struct Kind {
        QByteArrayView type;
        qsizetype maxSize;
    };
    static constexpr std::array<Kind, 8> kinds{{{"PLTE", 768},
                                                {"tRNS", 256},
                                                {"gAMA", 4},
                                                {"cHRM", 32},
                                                {"sRGB", 1},
                                                {"sBIT", 4},
                                                {"bKGD", 6},
                                                {"pHYs", 9}}};
    return std::any_of(kinds.begin(), kinds.end(), [&chunk](const Kind &kind) {
        return kind.type == chunk.type && chunk.data.size() <= kind.maxSize;
    });
}

} // namespace

std::optional<QByteArray> pictureOfPng(const QByteArray &bytes, quint32 maxSide)
{
    if (!bytes.startsWith(signature))
        return {};
    QByteArrayView rest = QByteArrayView(bytes).sliced(signature.size());
    std::optional<Chunk> chunk = firstChunk(rest);
    if (!chunk || chunk->type != QByteArrayView("IHDR") || chunk->data.size() != headerSize)
        return {};
    const Header header = Header::read(chunk->data);
    if (!header.isWithin(maxSide))
        return {};
    QByteArray data;
    QByteArray picture = signature.toByteArray() + chunk->whole.toByteArray();
    QList<QByteArrayView> seen; // each of the small ones counts once
    while (chunk && chunk->type != QByteArrayView("IEND")) {
        rest = rest.sliced(chunk->whole.size());
        chunk = firstChunk(rest);
        if (!chunk)
            return {};
        const bool isData = chunk->type == QByteArrayView("IDAT");
        if (isData)
            data += chunk->data;
        const bool isKept = isData || (isSmallAndHarmless(*chunk) && !seen.contains(chunk->type));
        if (isKept || chunk->type == QByteArrayView("IEND"))
            picture += chunk->whole;
        if (isKept && !isData)
            seen += chunk->type;
    }
    return unpacksTo(header.dataSize(), data) ? std::optional(picture) : std::nullopt;
}
