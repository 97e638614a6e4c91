#pragma once

#include "Contents.h"
#include "Destination.h"
#include "EntryData.h"
#include "Progress.h"
#include "Report.h"

#include <atomic>
#include <mutex>
#include <span>
#include <vector>

/// Unpacks what an archive holds: folders, then files on all processors, then links, and last the
/// folders' times and modes, which the rest would change. Fails with NoRoom if the disk is full.
class Unpacker
{
public:
    Unpacker(const ArchiveFile &file, const Contents &contents, Destination &destination,
             archive::Report &report, standin::Progress &progress)
        : m_file(file), m_contents(contents), m_destination(destination), m_report(report),
          m_progress(progress)
    {
    }

    /// To be called once.
    void unpack();

private:
    using Entry = Contents::Entry;

    void makeFolders();
    void unpackFiles();
    std::span<const Entry *const> takeFiles();
    void unpackFile(EntryData &data, const Entry &entry);
    void makeLinks();
    void finishFolders();
    void leaveOut(const Entry &entry, int error);

    const ArchiveFile &m_file;
    const Contents &m_contents;
    Destination &m_destination;
    archive::Report &m_report;
    standin::Progress &m_progress;
    std::vector<const Entry *> m_files;
    std::vector<const Entry *> m_links;
    std::vector<const Entry *> m_folders;
    std::mutex m_mutex;
    std::size_t m_next = 0; ///< of the files
    std::size_t m_largeCount = 0; ///< of them, at the front
    std::atomic<bool> m_isStopped = false;
};
