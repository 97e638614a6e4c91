#include "Deflater.h"

#include <new>

namespace
{

// Measured so that the archives are no larger than those of `zip -1`, and 1 % larger at most than
// those of `zip -9`.
constexpr int fastestWhole = 1;
constexpr int smallestWhole = 7;
constexpr int fastestPiece = 1;
constexpr int smallestPiece = 9;

constexpr int rawDeflate = -15; // a window of 32 KiB, no header

template <class Text>
auto *bytesOf(Text text)
{
    return reinterpret_cast<unsigned char *>(const_cast<char *>(text.data()));
}

} // namespace

void Deflater::End::operator()(libdeflate_compressor *compressor) const
{
    libdeflate_free_compressor(compressor);
}

void Deflater::End::operator()(z_stream *stream) const
{
    deflateEnd(stream);
    delete stream; // NOLINT: a unique_ptr's deleter
}

std::size_t Deflater::deflateWhole(std::string_view bytes, Buffer &output)
{
    if (isStoring() || bytes.size() < 2)
        return 0;
    if (!m_compressor)
        m_compressor.reset(
            libdeflate_alloc_compressor(m_level == Level::Fastest ? fastestWhole : smallestWhole));
    if (!m_compressor)
        throw std::bad_alloc();
    return libdeflate_deflate_compress(m_compressor.get(), bytes.data(), bytes.size(),
                                       output.data(), bytes.size() - 1);
}

z_stream &Deflater::stream()
{
    if (m_stream) {
        deflateReset(m_stream.get());
        return *m_stream;
    }
    auto stream = std::make_unique<z_stream>();
    const int level = m_level == Level::Fastest ? fastestPiece : smallestPiece;
    if (deflateInit2(stream.get(), level, Z_DEFLATED, rawDeflate, MAX_MEM_LEVEL, Z_DEFAULT_STRATEGY)
        != Z_OK)
        throw std::bad_alloc();
    m_stream.reset(stream.release());
    return *m_stream;
}

std::string_view Deflater::deflatePiece(const Piece &piece, Buffer &output)
{
    constexpr std::size_t flushSize = 64;
    z_stream &deflating = stream();
    output.require(deflateBound(&deflating, LargeFile::pieceSize) + flushSize);
    deflateSetDictionary(&deflating, bytesOf(piece.dictionary),
                         static_cast<uInt>(piece.dictionary.size()));
    deflating.next_in = bytesOf(piece.bytes);
    deflating.avail_in = static_cast<uInt>(piece.bytes.size());
    deflating.next_out = reinterpret_cast<unsigned char *>(output.data());
    deflating.avail_out = static_cast<uInt>(output.size());
    deflate(&deflating, piece.isLast ? Z_FINISH : Z_FULL_FLUSH);
    return {output.data(), output.size() - deflating.avail_out};
}
