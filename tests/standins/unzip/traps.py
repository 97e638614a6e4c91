#!/usr/bin/env python3
"""Archives that set a trap, byte by byte, and what unpacking each of them must give.
usage: traps.py FOLDER   writes them there, for the fuzzer's corpus
"""
import stat
import struct
import sys
import zlib
from dataclasses import dataclass, field
from pathlib import Path

UNIX, DOS = 3, 0
DEFLATE, LZMA = 8, 14
UTF8, ENCRYPTED = 0x800, 1
LINK, FOLDER = stat.S_IFLNK | 0o777, stat.S_IFDIR | 0o755


@dataclass
class Entry:
    name: bytes
    data: bytes = b"data"
    method: int = 0
    system: int = UNIX
    mode: int = stat.S_IFREG | 0o644
    flags: int = 0
    crc: int = None  # what is not given is right
    size: int = None
    packed: bytes = None
    packed_size: int = None
    local_name: bytes = None
    offset: int = None  # of the local header
    dos: int = 0  # attributes
    extra: bytes = b""
    volume: int = 0

    def __post_init__(self):
        if self.packed is None:
            self.packed = deflated(self.data) if self.method == DEFLATE else self.data
        self.crc = zlib.crc32(self.data) if self.crc is None else self.crc
        self.size = len(self.data) if self.size is None else self.size
        self.packed_size = len(self.packed) if self.packed_size is None else self.packed_size

    def common(self, name, extra=b""):
        return struct.pack("<HHHIIIIHH", 20, self.flags, self.method, 0x5A210000, self.crc,
                           self.packed_size, self.size, len(name), len(extra))

    def local(self):
        name = self.name if self.local_name is None else self.local_name
        return b"PK\3\4" + self.common(name) + name + self.packed

    def central(self, offset):
        return (b"PK\1\2" + bytes([30, self.system]) + self.common(self.name, self.extra)
                + struct.pack("<HHHII", 0, self.volume, 0, self.mode << 16 | self.dos, offset)
                + self.name + self.extra)


def deflated(data):
    packer = zlib.compressobj(9, zlib.DEFLATED, -15)
    return packer.compress(data) + packer.flush()


def archive(*entries, before=b"", after=b"", count=None, size=None, offset=None, volume=0):
    content, directory = b"", b""
    for entry in entries:
        directory += entry.central(len(content) if entry.offset is None else entry.offset)
        content += entry.local()
    count = len(entries) if count is None else count
    end = struct.pack("<HHHHIIH", volume, volume, count, count,
                      len(directory) if size is None else size,
                      len(content) if offset is None else offset, len(after))
    return before + content + directory + b"PK\5\6" + end + after


def link(name, target):
    return Entry(name, target, mode=LINK)


def long_end(count):
    """The ending that ZIP64 has for more entries than others can count."""
    return (b"PK\6\6" + struct.pack("<QHHIIQQQQ", 44, 45, 45, 0, 0, count, count, 0, 0)
            + b"PK\6\7" + struct.pack("<IQI", 0, 0, 1)
            + b"PK\5\6" + struct.pack("<HHHHIIH", 0, 0, 0xFFFF, 0xFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0))


def unicode_path(name, shown):
    """The extra field in which some programs keep another name."""
    field_bytes = b"\1" + struct.pack("<I", zlib.crc32(name)) + shown
    return b"up" + struct.pack("<H", len(field_bytes)) + field_bytes


@dataclass
class Trap:
    content: bytes
    status: int
    left: dict = field(default_factory=dict)  # what must be in the folder afterwards

    @staticmethod
    def of(status, *entries, left=None, **more):
        return Trap(archive(*entries, **more), status, {b"good": b"good"} if left is None else left)


GOOD = Entry(b"good", b"good")
TEXT = b"the same again, " * 100
SHORT = deflated(TEXT)
ALL = {b"good": b"good"}

