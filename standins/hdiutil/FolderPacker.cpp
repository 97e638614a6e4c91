#include "FolderPacker.h"

#include "Failure.h"
#include "HfsNames.h"
#include "SourceFolder.h"

#include <algorithm>

namespace
{

hfs::Item itemFrom(hfs::ItemKind kind, const struct stat &status)
{
    hfs::Item item;
    item.kind = kind;
    item.permissions = status.st_mode & 0777;
    item.modified = hfs::dateFrom(status.st_mtime);
    return item;
}

} // namespace

bool Exclusion::holds(const struct stat &folder, const std::string &name) const
{
    return folder.st_dev == device && folder.st_ino == inode
        && std::find(names.begin(), names.end(), name) != names.end();
}

FolderPacker::FolderPacker(hfs::Volume &volume, hfs::ImageFile &image, Exclusion exclusion,
                           std::string path)
    : m_volume(volume), m_image(image), m_exclusion(std::move(exclusion)), m_path(std::move(path))
{
}

void FolderPacker::pack(standin::FileDescriptor root)
{
    source::allowDeepFolders();
    enter(std::move(root), hfs::rootFolderId);
    while (!m_open.empty()) {
        if (m_open.back().next == m_open.back().names.size())
            m_open.pop_back();
        else
            packNext();
    }
}

void FolderPacker::enter(standin::FileDescriptor descriptor, std::uint32_t id)
{
    const auto status = source::statusOf(descriptor, m_path);
    auto names = source::listNames(descriptor, m_path);
    std::erase_if(names, [&](const auto &name) { return m_exclusion.holds(status, name); });
    auto storedNames = hfs::itemNames(names);
    m_open.push_back(
        {std::move(descriptor), id, m_path.size(), std::move(names), std::move(storedNames)});
}

void FolderPacker::packNext()
{
    Folder &folder = m_open.back();
    const auto index = folder.next++;
    m_path.resize(folder.pathLength);
    m_path.append("/").append(standin::printable(folder.names[index]));
    const auto status = source::statusOf(folder.descriptor, folder.names[index], m_path);
    if (!status)
        return;
    if (S_ISDIR(status->st_mode))
        packFolder(folder, index);
    else if (S_ISREG(status->st_mode))
        packFile(folder, index);
    else if (S_ISLNK(status->st_mode))
        packLink(folder, index, *status);
    else
        skip();
}

// The last step moves the folders in memory: `parent` is not valid after it.
void FolderPacker::packFolder(const Folder &parent, std::size_t index)
{
    auto folder = source::openFolder(parent.descriptor, parent.names[index], m_path);
    if (!folder.isOpen())
        return;
    const auto item = itemFrom(hfs::ItemKind::Folder, source::statusOf(folder, m_path));
    const auto id = m_volume.catalog().add(parent.id, parent.storedNames[index], item);
    enter(std::move(folder), id);
}

void FolderPacker::packFile(const Folder &parent, std::size_t index)
{
    const auto file = source::openFile(parent.descriptor, parent.names[index], m_path);
    if (!file.isOpen())
        return;
    const auto status = source::statusOf(file, m_path);
    if (!m_volume.hasRoomFor(static_cast<std::uint64_t>(status.st_size)))
        standin::fail(m_path, "Too large for an HFS+ volume");
    auto item = itemFrom(hfs::ItemKind::File, status);
    m_volume.beginFork();
    item.data = m_volume.endFork(m_image.appendFile(file.number(), status, m_path));
    m_volume.catalog().add(parent.id, parent.storedNames[index], item);
}

void FolderPacker::packLink(const Folder &parent, std::size_t index, const struct stat &status)
{
    const auto target = source::linkTarget(parent.descriptor, parent.names[index], m_path);
    if (!target)
        return;
    auto item = itemFrom(hfs::ItemKind::Link, status);
    m_volume.beginFork();
    m_image.append({reinterpret_cast<const std::uint8_t *>(target->data()), target->size()});
    item.data = m_volume.endFork(target->size());
    m_volume.catalog().add(parent.id, parent.storedNames[index], item);
}

void FolderPacker::skip()
{
    if (++m_skipped == 1)
        m_firstSkipped = m_path;
}
