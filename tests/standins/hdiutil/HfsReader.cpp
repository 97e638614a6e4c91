#include "HfsReader.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr bool isIgnored(char16_t c)
{
    return (c >= 0x200C && c <= 0x200F) || (c >= 0x202A && c <= 0x202E)
        || (c >= 0x206A && c <= 0x206F) || c == 0xFEFF;
}

// How a system that has the whole table of folded characters compares names.
QString folded(const QString &name, bool isCaseSensitive)
{
    if (isCaseSensitive)
        return name;
    QString result;
    for (const QChar c : name) {
        if (!isIgnored(c.unicode()))
            result += c.toLower();
    }
    return result;
}

} // namespace

HfsReader::HfsReader(const QString &image) : m_file(image)
{
    require(m_file.open(QIODevice::ReadOnly) && m_file.size() > 4096, u"cannot be opened"_s);
    m_image = m_problems.isEmpty() ? m_file.map(0, m_file.size()) : nullptr;
    if (m_image != nullptr)
        readHeader();
}

void HfsReader::require(bool holds, const QString &problem)
{
    if (!holds)
        m_problems += problem;
}

void HfsReader::readHeader()
{
    const uchar *header = m_image + 1024;
    m_isCaseSensitive = u16(header) == 0x4858;
    require(u32(header) == (m_isCaseSensitive ? 0x48580005 : 0x482B0004), u"signature"_s);
    require(u32(header + 4) == 0x8100 && u32(header + 12) == 0, u"volume attributes"_s);
    require(std::equal(header, header + 512, m_image + m_file.size() - 1024), u"header copy"_s);
    m_blockSize = u32(header + 40);
    m_blocks = u32(header + 44);
    require(qint64{m_blocks} * m_blockSize == m_file.size(), u"number of blocks"_s);
    require(u32(header + 48) == 0, u"free blocks"_s);
    m_usedBlocks = {{0, 1}, {m_blocks - 1, 1}};
    const Fork allocation = fork(header + 112, u"allocation"_s);
    require(readTree(fork(header + 192, u"extents"_s)).isEmpty(), u"extents tree"_s);
    const Records records = readTree(fork(header + 272, u"catalog"_s));
    checkOrder(records);
    readThreads(records);
    for (const auto &record : records)
        readItem(record);
    checkCounts();
    checkBlocks(allocation);
}

HfsReader::Fork HfsReader::fork(const uchar *at, const QString &what)
{
    const quint64 size = qFromBigEndian<quint64>(at);
    const Fork result{size, quint64{u32(at + 16)} * m_blockSize, u32(at + 16), u32(at + 20)};
    require(result.blocks == u32(at + 12) && result.blocks == (size + m_blockSize - 1) / m_blockSize
                && std::all_of(at + 24, at + 80, [](uchar byte) { return byte == 0; })
                && result.offset + size <= quint64(m_file.size()),
            u"extent of "_s + what);
    if (result.blocks > 0) {
        require(!m_usedBlocks.contains(result.firstBlock), u"shared block of "_s + what);
        m_usedBlocks.insert(result.firstBlock, result.blocks);
    }
    return result;
}

HfsReader::Records HfsReader::readTree(const Fork &file)
{
    const HfsTreeReader tree(m_image + file.offset, file.size);
    m_problems += tree.problems();
    return tree.records();
}

void HfsReader::checkOrder(const Records &records)
{
    for (qsizetype i = 1; i < records.size(); ++i) {
        const auto &before = records[i - 1];
        const auto &now = records[i];
        const bool isAscending = before.parent < now.parent
            || (before.parent == now.parent
                && folded(before.name, m_isCaseSensitive) < folded(now.name, m_isCaseSensitive));
        require(isAscending, u"order of "_s + now.name);
    }
}

void HfsReader::readThreads(const Records &records)
{
    for (const auto &record : records) {
        if (const quint16 type = u16(record.data); type == 3 || type == 4) {
            require(record.name.isEmpty(), u"name in a thread's key"_s);
            m_threads.insert(record.parent, HfsTreeReader::recordAt(record.data + 2));
        }
    }
}

QString HfsReader::pathOf(quint32 id) const
{
    QStringList names;
    for (; id > 2 && m_threads.contains(id) && names.size() < 10'000; id = m_threads[id].parent)
        names.prepend(QString(m_threads[id].name).replace(u'/', u':'));
    return names.join(u'/');
}

void HfsReader::readItem(const HfsTreeReader::Record &record)
{
    const quint16 type = u16(record.data);
    if (type > 2)
        return;
    const quint32 id = u32(record.data + 8);
    const auto thread = m_threads.constFind(id);
    require(thread != m_threads.cend() && thread->parent == record.parent
                && thread->name == record.name,
            u"thread of "_s + record.name);
    Item item;
    item.isFolder = type == 1;
    item.modified = u32(record.data + 16);
    item.mode = u16(record.data + 42);
    if (item.isFolder) {
        m_promised[id] = {u32(record.data + 4), u32(record.data + 84)};
    } else {
        const Fork data = fork(record.data + 88, record.name);
        item.isLink = u32(record.data + 48) == 0x736C6E6B && item.mode == 0120777;
        item.size = data.size;
        item.offset = data.offset;
    }
    if (id == 2) {
        m_volumeName = record.name;
        return;
    }
    ++m_held[record.parent].first;
    m_held[record.parent].second += item.isFolder && m_isCaseSensitive ? 1 : 0;
    m_items.insert(pathOf(id), item);
}

void HfsReader::checkCounts()
{
    for (auto folder = m_promised.cbegin(); folder != m_promised.cend(); ++folder)
        require(folder.value() == m_held.value(folder.key()), u"number of items in a folder"_s);
    const uchar *header = m_image + 1024;
    const auto folders = quint32(m_promised.size()) - 1;
    require(m_promised.contains(2) && m_held.size() <= m_promised.size(), u"root folder"_s);
    require(u32(header + 36) == folders, u"number of folders"_s);
    require(u32(header + 32) == quint32(m_items.size()) - folders, u"number of files"_s);
    require(m_threads.size() == m_items.size() + 1 && u32(header + 64) > m_threads.lastKey(),
            u"numbers of items"_s);
}

// Every block belongs to exactly one extent and the bitmap says so.
void HfsReader::checkBlocks(const Fork &allocation)
{
    quint32 next = 0;
    for (auto extent = m_usedBlocks.cbegin(); extent != m_usedBlocks.cend(); ++extent) {
        require(extent.key() == next, u"gap or overlap at block %1"_s.arg(next));
        next = extent.key() + extent.value();
    }
    require(next == m_blocks && allocation.size * 8 >= m_blocks, u"blocks in extents"_s);
    const uchar *bits = m_image + allocation.offset;
    for (quint64 block = 0; block < allocation.size * 8; ++block) {
        const bool isUsed = ((bits[block / 8] << (block % 8)) & 0x80) != 0;
        if (isUsed != (block < m_blocks))
            return require(false, u"bitmap at block %1"_s.arg(block));
    }
}

QByteArray HfsReader::content(const QString &path) const
{
    const Item item = m_items.value(path);
    return {reinterpret_cast<const char *>(m_image + item.offset), qsizetype(item.size)};
}
