#include "HfsBTree.h"

#include <algorithm>
#include <utility>

namespace hfs
{
namespace
{

constexpr std::uint16_t descriptorSize = 14;
constexpr std::uint16_t offsetSize = 2;
constexpr std::uint16_t headerRecordSize = 106;
constexpr std::uint16_t userRecordSize = 128;
constexpr std::uint16_t headerMapStart = descriptorSize + headerRecordSize + userRecordSize;

// "Node Descriptor".
enum NodeKind : std::uint8_t { LeafNode = 0xFF, IndexNode = 0, HeaderNode = 1, MapNode = 2 };

struct NodeDescriptor {
    std::uint32_t next;
    std::uint32_t previous;
    NodeKind kind;
    std::uint8_t height;
    std::size_t records;
};

void appendDescriptor(Bytes &node, const NodeDescriptor &descriptor)
{
    BigEndianWriter out(node);
    out.u32(descriptor.next).u32(descriptor.previous).u8(descriptor.kind).u8(descriptor.height);
    out.u16(static_cast<std::uint16_t>(descriptor.records)).u16(0);
}

// The offsets are at the end of a node in reverse order; the last one, of the free space, comes
// first ("Node Structure").
void appendOffsets(Bytes &node, const std::vector<std::uint16_t> &offsets, std::uint16_t nodeSize)
{
    BigEndianWriter out(node);
    out.zeros(nodeSize - node.size() - offsets.size() * offsetSize);
    std::for_each(offsets.rbegin(), offsets.rend(),
                  [&out](std::uint16_t offset) { out.u16(offset); });
}

// The part of the map for `bytes * 8` nodes from `firstNode` on; nodes below `total` are used.
void appendMap(Bytes &node, std::size_t bytes, std::uint64_t firstNode, std::uint64_t total)
{
    for (std::size_t i = 0; i < bytes; ++i) {
        const std::uint64_t first = firstNode + i * 8;
        const auto used = total <= first ? 0 : total - first >= 8 ? 8 : total - first;
        node.push_back(static_cast<std::uint8_t>(0xFF00U >> used));
    }
}

std::uint16_t headerMapSize(std::uint16_t nodeSize)
{
    return static_cast<std::uint16_t>(nodeSize - headerMapStart - 4 * offsetSize);
}

// Two bytes stay unused, so that the map's size is a multiple of four.
std::uint16_t mapNodeSize(std::uint16_t nodeSize)
{
    return static_cast<std::uint16_t>(nodeSize - descriptorSize - 2 * offsetSize - 2);
}

} // namespace

BTreeWriter::BTreeWriter(ImageFile &image, const BTreeForm &form)
    : m_image(image), m_form(form), m_start(image.position())
{
    m_image.append(Bytes(m_form.nodeSize)); // the header's place
}

void BTreeWriter::append(ByteView key, ByteView data)
{
    addRecord(key, data);
    ++m_leafRecords;
}

void BTreeWriter::addRecord(ByteView key, ByteView data)
{
    const auto size = descriptorSize + m_records.size() + key.size() + data.size()
        + (m_offsets.size() + 2) * offsetSize;
    if (size > m_form.nodeSize)
        closeNode(false);
    if (m_offsets.empty())
        m_level.push_back({Bytes(key.begin(), key.end()), m_node});
    m_offsets.push_back(static_cast<std::uint16_t>(descriptorSize + m_records.size()));
    m_records.insert(m_records.end(), key.begin(), key.end());
    m_records.insert(m_records.end(), data.begin(), data.end());
}

void BTreeWriter::closeNode(bool isLast)
{
    Bytes node;
    node.reserve(m_form.nodeSize);
    appendDescriptor(node,
                     {isLast ? 0 : m_node + 1, m_node == m_firstOfLevel ? 0 : m_node - 1,
                      m_height == 1 ? LeafNode : IndexNode, m_height, m_offsets.size()});
    node.insert(node.end(), m_records.begin(), m_records.end());
    m_offsets.push_back(static_cast<std::uint16_t>(node.size()));
    appendOffsets(node, m_offsets, m_form.nodeSize);
    m_image.append(node);
    m_records.clear();
    m_offsets.clear();
    m_totalNodes = ++m_node;
}

std::uint64_t BTreeWriter::finish()
{
    if (m_leafRecords > 0) {
        closeNode(true);
        m_lastLeaf = m_node - 1;
        while (m_level.size() > 1)
            writeIndexLevel(std::exchange(m_level, {}));
    }
    const auto mapNodes = mapNodesNeeded();
    m_totalNodes += mapNodes;
    writeMapNodes(mapNodes);
    writeHeader(mapNodes);
    return std::uint64_t{m_totalNodes} * m_form.nodeSize;
}

// "Index Nodes": each record is the first key of a child and the child's number.
void BTreeWriter::writeIndexLevel(const std::vector<Child> &children)
{
    ++m_height;
    m_firstOfLevel = m_node;
    for (const auto &child : children) {
        Bytes pointer;
        BigEndianWriter(pointer).u32(child.node);
        addRecord(child.key, pointer);
    }
    closeNode(true);
}

std::uint32_t BTreeWriter::mapNodesNeeded() const
{
    const std::uint32_t inHeader = headerMapSize(m_form.nodeSize) * 8U;
    const std::uint32_t inMapNode = mapNodeSize(m_form.nodeSize) * 8U;
    std::uint32_t nodes = 0;
    while (inHeader + std::uint64_t{nodes} * inMapNode < std::uint64_t{m_totalNodes} + nodes)
        ++nodes;
    return nodes;
}

void BTreeWriter::writeMapNodes(std::uint32_t count)
{
    const std::uint16_t size = mapNodeSize(m_form.nodeSize);
    std::uint64_t firstBit = headerMapSize(m_form.nodeSize) * 8U;
    for (std::uint32_t i = 0; i < count; ++i) {
        Bytes node;
        appendDescriptor(
            node, {i + 1 < count ? m_node + i + 1 : 0, i > 0 ? m_node + i - 1 : 0, MapNode, 0, 1});
        appendMap(node, size, firstBit, m_totalNodes);
        appendOffsets(node, {descriptorSize, static_cast<std::uint16_t>(node.size())},
                      m_form.nodeSize);
        m_image.append(node);
        firstBit += size * 8U;
    }
}

// "Header Node": header record, reserved user data record, map record.
void BTreeWriter::writeHeader(std::uint32_t mapNodes)
{
    const bool isEmpty = m_leafRecords == 0;
    Bytes node;
    appendDescriptor(node, {mapNodes > 0 ? m_node : 0, 0, HeaderNode, 0, 3});
    BigEndianWriter out(node);
    out.u16(isEmpty ? 0 : m_height).u32(isEmpty ? 0 : m_node - 1);
    out.u32(m_leafRecords).u32(isEmpty ? 0 : 1).u32(m_lastLeaf);
    out.u16(m_form.nodeSize).u16(m_form.maxKeyLength).u32(m_totalNodes);
    out.u32(0).u16(0); // free nodes, reserved
    const auto volumeSize = m_start + std::uint64_t{m_totalNodes} * m_form.nodeSize;
    out.u32(treeClumpSize(volumeSize, m_form.nodeSize, m_form.maxClumpSize));
    out.u8(0).u8(m_form.keyCompareType).u32(m_form.attributes).zeros(64);
    out.zeros(userRecordSize);
    appendMap(node, headerMapSize(m_form.nodeSize), 0, m_totalNodes);
    appendOffsets(node,
                  {descriptorSize, descriptorSize + headerRecordSize, headerMapStart,
                   static_cast<std::uint16_t>(node.size())},
                  m_form.nodeSize);
    m_image.writeAt(m_start, node);
}

} // namespace hfs
