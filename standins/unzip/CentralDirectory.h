#pragma once

#include "Buffer.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// An archive that is open, with the name for messages.
struct ArchiveFile {
    int descriptor = -1;
    std::uint64_t size = 0;
    std::string path;

    /// Fails with Damaged if they are not there, whatever the reason.
    void read(std::uint64_t offset, char *bytes, std::size_t count) const;
};

/// What libzip does not give of the directory at an archive's end: where the entries lie, and their
/// names as bytes. Format: PKWARE's APPNOTE.TXT.
struct CentralDirectory {
    struct Item {
        std::string_view name; ///< in `bytes`
        std::uint64_t packedSize = 0;
        std::uint64_t size = 0;
        std::uint64_t header = 0; ///< the local one's offset in the file
        std::uint64_t data = 0; ///< see LocalHeaders.h
        std::uint32_t crc = 0;
        std::uint16_t method = 0;
        bool isEncrypted = false;
        bool isUnknown = false; ///< a patch, or in another volume
        bool isSound = false; ///< see LocalHeaders.h
    };

    /// Fails with NoArchive if there is none, MethodUnknown if there are several volumes, Damaged
    /// if it does not hold what it says. Memory follows the file's size, not what the file says.
    static CentralDirectory read(const ArchiveFile &file);

    std::uint64_t start = 0; ///< of the directory in the file
    std::uint64_t shift = 0; ///< what lies before the archive, such as a program that unpacks it
    Buffer bytes;
    std::vector<Item> items;
};