TRAPS = {
    # Names
    "absolute": Trap.of(1, Entry(b"/tmp/toolvane-trap"), GOOD),
    "above": Trap.of(1, Entry(b"../trap"), Entry(b"a/../../trap"), Entry(b"a/.."), GOOD),
    "null": Trap.of(1, Entry(b"fine\0/../trap"), GOOD),
    "nameless": Trap.of(1, Entry(b""), GOOD),
    "dos above": Trap.of(1, Entry(b"..\\trap", system=DOS), Entry(b"\\trap", system=DOS), GOOD),
    "hidden above": Trap.of(
        1, Entry(b"x", extra=unicode_path(b"x", b"../trap")), GOOD),
    "odd names": Trap.of(0, *(Entry(name) for name in (
        b"semi;1", b"semi;2", b"a\nb", b"\xff\xfe", b"-q", b"*", b"c:", b"x\\y", b" ")), left={
            name: b"data" for name in (
                b"semi;1", b"semi;2", b"a\nb", b"\xff\xfe", b"-q", b"*", b"c:", b"x\\y", b" ")}),
    "dos names": Trap.of(
        0, Entry(b"d\\e\\f", system=DOS), Entry(b"\x82", system=DOS),
        Entry("\u00fc".encode(), system=DOS, flags=UTF8),
        left={b"d": None, b"d/e": None, b"d/e/f": b"data", "\u00e9".encode(): b"data",
                 "\u00fc".encode(): b"data"}),
    "too long": Trap.of(1, Entry(b"n" * 256), Entry(b"x/" * 4001 + b"x"), GOOD),
    "twice": Trap.of(1, GOOD, Entry(b"good", b"second"), Entry(b"./good", b"third")),
    "file as folder": Trap.of(1, GOOD, Entry(b"good/x"), Entry(b"b/x"), Entry(b"b", b"file"),
                              left=ALL | {b"b": None, b"b/x": b"data"}),
    # Types
    "devices": Trap.of(1, *(Entry(b"dev%d" % i, b"", mode=kind | 0o666) for i, kind in enumerate(
        (stat.S_IFBLK, stat.S_IFCHR, stat.S_IFIFO, stat.S_IFSOCK))), GOOD),
    "set-id": Trap.of(0, Entry(b"x", mode=stat.S_IFREG | 0o7777), left={b"x": b"data"}),
    "links": Trap.of(
        1, link(b"a", b"/etc"), link(b"b", b".."), link(b"d/c", b"../.."), link(b"e", b""),
        link(b"f", b"d/../../x"), link(b"here", b"."), link(b"g", b"here/.."),
        link(b"d/h", b"../good"), link(b"i", b"nothing/there"), link(b"n", b"good\0/.."),
        link(b"long", b"x/" * 2047 + b"xy"), GOOD,
        left=ALL | {b"d": None, b"here": ".", b"d/h": "../good", b"i": "nothing/there"}),
    "through a link": Trap.of(1, link(b"l", b"d"), Entry(b"d/x"), Entry(b"l/y"), GOOD,
                              left=ALL | {b"l": "d", b"d": None, b"d/x": b"data"}),
    "link through links": Trap.of(
        1, link(b"d/up", b".."), link(b"l", b"d"), link(b"out", b"l/up/../x"), GOOD,
        left=ALL | {b"d": None, b"d/up": "..", b"l": "d"}),
    # Data
    "wrong checksum": Trap.of(3, Entry(b"x", crc=1), Entry(b"y", TEXT, DEFLATE, crc=1), GOOD),
    "wrong size": Trap.of(
        3, Entry(b"x", TEXT, DEFLATE, size=len(TEXT) - 1), Entry(b"s", size=3),
        Entry(b"y", TEXT, DEFLATE, size=len(TEXT) + 1), Entry(b"z", size=5), GOOD),
    "cut data": Trap.of(3, Entry(b"x", TEXT, DEFLATE, packed=SHORT[:-3]), GOOD),
    "data and more": Trap.of(3, Entry(b"x", TEXT, DEFLATE, packed=SHORT + b"more"), GOOD),
    "no deflate": Trap.of(3, Entry(b"x", TEXT, DEFLATE, packed=b"\xff" * 50), GOOD),
    "large lie": Trap.of(3, Entry(b"x", TEXT, DEFLATE, size=60 << 20), GOOD),
    "large bomb": Trap.of(3, Entry(b"x", b"\0" * (60 << 20), DEFLATE, size=50 << 20), GOOD),
    "larger than any disk": Trap.of(50, Entry(b"x", size=0xFFFFFFFE, extra=struct.pack(
        "<HHQ", 1, 8, 1 << 62)), GOOD, Entry(b"y", size=0xFFFFFFFF, extra=struct.pack(
            "<HHQ", 1, 8, 1 << 62)), left={}),
    "other local name": Trap.of(3, Entry(b"x", local_name=b"y"), GOOD),
    "destination": Trap.of(0, Entry(b"./", b"", mode=stat.S_IFDIR), Entry(b"./good", b"good")),
    "folder with data": Trap.of(3, Entry(b"d/", mode=FOLDER), GOOD, left=ALL | {b"d": None}),
    "folder with packed nothing": Trap.of(0, Entry(b"d/", b"", packed=b"\3\0", method=DEFLATE,
                                                   mode=FOLDER),
                                GOOD, left=ALL | {b"d": None}),
    # Structure
    "one data, two entries": Trap.of(12, GOOD, Entry(b"good", b"good", offset=0), left={}),
    "kernel": Trap.of(12, Entry(b"aaaa", TEXT, DEFLATE), Entry(b"b", TEXT, DEFLATE, offset=40),
                      left={}),
    "data in the directory": Trap.of(12, GOOD, Entry(b"x", packed_size=60), left={}),
    "no header": Trap.of(3, GOOD, Entry(b"x", b"", offset=1 << 30), left={}),
    "program before": Trap.of(0, GOOD, before=b"#!/bin/sh\nexit\n"),
    "comment": Trap.of(0, GOOD, after=b"PK, a comment"),
    "two ends": Trap.of(0, GOOD, after=b"PK\5\6" + b"\0" * 40),
    "more than there are": Trap.of(3, GOOD, count=2, left={}),
    "fewer than there are": Trap.of(3, GOOD, Entry(b"x"), count=1, left={}),
    "directory elsewhere": Trap.of(3, GOOD, offset=1000, left={}),
    "countless": Trap(long_end(1 << 60), 3),
    "empty": Trap.of(1, left={}),
    "no archive": Trap(b"no archive at all", 9),
    "nothing": Trap(b"", 9),
    "cut": Trap(archive(GOOD)[:-10], 9),
    # What the system's unzip is for
    "other method": Trap.of(81, Entry(b"x", method=LZMA), GOOD),
    "other method and above": Trap.of(3, Entry(b"x", method=LZMA), Entry(b"../trap"), left={}),
    "other method and link": Trap.of(3, Entry(b"x", method=LZMA), link(b"l", b".."), left={}),
    "encrypted": Trap.of(82, Entry(b"x", flags=ENCRYPTED, packed=b"p" * 16), GOOD),
    "encrypted and device": Trap.of(3, Entry(b"x", flags=ENCRYPTED, packed=b"p" * 16),
                                    Entry(b"f", b"", mode=stat.S_IFIFO), left={}),
    "volumes": Trap.of(81, GOOD, volume=1, left={}),
    "other volume": Trap.of(0, Entry(b"x", volume=2), GOOD, left=ALL | {b"x": b"data"}),
    "other volume and above": Trap.of(3, Entry(b"x", volume=2), Entry(b"/y"), left={}),
}


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, trap in TRAPS.items():
        if len(trap.content) < 20000:
            (folder / name.replace(" ", "-").replace(",", "")).write_bytes(trap.content)


if __name__ == "__main__":
    main()
