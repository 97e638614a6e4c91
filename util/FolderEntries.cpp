#include "FolderEntries.h"

#include <dirent.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace
{

// The record that getdents64 writes: a name of up to 255 bytes follows, records are aligned to 8.
struct Record {
    std::uint64_t inode;
    std::int64_t nextPosition;
    std::uint16_t length;
    unsigned char type;
};
constexpr std::size_t recordNameAt = 19;
constexpr std::size_t longestRecord = 512;

bool isDotOrDotDot(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

FolderEntries::FolderEntries(std::size_t capacity)
    : m_capacity(capacity), m_block(std::make_unique_for_overwrite<char[]>(capacity))
{
}

bool FolderEntries::read(int folder)
{
    constexpr std::size_t mostAtOnce = 128 * 1024; // More gains nothing and leaves the cache.
    m_used = 0;
    m_atEnd = false;
    while (m_capacity - m_used >= longestRecord) {
        const long count = ::syscall(SYS_getdents64, folder, m_block.get() + m_used,
                                     std::min(m_capacity - m_used, mostAtOnce));
        if (count < 0)
            return false;
        if (count == 0) {
            m_atEnd = true;
            break;
        }
        m_used += static_cast<std::size_t>(count);
    }
    return true;
}

std::pair<FolderEntries::Entry, std::size_t> FolderEntries::at(std::size_t position) const
{
    const char *const start = m_block.get() + position;
    Record record;
    std::memcpy(&record, start, recordNameAt);
    const char *const name = start + recordNameAt;
    return {Entry{.inode = record.inode,
                  .name = isDotOrDotDot(name) ? nullptr : name,
                  .isFolder = record.type == DT_DIR},
            position + record.length};
}
