#pragma once

#include "HfsFormat.h"
#include "Progress.h"

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <string>

namespace hfs
{

/// The image as it grows: bytes are appended through a buffer, so that thousands of small files
/// cost few system calls, and what is skipped stays a hole of the file. Every member fails with the
/// path given if the image cannot be written.
class ImageFile
{
public:
    /// Borrows a descriptor that is open for writing on an empty file, and the progress, which
    /// counts the bytes that are written.
    ImageFile(int descriptor, std::string path, standin::Progress *progress = nullptr);

    /// Where the next byte goes.
    std::uint64_t position() const { return m_bufferStart + m_used; }

    void append(ByteView bytes);

    /// Moves on to the next multiple of the alignment; the bytes between read as zero.
    void align(std::uint32_t alignment);

    /// Appends the content of a regular file of which fstat() gave `status`, keeping its holes, and
    /// gives the number of bytes that it had: never more than the size in `status`, less if it was
    /// shortened meanwhile. Read errors name `sourcePath`.
    std::uint64_t appendFile(int source, const struct stat &status, const std::string &sourcePath);

    /// Writes at a place before position(), which stays as it is.
    void writeAt(std::uint64_t offset, ByteView bytes);

    /// Writes what is in the buffer. To be called after the last append().
    void flush();

private:
    std::size_t room() const;
    void skip(std::uint64_t count);
    std::uint64_t appendRange(int source, std::uint64_t from, std::uint64_t to,
                              const std::string &sourcePath);
    std::uint64_t appendLastHole(int source, std::uint64_t from, std::uint64_t to,
                                 const std::string &sourcePath);
    void put(std::uint64_t offset, ByteView bytes);

    int m_descriptor;
    std::string m_path;
    standin::Progress *m_progress;
    std::uint64_t m_bufferStart = 0; // where the buffer belongs in the file
    std::size_t m_used = 0; // bytes in the buffer
    std::unique_ptr<std::uint8_t[]> m_buffer;
};

} // namespace hfs
