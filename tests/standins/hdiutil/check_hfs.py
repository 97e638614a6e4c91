#!/usr/bin/env python3
"""Takes an HFS Plus image apart the way a repair program does and says what contradicts TN1150.

A second reading of the format that shares nothing with the writer.
usage: check_hfs.py IMAGE | check_hfs.py --tree FILE (a B-tree alone)
Prints JSON: "problems", "items" by path (":" for a "/" in a name), "volumeName", "isCaseSensitive";
of a tree "problems", "records" and "mapNodes".
"""
import json
import mmap
import sys
from collections import namedtuple

problems = []
Record = namedtuple("Record", "parent name data")  # `data`: where the record begins behind its key
Fork = namedtuple("Fork", "size offset")


def require(holds, problem):
    if not holds:
        problems.append(problem)


def u16(data, at):
    return int.from_bytes(data[at:at + 2], "big")


def u32(data, at):
    return int.from_bytes(data[at:at + 4], "big")


def record_at(data, at):
    """A key, or a thread's place from two bytes before its parent's number on."""
    name = data[at + 8:at + 8 + 2 * u16(data, at + 6)].decode("utf-16-be", "surrogatepass")
    return Record(u32(data, at + 2), name, at + 2 + u16(data, at))


class Tree:
    """From the root and along the leaves."""

    def __init__(self, data):
        self.data, self.node_size, self.total = data, u16(data, 32), u32(data, 36)
        self.records, self.leaves, self.seen, self.map_nodes = [], [], 1, 0
        require(data[8] == 1 and u16(data, 10) == 3 and self.offset(0, 2) == 248, "header node")
        require(self.total * self.node_size == len(data) and u32(data, 40) == 0, "size of a tree")
        if u16(data, 14) > 0:
            self.read_node(u32(data, 16), u16(data, 14), None)
        require(u32(data, 20) == len(self.records), "number of leaf records")
        self.check_leaves()
        self.check_map()

    def offset(self, node, record):
        return u16(self.data, node + self.node_size - 2 * (record + 1))

    def read_node(self, number, height, expected):
        self.seen += 1
        node = number * self.node_size
        if not (0 < number < self.total and self.data[node + 9] == height
                and self.data[node + 8] == (0xFF if height == 1 else 0)):
            return require(False, f"node {number}")
        if height == 1:
            self.leaves.append(number)
        first = record_at(self.data, node + 14)
        require(expected is None or expected == (first.parent, first.name),
                f"key in the index above node {number}")
        count = u16(self.data, node + 10)
        require(count > 0 and self.offset(node, 0) == 14, "first record of a node")
        for i in range(count):
            offset, end = self.offset(node, i), self.offset(node, i + 1)
            require(offset < end <= self.node_size - 2 * (count + 1), "offsets of a node")
            record = record_at(self.data, node + offset)
            units = len(record.name.encode("utf-16-be", "surrogatepass"))
            require(u16(self.data, node + offset) == 6 + units, "length of a key")
            if height == 1:
                self.records.append(record)
            else:
                self.read_node(u32(self.data, record.data), height - 1, record[:2])

    def check_leaves(self):
        links = [0] + self.leaves + [0]
        require(u32(self.data, 24) == links[1], "first leaf")
        require(u32(self.data, 28) == links[-2], "last leaf")
        for before, leaf, after in zip(links, self.leaves, links[2:]):
            node = leaf * self.node_size
            require(u32(self.data, node) == after, "link to the next leaf")
            require(u32(self.data, node + 4) == before, "link to the leaf before")

    def check_map(self):
        """Each bit stands for a node; all nodes are used."""
        bits = self.data[self.offset(0, 2):self.offset(0, 3)]
        number = u32(self.data, 0)
        while number != 0:
            node = number * self.node_size
            self.map_nodes += 1
            if number >= self.total or self.map_nodes > self.total:
                return require(False, "link to a map node")
            require(self.data[node + 8] == 2 and u16(self.data, node + 10) == 1, "map node")
            bits += self.data[node + self.offset(node, 0):node + self.offset(node, 1)]
            number = u32(self.data, node)
        check_bits(bits, self.total, "map of nodes")
        require(self.seen + self.map_nodes == self.total, "nodes that nothing leads to")


