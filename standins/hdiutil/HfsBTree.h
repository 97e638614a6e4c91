#pragma once

#include "HfsFormat.h"
#include "ImageFile.h"

namespace hfs
{

/// What distinguishes one B-tree of a volume from another.
struct BTreeForm {
    std::uint16_t nodeSize; ///< bytes
    std::uint16_t maxKeyLength; ///< bytes, without the length field
    std::uint8_t keyCompareType; ///< see "HFSX"
    std::uint32_t attributes; ///< see "Header Record"
    std::uint32_t maxClumpSize; ///< bytes
};

/// Writes a B-tree from records that come in ascending order (TN1150, "B-Trees"). Node 0 is the
/// header, the leaves follow in order, then each level of the index, then the nodes that continue
/// the map of used nodes. Every node is full but the last of its level.
class BTreeWriter
{
public:
    /// Borrows the image. The tree starts where the image ends, which must be the start of a block.
    BTreeWriter(ImageFile &image, const BTreeForm &form);

    /// A key includes its length field. Two records must fit in a node.
    void append(ByteView key, ByteView data);

    /// Completes the tree and gives its size in bytes, a multiple of the node size. To be called
    /// once.
    std::uint64_t finish();

private:
    // A node of the finished level, under its first key.
    struct Child {
        Bytes key;
        std::uint32_t node;
    };

    void addRecord(ByteView key, ByteView data);
    void closeNode(bool isLast);
    void writeIndexLevel(const std::vector<Child> &children);
    void writeMapNodes(std::uint32_t count);
    void writeHeader(std::uint32_t mapNodes);
    std::uint32_t mapNodesNeeded() const;

    ImageFile &m_image;
    BTreeForm m_form;
    std::uint64_t m_start;

    Bytes m_records; // of the node being filled
    std::vector<std::uint16_t> m_offsets; // where they start in the node
    std::uint8_t m_height = 1;
    std::uint32_t m_firstOfLevel = 1;
    std::uint32_t m_node = 1; // number of the node being filled
    std::vector<Child> m_level; // the nodes of the level being written

    std::uint32_t m_leafRecords = 0;
    std::uint32_t m_lastLeaf = 0;
    std::uint32_t m_totalNodes = 1;
};

} // namespace hfs
