#pragma once

#include "HfsBTree.h"
#include "HfsFormat.h"
#include "ImageFile.h"

#include <string>
#include <vector>

namespace hfs
{

/// The folders, files and links of a volume, collected with each folder before what it holds, then
/// written as the catalog B-tree (TN1150, "Catalog File"). Costs about 60 bytes an item and its
/// name.
class Catalog
{
public:
    /// Makes the root folder, which has the volume's name.
    Catalog(std::u16string_view volumeName, const Item &root);

    /// Gives the item's catalog node id, by which it can become a parent. Names within a folder are
    /// different from each other.
    std::uint32_t add(std::uint32_t parentId, std::u16string_view name, const Item &item);

    /// The id that the next item would get.
    std::uint32_t nextId() const;
    std::uint32_t fileCount() const { return m_fileCount; } ///< files and links
    std::uint32_t folderCount() const { return m_folderCount; } ///< without the root folder

    /// Decides the order of names, once all items are there: folded if the table of folded
    /// characters makes no difference to it and no two names of a folder become one.
    NameOrder settleOrder();

    /// Appends the B-tree to the image and gives its size in bytes. To be called after
    /// settleOrder().
    std::uint64_t write(ImageFile &image) const;

private:
    struct Entry {
        Item item;
        std::uint32_t parentId;
        std::uint16_t nameLength;
        std::size_t nameStart; // in m_names
    };

    static std::uint32_t indexOf(std::uint32_t id);
    static std::uint32_t idOf(std::uint32_t index);
    std::u16string_view nameOf(const Entry &entry) const;
    void append(std::uint32_t parentId, std::u16string_view name, const Item &item);
    void sort(NameOrder order);
    bool hasFoldedClash() const;
    void writeItem(BTreeWriter &tree, std::uint32_t index) const;
    void writeThread(BTreeWriter &tree, std::uint32_t index) const;

    std::u16string m_names; // of all items, one after the other
    std::vector<Entry> m_entries; // the root folder, then the others by their number
    std::vector<std::uint32_t> m_sorted; // their indices, in the order of the catalog
    std::uint32_t m_fileCount = 0;
    std::uint32_t m_folderCount = 0;
    bool m_needsFoldTable = false;
    NameOrder m_order = NameOrder::Folded;
};

} // namespace hfs
