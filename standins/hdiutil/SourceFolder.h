#pragma once

#include "FileDescriptor.h"

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

// The steps of reading a folder that changes meanwhile: everything goes by the descriptor of a
// folder and a name in it, so that depth has no limit and no link is followed, and nothing waits
// for a fifo. What has vanished gives nothing; any other error fails with the path given.
namespace source
{

/// Raises the limit of open files as far as it goes: a walk keeps one open for each level.
void allowDeepFolders();

/// The folder to pack, through links. Fails if it is not a folder or may not be read.
standin::FileDescriptor openRoot(const std::string &path);

/// All names but "." and "..", sorted by their bytes, so that one tree always gives one image.
std::vector<std::string> listNames(const standin::FileDescriptor &folder, const std::string &path);

/// Nothing if the item has vanished. A link is not followed.
std::optional<struct stat> statusOf(const standin::FileDescriptor &folder, const std::string &name,
                                    const std::string &path);

/// Not open if the item has vanished. Fail if it is not a folder, or a regular file, any more.
standin::FileDescriptor openFolder(const standin::FileDescriptor &parent, const std::string &name,
                                   const std::string &path);
standin::FileDescriptor openFile(const standin::FileDescriptor &parent, const std::string &name,
                                 const std::string &path);

/// Where a symbolic link leads; nothing if it has vanished.
std::optional<std::string> linkTarget(const standin::FileDescriptor &folder,
                                      const std::string &name, const std::string &path);

/// What the regular files of the folder and those below take, in bytes, each rounded up to whole
/// blocks. Fails if something cannot be read, folders are nested more than 100 levels, or it is
/// stopped. The folder was opened for this, as it is read once.
std::uint64_t contentSize(const standin::FileDescriptor &folder, const std::string &path,
                          std::uint32_t blockSize, const std::stop_token &stop, int levels = 100);

/// Status of what is open. Only this can be trusted: what has a name may be replaced at any time.
struct stat statusOf(const standin::FileDescriptor &file, const std::string &path);

} // namespace source
