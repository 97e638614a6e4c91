#pragma once

#include <QByteArray>

#include <cstdint>
#include <stop_token>

/// What measuring a folder gave.
struct FolderMeasurement {
    std::int64_t bytes = 0;
    int error = 0; ///< errno if the folder itself cannot be opened; ENOENT if nothing is there.
    bool isPartial = false; ///< Something below could not be read.
};

/// Total size in bytes of everything below a folder at any depth: files, links and the sub-folders'
/// own entries; the folder itself is not counted, a file with several names counts once for each,
/// what is mounted below counts too. Links below are not followed; a path that is itself a link to
/// a folder is (a path means what it leads to). What cannot be read counts 0; a file, a missing or
/// unreadable folder, or a path with a NUL gives 0.
/// After a stop request it soon returns what it has added up so far.
/// Works on bytes, so with every name and at every depth; uses up to four threads; any thread.
FolderMeasurement measureFolder(const QByteArray &path, const std::stop_token &stop = {});

/// The bytes of measureFolder().
inline std::int64_t folderSize(const QByteArray &path, const std::stop_token &stop = {})
{
    return measureFolder(path, stop).bytes;
}
