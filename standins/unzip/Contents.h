#pragma once

#include "CentralDirectory.h"
#include "Report.h"

#include <sys/types.h>

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

/// What an archive holds, after everything about names and types was checked that can be checked
/// without its data.
struct Contents {
    enum class Kind { File, Folder, Link };

    struct Entry {
        std::string path = {}; ///< below the destination
        Kind kind = Kind::File;
        std::uint16_t method = 0;
        mode_t mode = 0; ///< permissions alone
        std::uint32_t crc = 0;
        std::uint64_t size = 0;
        std::uint64_t packedSize = 0;
        std::uint64_t data = 0; ///< where its data are in the file
        std::time_t time = 0;
    };

    /// What must not or cannot be unpacked goes into the report and is left out here. Fails with
    /// PartsOverlap, Damaged, NoArchive or MethodUnknown if nothing of it can be unpacked.
    static Contents read(const ArchiveFile &file, archive::Report &report);

    std::vector<Entry> entries;
    bool hasUnknownMethod = false; ///< those entries are among them
    bool isEncrypted = false; ///< some of it
};
