#include "HfsCatalog.h"

#include "HfsNames.h"

#include <algorithm>
#include <numeric>

namespace hfs
{

Catalog::Catalog(std::u16string_view volumeName, const Item &root)
{
    append(rootParentId, volumeName, root);
}

std::uint32_t Catalog::add(std::uint32_t parentId, std::u16string_view name, const Item &item)
{
    const auto id = nextId();
    const bool isFolder = item.kind == ItemKind::Folder;
    append(parentId, name, item);
    m_needsFoldTable = m_needsFoldTable || needsFoldTable(name);
    ++(isFolder ? m_folderCount : m_fileCount);
    auto &parent = m_entries[indexOf(parentId)].item;
    ++parent.items;
    parent.folders += isFolder ? 1 : 0;
    return id;
}

void Catalog::append(std::uint32_t parentId, std::u16string_view name, const Item &item)
{
    m_entries.push_back({item, parentId, static_cast<std::uint16_t>(name.size()), m_names.size()});
    m_names += name;
}

// The root folder has a number of its own, all others follow the reserved ones.
std::uint32_t Catalog::indexOf(std::uint32_t id)
{
    return id == rootFolderId ? 0 : id - firstUserId + 1;
}

std::uint32_t Catalog::idOf(std::uint32_t index)
{
    return index == 0 ? rootFolderId : index - 1 + firstUserId;
}

std::uint32_t Catalog::nextId() const
{
    return idOf(static_cast<std::uint32_t>(m_entries.size()));
}

std::u16string_view Catalog::nameOf(const Entry &entry) const
{
    return std::u16string_view(m_names).substr(entry.nameStart, entry.nameLength);
}

NameOrder Catalog::settleOrder()
{
    m_sorted.resize(m_entries.size());
    std::iota(m_sorted.begin(), m_sorted.end(), 0);
    if (!m_needsFoldTable)
        sort(NameOrder::Folded);
    m_order = m_needsFoldTable || hasFoldedClash() ? NameOrder::Binary : NameOrder::Folded;
    if (m_order == NameOrder::Binary)
        sort(NameOrder::Binary);
    return m_order;
}

// "Catalog File Keys": by parent, then by name.
void Catalog::sort(NameOrder order)
{
    std::sort(m_sorted.begin(), m_sorted.end(), [this, order](auto left, auto right) {
        const Entry &a = m_entries[left];
        const Entry &b = m_entries[right];
        if (a.parentId != b.parentId)
            return a.parentId < b.parentId;
        if (order == NameOrder::Binary)
            return nameOf(a) < nameOf(b);
        return compareFolded(nameOf(a), nameOf(b)) < 0;
    });
}

bool Catalog::hasFoldedClash() const
{
    const auto clash = [this](auto left, auto right) {
        const Entry &a = m_entries[left];
        const Entry &b = m_entries[right];
        return a.parentId == b.parentId && compareFolded(nameOf(a), nameOf(b)) == 0;
    };
    return std::adjacent_find(m_sorted.begin(), m_sorted.end(), clash) != m_sorted.end();
}

// A thread has its item's own number as parent and an empty name, so it comes before all that the
// item holds.
std::uint64_t Catalog::write(ImageFile &image) const
{
    const bool isBinary = m_order == NameOrder::Binary;
    BTreeWriter tree(image,
                     {catalogNodeSize, catalogMaxKeyLength,
                      isBinary ? binaryCompare : unspecifiedCompare, bigKeys | variableIndexKeys,
                      catalogMaxClumpSize});
    auto child = m_sorted.begin();
    writeItem(tree, *child++); // the root folder, alone under the parent of the root
    for (std::uint32_t index = 0; index < m_entries.size(); ++index) {
        writeThread(tree, index);
        while (child != m_sorted.end() && m_entries[*child].parentId == idOf(index))
            writeItem(tree, *child++);
    }
    return tree.finish();
}

void Catalog::writeItem(BTreeWriter &tree, std::uint32_t index) const
{
    const Entry &entry = m_entries[index];
    tree.append(catalogKey(entry.parentId, nameOf(entry)),
                itemRecord(entry.item, idOf(index), m_order));
}

void Catalog::writeThread(BTreeWriter &tree, std::uint32_t index) const
{
    const Entry &entry = m_entries[index];
    tree.append(catalogKey(idOf(index), {}),
                threadRecord(entry.item.kind, entry.parentId, nameOf(entry)));
}

} // namespace hfs
