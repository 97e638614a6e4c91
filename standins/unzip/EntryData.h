#pragma once

#include "Buffer.h"
#include "CentralDirectory.h"
#include "Contents.h"

#include <libdeflate.h>
#include <zlib.h>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

/// Gives the bytes of entries, stored or deflated, and checks every one of them: one for each
/// thread.
class EntryData
{
public:
    /// The file must outlive it.
    explicit EntryData(const ArchiveFile &file) : m_file(file) { }

    /// Whether both forms of it fit into the memory that a thread may use.
    static bool isSmall(const Contents::Entry &entry);

    /// All bytes of a small entry, which stay until the next call. None if the entry does not keep
    /// its size or checksum.
    std::optional<std::string_view> readWhole(const Contents::Entry &entry);

    /// Hands the bytes of any entry to the sink piece by piece, never more than its size. False if
    /// the entry does not keep its size or checksum, which shows at the end only.
    using Sink = std::function<void(std::string_view)>;
    bool readPieces(const Contents::Entry &entry, const Sink &sink);

private:
    struct End {
        void operator()(libdeflate_decompressor *decompressor) const;
        void operator()(z_stream *stream) const;
    };
    class Pieces;
    bool inflateWhole(std::string_view packed, std::size_t size);
    bool inflatePieces(const Contents::Entry &entry, const Sink &sink);
    bool copyPieces(const Contents::Entry &entry, const Sink &sink);

    const ArchiveFile &m_file;
    Buffer m_packed;
    Buffer m_bytes;
    std::unique_ptr<libdeflate_decompressor, End> m_decompressor;
};
