#include "EntryData.h"

#include <algorithm>
#include <new>

namespace
{

constexpr std::uint16_t stored = 0;
constexpr std::uint64_t maxWholeSize = 48 << 20; // of both forms together
constexpr std::size_t keptSize = 1 << 20; // larger buffers are given back
constexpr std::size_t pieceSize = 1 << 18;
constexpr int rawDeflate = -15; // a window of 32 KiB, no header

unsigned char *bytesOf(const Buffer &buffer)
{
    return reinterpret_cast<unsigned char *>(buffer.data());
}

std::uint32_t crcOf(std::uint32_t before, std::string_view bytes)
{
    return libdeflate_crc32(before, bytes.data(), bytes.size());
}

void shrink(Buffer &buffer)
{
    if (buffer.size() > keptSize)
        buffer = Buffer();
}

} // namespace

void EntryData::End::operator()(libdeflate_decompressor *decompressor) const
{
    libdeflate_free_decompressor(decompressor);
}

void EntryData::End::operator()(z_stream *stream) const
{
    inflateEnd(stream);
}

bool EntryData::isSmall(const Contents::Entry &entry)
{
    return entry.size <= maxWholeSize && entry.packedSize <= maxWholeSize - entry.size;
}

bool EntryData::inflateWhole(std::string_view packed, std::size_t size)
{
    if (!m_decompressor)
        m_decompressor.reset(libdeflate_alloc_decompressor());
    if (!m_decompressor)
        throw std::bad_alloc();
    std::size_t used = 0;
    std::size_t made = 0;
    const auto result = libdeflate_deflate_decompress_ex(
        m_decompressor.get(), packed.data(), packed.size(), m_bytes.data(), size, &used, &made);
    return result == LIBDEFLATE_SUCCESS && used == packed.size() && made == size;
}

std::optional<std::string_view> EntryData::readWhole(const Contents::Entry &entry)
{
    shrink(m_packed);
    shrink(m_bytes);
    m_packed.require(std::max<std::size_t>(entry.packedSize, 1));
    m_file.read(entry.data, m_packed.data(), entry.packedSize);
    std::string_view bytes(m_packed.data(), entry.packedSize);
    if (entry.method != stored) {
        m_bytes.require(std::max<std::size_t>(entry.size, 1));
        if (!inflateWhole(bytes, entry.size))
            return std::nullopt;
        bytes = {m_bytes.data(), entry.size};
    }
    if (bytes.size() != entry.size || crcOf(0, bytes) != entry.crc)
        return std::nullopt;
    return bytes;
}

// Counts and checks what goes to the sink.
class EntryData::Pieces
{
public:
    Pieces(const Contents::Entry &entry, const Sink &sink) : m_entry(entry), m_sink(sink) { }

    // False if it would be more than the entry's size.
    bool add(std::string_view bytes)
    {
        if (bytes.size() > m_entry.size - m_size)
            return false;
        m_size += bytes.size();
        m_crc = crcOf(m_crc, bytes);
        m_sink(bytes);
        return true;
    }
    bool isWhole() const { return m_size == m_entry.size && m_crc == m_entry.crc; }

private:
    const Contents::Entry &m_entry;
    const Sink &m_sink;
    std::uint64_t m_size = 0;
    std::uint32_t m_crc = 0;
};

bool EntryData::copyPieces(const Contents::Entry &entry, const Sink &sink)
{
    Pieces pieces(entry, sink);
    for (std::uint64_t done = 0; done < entry.packedSize;) {
        const std::size_t count = std::min<std::uint64_t>(pieceSize, entry.packedSize - done);
        m_file.read(entry.data + done, m_packed.data(), count);
        if (!pieces.add({m_packed.data(), count}))
            return false;
        done += count;
    }
    return pieces.isWhole();
}

bool EntryData::inflatePieces(const Contents::Entry &entry, const Sink &sink)
{
    z_stream inflating = {};
    if (inflateInit2(&inflating, rawDeflate) != Z_OK)
        throw std::bad_alloc();
    const std::unique_ptr<z_stream, End> end(&inflating);
    Pieces pieces(entry, sink);
    std::uint64_t taken = 0;
    int result = Z_OK;
    while (result == Z_OK) {
        if (inflating.avail_in == 0) {
            const std::size_t count = std::min<std::uint64_t>(pieceSize, entry.packedSize - taken);
            m_file.read(entry.data + taken, m_packed.data(), count);
            taken += count;
            inflating.next_in = bytesOf(m_packed);
            inflating.avail_in = static_cast<uInt>(count);
        }
        inflating.next_out = bytesOf(m_bytes);
        inflating.avail_out = pieceSize;
        result = inflate(&inflating, Z_NO_FLUSH); // Z_BUF_ERROR if nothing was left to take
        if (!pieces.add({m_bytes.data(), pieceSize - inflating.avail_out}))
            return false;
    }
    return result == Z_STREAM_END && inflating.avail_in == 0 && taken == entry.packedSize
        && pieces.isWhole();
}

bool EntryData::readPieces(const Contents::Entry &entry, const Sink &sink)
{
    m_packed.require(pieceSize);
    m_bytes.require(pieceSize);
    return entry.method == stored ? copyPieces(entry, sink) : inflatePieces(entry, sink);
}
