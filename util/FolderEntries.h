#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

/// The entries of a folder as the kernel hands them out: names are bytes, "." and ".." are left
/// out, nothing is sorted. One object serves many folders one after the other and holds one block
/// of memory of fixed size, of which only what was ever filled is taken from the system.
class FolderEntries
{
public:
    struct Entry {
        std::uint64_t inode = 0;
        const char *name = nullptr; ///< Valid until the next read().
        bool isFolder = false; ///< Some file systems do not tell: false may still be a folder.
    };

    explicit FolderEntries(std::size_t capacity);

    /// Fills the block with the entries that follow; false where the folder cannot be read (errno).
    bool read(int folder);
    /// Whether the last read() reached the end of the folder.
    bool atEnd() const { return m_atEnd; }

    /// Calls visit(Entry, position) for every entry that the last read() brought.
    template <class Visit>
    void forEach(Visit visit) const
    {
        for (std::size_t position = 0; position < m_used;) {
            const auto [entry, next] = at(position);
            if (entry.name)
                visit(entry, position);
            position = next;
        }
    }
    Entry entryAt(std::size_t position) const { return at(position).first; }

private:
    std::pair<Entry, std::size_t> at(std::size_t position) const;

    std::size_t m_capacity;
    std::unique_ptr<char[]> m_block;
    std::size_t m_used = 0;
    bool m_atEnd = false;
};
