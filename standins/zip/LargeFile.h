#pragma once

#include "Buffer.h"
#include "FileDescriptor.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// A part of a large file in a buffer, after what lies before it in the file, as far as deflate
/// looks back.
struct Piece {
    std::string_view dictionary = {};
    std::string_view bytes = {};
    bool isFirst = false;
    bool isLast = false;
    int error = 0; ///< why it could not be read
};

/// Reads a file piece by piece, never further than to the size that it had when it was opened. One
/// that changes meanwhile gives some of the bytes that it had, in order; one that shrinks ends
/// early.
class LargeFile
{
public:
    static constexpr std::size_t pieceSize = 1 << 20;
    static constexpr std::size_t dictionarySize = 1 << 15; ///< deflate's window
    static constexpr std::size_t bufferSize = dictionarySize + pieceSize;

    LargeFile(std::string name, standin::FileDescriptor file, std::uint64_t size)
        : m_name(std::move(name)), m_file(std::move(file)), m_size(size)
    {
    }

    const std::string &name() const { return m_name; } ///< in the archive

    /// The buffer has bufferSize bytes. To be called until the last piece.
    Piece read(Buffer &buffer);

    /// Reads once more from the start, for a file that did not get smaller. The number of bytes, 0
    /// at the end, -1 with errno. Independent of read().
    ssize_t readAgain(std::span<char> bytes, std::uint64_t offset) const;

private:
    std::string m_name;
    standin::FileDescriptor m_file;
    std::uint64_t m_size;
    std::uint64_t m_position = 0;
    std::string m_before; ///< the end of the last piece as it was read, whatever the file holds now
};
