#pragma once

#include "Buffer.h"
#include "FolderWalk.h"
#include "LargeFile.h"
#include "ZipFormat.h"

#include <cstdint>
#include <memory>
#include <string_view>

/// Memory of one that waits to be written, beside its name and its bytes.
constexpr std::size_t turnOverhead = 512;

/// One piece of work, in the order of the archive: a folder, a whole file, or a piece of a large
/// file.
struct Turn {
    std::uint64_t number = 0;
    FoundItem item; ///< of a large file only with its first piece
    std::shared_ptr<LargeFile> large; ///< if it is a piece
    Piece piece = {};
    std::size_t reserved = 0; ///< memory that is set aside for it
};

/// What has become of it.
struct PackedTurn {
    FoundItem item = {};
    std::shared_ptr<LargeFile> large = {};
    bool isFirst = false; ///< of the pieces of a large file
    bool isLast = false;
    bool isLost = false; ///< it could not be read, and the report says so
    format::Method method = format::Stored;
    std::uint32_t crc = 0;
    std::uint64_t size = 0;
    std::string_view bytes = {}; ///< packed; in `kept`, or in a buffer of the worker's
    Buffer kept = {};
};
