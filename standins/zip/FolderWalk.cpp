#include "FolderWalk.h"

#include "System.h"
#include "ZipStatus.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

namespace
{

constexpr std::size_t maxNameLength = 65535; // of the format

OpenFolder openFolder(int parent, const char *leaf)
{
    const int number = ::openat(parent, leaf, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *folder = number < 0 ? nullptr : ::fdopendir(number);
    if (!folder && number >= 0)
        ::close(number);
    return folder ? OpenFolder(folder, ::closedir) : nullptr;
}

bool isDots(std::string_view name)
{
    return name == "." || name == "..";
}

} // namespace

FolderWalk::FolderWalk(archive::Report &report, std::size_t levels)
    : m_report(report), m_maxLevels(levels)
{
    archive::allowDeepFolders();
    open(AT_FDCWD, ".", std::nullopt);
}

std::optional<FoundItem> FolderWalk::next()
{
    while (!m_levels.empty()) {
        m_path.resize(m_levels.back().nameLength);
        errno = 0;
        const dirent *entry = ::readdir(m_levels.back().folder.get());
        if (entry && isDots(entry->d_name))
            continue;
        if (entry) {
            if (auto item = look(entry->d_name))
                return item;
            continue;
        }
        if (errno != 0)
            m_report.leftOut(SomethingMissing, m_path, errno);
        m_levels.pop_back();
    }
    return std::nullopt;
}

std::optional<FoundItem> FolderWalk::look(const char *leaf)
{
    m_path += leaf;
    FoundItem item;
    if (::fstatat(top(), leaf, &item.status, 0) != 0) {
        if (!isPassedOver(leaf, errno))
            m_report.leftOut(SomethingMissing, m_path, errno);
        return std::nullopt;
    }
    if (m_path.size() >= maxNameLength) {
        m_report.leftOut(SomethingMissing, m_path, ENAMETOOLONG);
        return std::nullopt;
    }
    if (S_ISDIR(item.status.st_mode))
        return enter(leaf, std::move(item));
    const bool isOwn = std::ranges::find(m_own, idOf(item.status)) != m_own.end();
    if (!S_ISREG(item.status.st_mode) || isOwn)
        return std::nullopt;
    item.name = m_path;
    item.folder = m_levels.back().folder;
    item.leaf = leaf;
    return item;
}

// Links that lead nowhere, or only to themselves.
bool FolderWalk::isPassedOver(const char *leaf, int error) const
{
    struct stat status;
    const bool leadsNowhere = error == ENOENT || error == ENOTDIR || error == ELOOP;
    const bool exists = ::fstatat(top(), leaf, &status, AT_SYMLINK_NOFOLLOW) == 0;
    errno = error;
    return leadsNowhere && exists && S_ISLNK(status.st_mode);
}

// An unreadable folder is kept as an entry without contents.
std::optional<FoundItem> FolderWalk::enter(const char *leaf, FoundItem item)
{
    const Id id = idOf(item.status);
    if (std::ranges::find(m_levels, id, &Level::id) != m_levels.end()) {
        m_report.leftOut(SomethingMissing, m_path, "A link to a folder that it lies in");
        return std::nullopt;
    }
    m_path += '/';
    item.name = m_path;
    open(top(), leaf, id);
    return item;
}

void FolderWalk::open(int parent, const char *leaf, std::optional<Id> id)
{
    const std::string &name = m_path.empty() ? leaf : m_path;
    OpenFolder folder = openFolder(parent, leaf);
    struct stat status = {};
    if (m_levels.size() == m_maxLevels)
        m_report.leftOut(SomethingMissing, name, "Too deep");
    else if (!folder || ::fstat(::dirfd(folder.get()), &status) != 0)
        m_report.leftOut(SomethingMissing, name, errno);
    else if (id && id != idOf(status)) // it could be one of those that it lies in
        m_report.leftOut(SomethingMissing, name, "It was replaced meanwhile");
    else
        m_levels.push_back({std::move(folder), idOf(status), m_path.size()});
}
