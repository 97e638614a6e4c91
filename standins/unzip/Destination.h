#pragma once

#include "FileDescriptor.h"

#include <sys/types.h>

#include <ctime>
#include <string>
#include <vector>

/// The folder that everything is unpacked into. The kernel resolves each path below it and refuses
/// whatever leads out, a link or another mount on the way included. Functions that can fail give an
/// error number, 0 for success.
class Destination
{
public:
    /// Makes the folder if it is missing. Fails with the system's words.
    explicit Destination(const std::string &path);

    /// Bytes that an ordinary user may still write there.
    std::uint64_t room() const;

    /// Makes what is missing on the way too. Fast for folders that follow each other.
    int makeFolder(const std::string &path);

    /// Never one that exists. Not open with errno on failure. The umask applies.
    standin::FileDescriptor createFile(const std::string &path, mode_t mode) const;
    /// For a file that could not be finished.
    void removeFile(const std::string &path) const;

    /// Never replaces anything.
    int createLink(const std::string &path, const std::string &target) const;

    /// Whether a link lies there. Links on the way to it count as well.
    bool isLink(const std::string &path) const;

    /// To be called when everything is in the folder.
    int finishFolder(const std::string &path, mode_t mode, std::time_t time) const;

private:
    struct Level {
        standin::FileDescriptor folder;
        std::size_t pathLength; ///< of the part of m_path that leads to it
    };
    struct Place {
        standin::FileDescriptor folder;
        std::string leaf;
    };
    standin::FileDescriptor open(const std::string &path, int flags, mode_t mode = 0) const;
    Place placeOf(const std::string &path) const;
    int enter(const std::string &component);

    standin::FileDescriptor m_root;
    mode_t m_mask;
    std::string m_path; ///< of the last folder that was made
    std::vector<Level> m_levels; ///< on the way to it
};
