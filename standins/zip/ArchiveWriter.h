#pragma once

#include "NewArchive.h"
#include "Turn.h"
#include "ZipFormat.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Writes the archive's records in the order of the turns. The directory that ends it is gathered
/// meanwhile, in a file beside the archive if it becomes long.
class ArchiveWriter
{
public:
    /// The archive must outlive the writer.
    explicit ArchiveWriter(NewArchive &archive) : m_archive(archive) { }

    /// To be called with one turn after the other, by one thread at a time. Fails with NoRoom, or
    /// with SomethingMissing if a large file cannot be read a second time.
    void add(const PackedTurn &packed);

    /// Writes what ends the archive, and gives it its name.
    void publish();

    std::uint64_t entryCount() const { return m_count; }

private:
    void addWhole(const PackedTurn &packed);
    void addPiece(const PackedTurn &packed);
    void begin(const PackedTurn &packed);
    void end(const LargeFile &file);
    void storeAgain(const LargeFile &file);
    void list(const format::Entry &entry);
    void copyList();
    void append(std::string_view bytes);
    void flush();

    NewArchive &m_archive;
    std::uint64_t m_end = 0; ///< of what was appended so far
    std::string m_pending; ///< the end of that, not written yet
    format::Entry m_large; ///< the large file that is being written
    std::uint64_t m_largeData = 0; ///< where its data starts
    bool m_isLargeLost = false;
    std::uint64_t m_count = 0;
    std::string m_list; ///< the end of the directory
    standin::FileDescriptor m_earlierList; ///< what comes before that
    std::uint64_t m_earlierSize = 0;
};
