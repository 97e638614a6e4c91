#include "Packer.h"

#include "System.h"
#include "TurnSource.h"
#include "ZipStatus.h"

#include <libdeflate.h>

#include <algorithm>
#include <cerrno>

namespace
{

std::uint32_t crcOf(std::string_view bytes)
{
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

PackedTurn stored(FoundItem item, std::string_view bytes)
{
    return {.item = std::move(item), .crc = crcOf(bytes), .size = bytes.size(), .bytes = bytes};
}

} // namespace

PackedTurn Packer::pack(Turn turn)
{
    if (turn.large)
        return packPiece(std::move(turn));
    if (!turn.item.folder)
        return {.item = std::move(turn.item)};
    return packWhole(std::move(turn.item));
}

PackedTurn Packer::lost(FoundItem item, int error)
{
    m_report.leftOut(SomethingMissing, item.name, error);
    return {.item = std::move(item), .isLost = true};
}

PackedTurn Packer::packWhole(FoundItem item)
{
    const auto file = openFile(item);
    if (!file.isOpen())
        return lost(std::move(item), errno);
    const auto size = static_cast<std::size_t>(item.status.st_size);
    return size > TurnSource::maxSmallSize ? packBig(std::move(item), file)
                                           : packSmall(std::move(item), file);
}

// Some files, as those of /proc, have a content but no size.
PackedTurn Packer::packSmall(FoundItem item, const standin::FileDescriptor &file)
{
    m_input.require(LargeFile::bufferSize);
    m_output.require(TurnSource::maxSmallSize);
    const auto size = static_cast<std::size_t>(item.status.st_size);
    const std::size_t limit = size > 0 ? size : TurnSource::maxSmallSize + 1;
    const ssize_t count = archive::readFully(file.number(), {m_input.data(), limit}, 0);
    if (count < 0)
        return lost(std::move(item), errno);
    const std::string_view bytes{m_input.data(), static_cast<std::size_t>(count)};
    if (bytes.size() > TurnSource::maxSmallSize)
        return lost(std::move(item), EFBIG);
    PackedTurn packed = stored(std::move(item), bytes);
    if (const std::size_t smaller = m_deflater.deflateWhole(bytes, m_output)) {
        packed.method = format::Deflated;
        packed.bytes = {m_output.data(), smaller};
    }
    return packed;
}

PackedTurn Packer::packBig(FoundItem item, const standin::FileDescriptor &file)
{
    Buffer input(static_cast<std::size_t>(item.status.st_size));
    const ssize_t count = archive::readFully(file.number(), {input.data(), input.size()}, 0);
    if (count < 0)
        return lost(std::move(item), errno);
    const std::string_view bytes{input.data(), static_cast<std::size_t>(count)};
    PackedTurn packed = stored(std::move(item), bytes);
    Buffer output(m_deflater.isStoring() ? 0 : bytes.size());
    const std::size_t smaller = m_deflater.deflateWhole(bytes, output);
    if (smaller > 0) {
        packed.method = format::Deflated;
        packed.bytes = {output.data(), smaller};
    }
    packed.kept = std::move(smaller > 0 ? output : input);
    return packed;
}

PackedTurn Packer::packPiece(Turn turn)
{
    const Piece &piece = turn.piece;
    PackedTurn packed = stored(std::move(turn.item), piece.bytes);
    packed.large = std::move(turn.large);
    packed.isFirst = piece.isFirst;
    packed.isLast = piece.isLast;
    packed.isLost = piece.error != 0;
    if (packed.isLost)
        m_report.leftOut(SomethingMissing, packed.large->name(), piece.error);
    else if (!m_deflater.isStoring()) {
        packed.method = format::Deflated;
        packed.bytes = m_deflater.deflatePiece(piece, m_output);
    }
    return packed;
}
