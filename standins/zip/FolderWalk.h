#pragma once

#include "Report.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A folder that stays open as long as the walk or an item found in it needs it.
using OpenFolder = std::shared_ptr<DIR>;

/// One entry of the archive to be: a folder or a regular file, links followed.
struct FoundItem {
    std::string name; ///< relative to the walk's folder; that of a folder ends in a slash
    struct stat status = {};
    OpenFolder folder; ///< in which a file lies, none for a folder
    std::string leaf; ///< the file's name there
};

/// Finds everything below the current folder in the order of the folders themselves, as `zip -r`
/// does: a folder comes before its contents, links are followed, pipes, devices, sockets and links
/// that lead nowhere are passed over. Anything else that is left out goes into the report, so does
/// a folder that contains itself through a link. Memory depends on the depth alone, which is
/// limited.
class FolderWalk
{
public:
    /// Each level keeps a descriptor and some 16 KiB.
    static constexpr std::size_t maxLevels = 1000;

    /// Opens the current folder. The report must outlive the walk.
    explicit FolderWalk(archive::Report &report, std::size_t levels = maxLevels);

    /// This file is not found: the archive itself, if it has a name meanwhile.
    void passOver(const struct stat &file) { m_own.push_back(idOf(file)); }

    /// None at the end.
    std::optional<FoundItem> next();

private:
    using Id = std::pair<dev_t, ino_t>;
    struct Level {
        OpenFolder folder;
        Id id;
        std::size_t nameLength; ///< of the part of m_path that names this folder
    };
    static Id idOf(const struct stat &status) { return {status.st_dev, status.st_ino}; }

    std::optional<FoundItem> look(const char *leaf);
    std::optional<FoundItem> enter(const char *leaf, FoundItem item);
    void open(int parent, const char *leaf, std::optional<Id> id);
    bool isPassedOver(const char *leaf, int error) const;
    int top() const { return ::dirfd(m_levels.back().folder.get()); }

    archive::Report &m_report;
    const std::size_t m_maxLevels;
    std::string m_path; ///< of the item that is looked at
    std::vector<Level> m_levels;
    std::vector<Id> m_own;
};
