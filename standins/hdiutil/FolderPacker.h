#pragma once

#include "FileDescriptor.h"
#include "HfsVolume.h"
#include "ImageFile.h"

#include <sys/stat.h>

#include <string>
#include <vector>

// Items of one folder that stay out of the image: the image itself and its temporary.
struct Exclusion {
    dev_t device = 0;
    ino_t inode = 0; // of the folder
    std::vector<std::string> names;

    bool holds(const struct stat &folder, const std::string &name) const;
};

// Packs a folder into an HFS Plus volume in one walk: a file's content is copied when the walk
// comes to it. A file counts as it is when it is opened: what is appended to it later stays out, a
// file that gets shorter ends where reading ended, and what vanishes before its turn is not there.
// What cannot be read fails the run. Hard links become files of their own, with the content each.
class FolderPacker
{
public:
    // `path` is the folder's name in messages.
    FolderPacker(hfs::Volume &volume, hfs::ImageFile &image, Exclusion exclusion, std::string path);

    void pack(standin::FileDescriptor root);

    // Fifos, sockets and devices: HFS Plus volumes do not carry them to another machine.
    std::size_t skipped() const { return m_skipped; }
    const std::string &firstSkipped() const { return m_firstSkipped; }

private:
    struct Folder {
        standin::FileDescriptor descriptor;
        std::uint32_t id;
        std::size_t pathLength; // of its own part of m_path
        std::vector<std::string> names;
        std::vector<std::u16string> storedNames;
        std::size_t next = 0;
    };

    void enter(standin::FileDescriptor descriptor, std::uint32_t id);
    void packNext();
    void packFolder(const Folder &parent, std::size_t index);
    void packFile(const Folder &parent, std::size_t index);
    void packLink(const Folder &parent, std::size_t index, const struct stat &status);
    void skip();

    hfs::Volume &m_volume;
    hfs::ImageFile &m_image;
    Exclusion m_exclusion;
    std::vector<Folder> m_open; // from the root down to where the walk is
    std::string m_path; // of the item at hand, for messages
    std::size_t m_skipped = 0;
    std::string m_firstSkipped;
};