def check_bits(bits, count, what):
    """The first `count` of them are set, and no others."""
    expected = b"\xff" * (count // 8)
    if count % 8:
        expected += bytes([0xFF00 >> count % 8 & 0xFF])
    require(bits == expected.ljust(len(bits), b"\0"), what)


def folded(name, is_case_sensitive):
    """How a system that has the whole table of folded characters compares names."""
    if not is_case_sensitive:
        ignored = [*range(0x200C, 0x2010), *range(0x202A, 0x202F), *range(0x206A, 0x2070), 0xFEFF]
        name = "".join(c if ord(c) > 0xFFFF else c.lower() for c in name if ord(c) not in ignored)
    return name.encode("utf-16-be", "surrogatepass")


class Image:
    def __init__(self, data):
        self.data, self.used, self.items = data, [], {}
        header = data[1024:1536]
        self.is_case_sensitive = header[:2] == b"HX"
        require(u32(header, 0) == (0x48580005 if self.is_case_sensitive else 0x482B0004),
                "signature")
        require(u32(header, 4) == 0x8100 and u32(header, 12) == 0, "volume attributes")
        require(header == data[-1024:-512], "header copy")
        self.block_size, self.blocks = u32(header, 40), u32(header, 44)
        require(self.blocks * self.block_size == len(data), "number of blocks")
        require(u32(header, 48) == 0, "free blocks")
        self.used = [(0, 1), (self.blocks - 1, 1)]
        allocation = self.fork(header, 112, "allocation")
        require(not self.tree(header, 192, "extents").records, "extents tree")
        catalog = self.tree(header, 272, "catalog")
        require(u16(catalog.data, 34) == 516 and u32(catalog.data, 52) == 6
                and (catalog.data[51] == 0xBC) == self.is_case_sensitive, "kind of the catalog")
        self.read(catalog)
        self.check_counts(header)
        self.check_blocks(data[allocation.offset:allocation.offset + allocation.size])

    def fork(self, data, at, what):
        size = u32(data, at) << 32 | u32(data, at + 4)
        first, blocks = u32(data, at + 16), u32(data, at + 20)
        fork = Fork(size, first * self.block_size)
        require(blocks == u32(data, at + 12) == -(-size // self.block_size)
                and not any(data[at + 24:at + 80]) and fork.offset + size <= len(self.data),
                f"extent of {what}")
        if blocks:
            self.used.append((first, blocks))
        return fork

    def tree(self, header, at, what):
        fork = self.fork(header, at, what)
        tree = Tree(self.data[fork.offset:fork.offset + fork.size])
        clump, size = u32(header, at + 8), len(self.data)
        require(clump > 0 and clump % self.block_size == 0 and 4 * clump <= size
                and (clump >= 1 << 20 or size <= 500 << 20) and clump == u32(tree.data, 46),
                f"clump size of {what}")
        return tree

    def read(self, catalog):
        data, order = catalog.data, None
        self.threads, self.held, self.promised = {}, {}, {}
        for record in catalog.records:
            key = (record.parent, folded(record.name, self.is_case_sensitive))
            require(order is None or order < key, f"order of {record.name}")
            order = key
            if u16(data, record.data) > 2:
                require(not record.name, "name in a thread's key")
                self.threads[record.parent] = record_at(data, record.data + 2)[:2]
        for record in catalog.records:
            if u16(data, record.data) <= 2:
                self.read_item(data[record.data:record.data + 248], record)

    def read_item(self, data, record):
        number = u32(data, 8)
        require(self.threads.get(number) == record[:2], f"thread of {record.name}")
        item = {"isFolder": u16(data, 0) == 1, "modified": u32(data, 16), "mode": u16(data, 42)}
        if item["isFolder"]:
            self.promised[number] = [u32(data, 4), u32(data, 84)]
        else:
            fork = self.fork(data, 88, record.name)
            item |= {"size": fork.size, "offset": fork.offset,
                     "isLink": data[48:52] == b"slnk" and item["mode"] == 0o120777}
        if number == 2:
            self.volume_name = record.name
            return
        held = self.held.setdefault(record.parent, [0, 0])
        held[0] += 1
        held[1] += item["isFolder"] and self.is_case_sensitive
        self.items[self.path_of(number)] = item

    def path_of(self, number):
        names = []
        while number > 2 and number in self.threads and len(names) < 10_000:
            number, name = self.threads[number]
            names.insert(0, name.replace("/", ":"))
        return "/".join(names)

    def check_counts(self, header):
        for number, promised in self.promised.items():
            require(promised == self.held.get(number, [0, 0]), "number of items in a folder")
        folders = len(self.promised) - 1
        require(2 in self.promised and self.held.keys() <= self.promised.keys(), "root folder")
        require(u32(header, 36) == folders, "number of folders")
        require(u32(header, 32) == len(self.items) - folders, "number of files")
        require(len(self.threads) == len(self.items) + 1 and u32(header, 64) > max(self.threads),
                "numbers of items")

    def check_blocks(self, bits):
        """Every block belongs to exactly one extent and the bitmap says so."""
        next_block = 0
        for first, count in sorted(self.used):
            require(first == next_block, f"gap or overlap at block {next_block}")
            next_block = first + count
        require(next_block == self.blocks <= len(bits) * 8, "blocks in extents")
        check_bits(bits, self.blocks, "bitmap of blocks")


def main():
    with open(sys.argv[-1], "rb") as file:
        data = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        if sys.argv[1] == "--tree":
            tree = Tree(data[:])
            found = {"records": len(tree.records), "mapNodes": tree.map_nodes}
        else:
            image = Image(data)
            found = {"items": image.items, "volumeName": image.volume_name,
                     "isCaseSensitive": image.is_case_sensitive}
    print(json.dumps({"problems": problems} | found))


if __name__ == "__main__":
    main()
