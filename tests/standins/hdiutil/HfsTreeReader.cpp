#include "HfsTreeReader.h"

using namespace Qt::StringLiterals;

HfsTreeReader::HfsTreeReader(const uchar *start, quint64 size) : m_start(start)
{
    const uchar *header = start + 14;
    m_nodeSize = u16(header + 18);
    m_totalNodes = u32(header + 22);
    require(start[8] == 1 && u16(start + 10) == 3 && offsetIn(start, 2) == 248, u"header node"_s);
    require(quint64{m_totalNodes} * m_nodeSize == size && u32(header + 26) == 0, u"size"_s);
    if (u16(header) > 0)
        readNode(u32(header + 2), u16(header), nullptr);
    require(u32(header + 6) == quint32(m_records.size()), u"number of leaf records"_s);
    checkLeaves(header);
    checkMap();
}

void HfsTreeReader::require(bool holds, const QString &problem)
{
    if (!holds)
        m_problems += problem;
}

const uchar *HfsTreeReader::nodeAt(quint32 number) const
{
    return m_start + quint64{number} * m_nodeSize;
}

quint16 HfsTreeReader::offsetIn(const uchar *node, int record) const
{
    return u16(node + m_nodeSize - 2 * (record + 1));
}

HfsTreeReader::Record HfsTreeReader::recordAt(const uchar *at)
{
    const quint16 length = u16(at + 6);
    Record record{u32(at + 2), {}, at + 2 + u16(at)};
    for (int i = 0; i < length; ++i)
        record.name += QChar(u16(at + 8 + 2 * i));
    return record;
}

void HfsTreeReader::readNode(quint32 number, int height, const Record *expectedFirst)
{
    const uchar *node = nodeAt(number);
    ++m_nodesSeen;
    if (number == 0 || number >= m_totalNodes || node[9] != height
        || node[8] != (height == 1 ? 0xFF : 0))
        return require(false, u"node %1"_s.arg(number));
    if (height == 1)
        m_leaves += number;
    const Record first = recordAt(node + 14);
    if (expectedFirst != nullptr) {
        require(expectedFirst->parent == first.parent && expectedFirst->name == first.name,
                u"key in the index above node %1"_s.arg(number));
    }
    readRecords(node, height);
}

void HfsTreeReader::readRecords(const uchar *node, int height)
{
    const int count = u16(node + 10);
    require(count > 0 && offsetIn(node, 0) == 14, u"first record of a node"_s);
    for (int i = 0; i < count; ++i) {
        const quint16 offset = offsetIn(node, i);
        require(offset < offsetIn(node, i + 1)
                    && offsetIn(node, i + 1) <= m_nodeSize - 2 * (count + 1),
                u"offsets of a node"_s);
        const Record record = recordAt(node + offset);
        require(u16(node + offset) == 6 + 2 * record.name.size(), u"length of a key"_s);
        if (height == 1)
            m_records += record;
        else
            readNode(u32(record.data), height - 1, &record);
    }
}

void HfsTreeReader::checkLeaves(const uchar *header)
{
    const auto leaf = [this](qsizetype i) { return m_leaves.value(i); }; // 0 past either end
    require(u32(header + 10) == leaf(0), u"first leaf"_s);
    require(u32(header + 14) == leaf(m_leaves.size() - 1), u"last leaf"_s);
    for (qsizetype i = 0; i < m_leaves.size(); ++i) {
        require(u32(nodeAt(leaf(i))) == leaf(i + 1), u"link to the next leaf"_s);
        require(u32(nodeAt(leaf(i)) + 4) == leaf(i - 1), u"link to the leaf before"_s);
    }
}

// Each bit stands for a node; all nodes are used.
void HfsTreeReader::checkMap()
{
    quint32 bits = countMap(m_start, 2, 0);
    for (quint32 map = u32(m_start); map != 0; map = u32(nodeAt(map))) {
        if (map >= m_totalNodes || ++m_mapNodes > m_totalNodes)
            return require(false, u"link to a map node"_s);
        require(nodeAt(map)[8] == 2 && u16(nodeAt(map) + 10) == 1, u"map node"_s);
        bits += countMap(nodeAt(map), 0, bits);
    }
    require(bits >= m_totalNodes, u"size of the map"_s);
    require(m_nodesSeen + m_mapNodes == m_totalNodes, u"nodes that nothing leads to"_s);
}

quint32 HfsTreeReader::countMap(const uchar *node, int record, quint32 firstBit)
{
    quint32 bit = firstBit;
    for (int i = offsetIn(node, record); i < offsetIn(node, record + 1); ++i) {
        for (int mask = 0x80; mask != 0; mask >>= 1, ++bit) {
            if (((node[i] & mask) != 0) != (bit < m_totalNodes)) {
                require(false, u"map of nodes at %1"_s.arg(bit));
                return 0;
            }
        }
    }
    return bit - firstBit;
}
