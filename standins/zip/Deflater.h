#pragma once

#include "Buffer.h"
#include "LargeFile.h"

#include <libdeflate.h>
#include <zlib.h>

#include <memory>
#include <string_view>

/// How hard to try.
enum class Level { Store, Fastest, Smallest };

/// Makes raw deflate data. libdeflate is the faster by far, but takes whole files only; zlib
/// continues what another thread began.
class Deflater
{
public:
    /// One for each thread: it keeps what the libraries need between two calls.
    explicit Deflater(Level level) : m_level(level) { }

    bool isStoring() const { return m_level == Level::Store; }

    /// The number of bytes, or 0 if they would not be fewer. The output has room for as many as the
    /// input has.
    std::size_t deflateWhole(std::string_view bytes, Buffer &output);

    /// One piece of a stream, as a part that ends on a byte.
    std::string_view deflatePiece(const Piece &piece, Buffer &output);

private:
    struct End {
        void operator()(libdeflate_compressor *compressor) const;
        void operator()(z_stream *stream) const;
    };
    z_stream &stream();

    const Level m_level;
    std::unique_ptr<libdeflate_compressor, End> m_compressor;
    std::unique_ptr<z_stream, End> m_stream;
};
