#include "LargeFile.h"

#include "System.h"

#include <algorithm>
#include <cerrno>

Piece LargeFile::read(Buffer &buffer)
{
    buffer.require(bufferSize);
    char *bytes = buffer.data() + dictionarySize;
    const std::size_t wanted = std::min<std::uint64_t>(pieceSize, m_size - m_position);
    std::ranges::copy(m_before, bytes - m_before.size());
    Piece piece{.dictionary = {bytes - m_before.size(), m_before.size()},
                .isFirst = m_position == 0};

    const ssize_t count = archive::readFully(m_file.number(), {bytes, wanted}, m_position);
    if (count < 0) {
        piece.error = errno;
        piece.isLast = true;
        return piece;
    }
    piece.bytes = {bytes, static_cast<std::size_t>(count)};
    m_position += piece.bytes.size();
    piece.isLast = piece.bytes.size() < wanted || m_position == m_size;
    m_before =
        piece.bytes.substr(piece.bytes.size() - std::min(piece.bytes.size(), dictionarySize));
    return piece;
}

ssize_t LargeFile::readAgain(std::span<char> bytes, std::uint64_t offset) const
{
    return archive::readFully(m_file.number(), bytes, offset);
}
