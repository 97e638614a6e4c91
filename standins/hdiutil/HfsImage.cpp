#include "HfsImage.h"

#include "Failure.h"
#include "HfsNames.h"
#include "HfsVolume.h"
#include "ImageFile.h"
#include "SourceFolder.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

using standin::FileDescriptor;

namespace
{

// Packs a folder into an HFS Plus volume in one walk: a file's content is copied when the walk
// comes to it. A file counts as it is when it is opened: what is appended to it later stays out, a
// file that gets shorter ends where reading ended, and what vanishes before its turn is left out.
// What cannot be read fails the run. Hard links become files of their own, with the content each.
class FolderPacker
{
public:
    FolderPacker(hfs::Volume &volume, hfs::ImageFile &image, const standin::OutputFile &output);

    // `path` is the folder's name in messages.
    void pack(FileDescriptor root, const std::string &path);

    // Fifos, sockets and devices: HFS Plus volumes do not carry them to another machine.
    void warnOfSkipped() const;

private:
    struct Folder {
        FileDescriptor descriptor;
        std::uint32_t id;
        std::size_t pathLength; // of its own part of m_path
        std::vector<std::string> names;
        std::vector<std::u16string> storedNames;
        std::size_t next = 0;
    };

    void enter(FileDescriptor descriptor, std::uint32_t id);
    void packNext();
    void packFolder(const Folder &parent, std::size_t index);
    void packFile(const Folder &parent, std::size_t index);
    void packLink(const Folder &parent, std::size_t index, const struct stat &status);

    hfs::Volume &m_volume;
    hfs::ImageFile &m_image;
    std::vector<std::string> m_outputNames;
    struct stat m_outputFolder;
    std::vector<Folder> m_open; // from the root down to where the walk is
    std::string m_path; // of the current item, for messages
    std::size_t m_skipped = 0;
    std::string m_firstSkipped;
};

FolderPacker::FolderPacker(hfs::Volume &volume, hfs::ImageFile &image,
                           const standin::OutputFile &output)
    : m_volume(volume), m_image(image), m_outputNames(output.names())
{
    if (::stat(output.folder().c_str(), &m_outputFolder) != 0)
        standin::failWithError(output.folder(), errno);
}

void FolderPacker::pack(FileDescriptor root, const std::string &path)
{
    source::allowDeepFolders();
    m_path = path;
    enter(std::move(root), hfs::rootFolderId);
    while (!m_open.empty()) {
        if (m_open.back().next == m_open.back().names.size())
            m_open.pop_back();
        else
            packNext();
    }
}

void FolderPacker::enter(FileDescriptor descriptor, std::uint32_t id)
{
    const auto status = source::statusOf(descriptor, m_path);
    auto names = source::listNames(descriptor, m_path);
    if (status.st_dev == m_outputFolder.st_dev && status.st_ino == m_outputFolder.st_ino) {
        for (const std::string &name : m_outputNames)
            std::erase(names, name);
    }
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
    else if (++m_skipped == 1)
        m_firstSkipped = m_path;
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

void FolderPacker::warnOfSkipped() const
{
    if (m_skipped == 0)
        return;
    std::fprintf(stderr, "hdiutil: %s: Left out, as neither file, folder nor link (%zu in all)\n",
                 m_firstSkipped.c_str(), m_skipped);
}

} // namespace

void writeHfsImage(FileDescriptor folder, const std::string &source, const std::string &volumeName,
                   const standin::OutputFile &output, standin::Progress &progress)
{
    const auto counting = progress.countBeside([&source](const std::stop_token &stop) {
        return source::contentSize(source::openRoot(source), source, hfs::blockSize, stop);
    });
    hfs::ImageFile image(output.descriptor(), output.target(), &progress);
    hfs::Volume volume(image, hfs::volumeName(volumeName), source::statusOf(folder, source));
    FolderPacker packer(volume, image, output);
    packer.pack(std::move(folder), source);
    volume.finish();
    packer.warnOfSkipped();
}
