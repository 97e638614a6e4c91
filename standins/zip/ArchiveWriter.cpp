#include "ArchiveWriter.h"

#include "System.h"
#include "ZipStatus.h"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace
{

constexpr std::size_t maxPending = 1 << 18;
constexpr std::size_t maxList = 4 << 20;
constexpr std::size_t copySize = 1 << 20;

} // namespace

void ArchiveWriter::add(const PackedTurn &packed)
{
    if (packed.large)
        addPiece(packed);
    else if (!packed.isLost)
        addWhole(packed);
}

void ArchiveWriter::addWhole(const PackedTurn &packed)
{
    const format::Entry entry{.name = packed.item.name,
                              .status = packed.item.status,
                              .method = packed.method,
                              .crc = packed.crc,
                              .size = packed.size,
                              .packedSize = packed.bytes.size(),
                              .offset = m_end};
    append(format::localHeader(entry));
    append(packed.bytes);
    list(entry);
}

void ArchiveWriter::addPiece(const PackedTurn &packed)
{
    if (packed.isFirst)
        begin(packed);
    m_isLargeLost = m_isLargeLost || packed.isLost;
    append(packed.bytes);
    m_large.crc = static_cast<std::uint32_t>(
        crc32_combine(m_large.crc, packed.crc, static_cast<z_off_t>(packed.size)));
    m_large.size += packed.size;
    if (packed.isLast)
        end(*packed.large);
}

// What the header says is put right at the end.
void ArchiveWriter::begin(const PackedTurn &packed)
{
    const auto size = static_cast<std::uint64_t>(packed.item.status.st_size);
    m_large = {.name = packed.item.name,
               .status = packed.item.status,
               .method = packed.method,
               .offset = m_end,
               .hasLongSizes = size >= format::longSize};
    m_isLargeLost = false;
    append(format::localHeader(m_large));
    m_largeData = m_end;
}

void ArchiveWriter::end(const LargeFile &file)
{
    flush();
    m_large.packedSize = m_end - m_largeData;
    if (m_isLargeLost) {
        m_end = m_large.offset;
        return;
    }
    if (m_large.method == format::Deflated && m_large.packedSize >= m_large.size)
        storeAgain(file);
    m_archive.write(m_large.offset, format::localHeader(m_large));
    list(m_large);
}

// What is written is over what did not get smaller. The file may have changed since.
void ArchiveWriter::storeAgain(const LargeFile &file)
{
    const std::uint64_t size = std::exchange(m_large.size, 0);
    m_large.method = format::Stored;
    m_large.crc = 0;
    m_end = m_largeData;
    const Buffer buffer(copySize);
    while (m_large.size < size) {
        const std::size_t wanted = std::min<std::uint64_t>(buffer.size(), size - m_large.size);
        const ssize_t count = file.readAgain({buffer.data(), wanted}, m_large.size);
        if (count < 0)
            failAs(SomethingMissing, m_large.name, std::strerror(errno));
        if (count == 0)
            break;
        const std::string_view bytes{buffer.data(), static_cast<std::size_t>(count)};
        m_large.crc = libdeflate_crc32(m_large.crc, bytes.data(), bytes.size());
        m_large.size += bytes.size();
        append(bytes);
    }
    flush();
    m_large.packedSize = m_large.size;
}

void ArchiveWriter::list(const format::Entry &entry)
{
    const std::string header = format::centralHeader(entry);
    ++m_count;
    if (m_list.size() + header.size() <= maxList) {
        m_list += header;
        return;
    }
    if (!m_earlierList.isOpen())
        m_earlierList = m_archive.scratchFile();
    NewArchive::write(m_earlierList, m_earlierSize, m_list, m_archive.target());
    m_earlierSize += m_list.size();
    m_list = header;
}

void ArchiveWriter::copyList()
{
    const Buffer buffer(copySize);
    for (std::uint64_t position = 0; position < m_earlierSize;) {
        const ssize_t count =
            archive::readFully(m_earlierList.number(), {buffer.data(), buffer.size()}, position);
        if (count <= 0)
            failAs(NoRoom, m_archive.target(), std::strerror(errno));
        append({buffer.data(), static_cast<std::size_t>(count)});
        position += static_cast<std::uint64_t>(count);
    }
    append(m_list);
}

void ArchiveWriter::publish()
{
    const std::uint64_t start = m_end;
    copyList();
    append(format::endRecords(m_count, start, m_end - start));
    flush();
    m_archive.publish(m_end);
}

void ArchiveWriter::append(std::string_view bytes)
{
    if (m_pending.size() + bytes.size() > maxPending)
        flush();
    m_end += bytes.size();
    if (bytes.size() > maxPending)
        m_archive.write(m_end - bytes.size(), bytes);
    else
        m_pending += bytes;
}

void ArchiveWriter::flush()
{
    m_archive.write(m_end - m_pending.size(), m_pending);
    m_pending.clear();
}
