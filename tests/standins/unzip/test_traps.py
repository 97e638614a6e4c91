#!/usr/bin/env python3
"""Proves that no archive writes outside of its folder, that every byte is checked, and that what is
sound in a bad archive comes out.
usage: tests/support/isolated python3 test_traps.py BUILD_FOLDER
"""
import os
import stat
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from traps import Entry, FOLDER, GOOD, TRAPS, archive, link

os.environ.pop("LD_PRELOAD", None)  # the sanitizer's runtime would have to come first
UNZIP = Path(sys.argv.pop(1)) / "libexec/toolvane/unzip"


def listing(folder):
    """Every name below the folder with its content, None for folders, the target of links."""
    found = {}
    top = os.fsencode(folder)
    for path, folders, files in os.walk(top):
        for name in folders + files:
            full = os.path.join(path, name)
            key = os.path.relpath(full, top)
            if os.path.islink(full):
                found[key] = os.readlink(full).decode()
            else:
                found[key] = None if name in folders else Path(os.fsdecode(full)).read_bytes()
    return found


class Traps(unittest.TestCase):
    def setUp(self):
        own = tempfile.TemporaryDirectory()
        self.addCleanup(own.cleanup)
        self.around = Path(own.name)
        self.archive, self.folder = self.around / "trap.zip", self.around / "out"

    def unpack(self, content, **more):
        self.archive.write_bytes(content)
        run = subprocess.run([UNZIP, "-q", self.archive, "-d", self.folder], text=True,
                             stdin=subprocess.DEVNULL, capture_output=True, timeout=60,
                             errors="replace", start_new_session=True, **more)
        self.assertGreaterEqual(run.returncode, 0, run.stderr)
        self.assertEqual(bool(run.stderr), run.returncode != 0, run.stderr)
        return run.returncode

    def test_every_trap(self):
        for name, trap in TRAPS.items():
            with self.subTest(name):
                self.setUp()
                self.assertEqual(self.unpack(trap.content), trap.status)
                self.assertEqual(listing(self.folder), trap.left)
                around = {b"trap.zip", b"out"} if self.folder.exists() else {b"trap.zip"}
                self.assertEqual(set(os.listdir(os.fsencode(self.around))), around)
        self.assertFalse(Path("/tmp/toolvane-trap").exists())

    def test_what_lay_in_the_folder(self):
        outside = self.around / "outside"
        outside.mkdir()
        self.folder.mkdir()
        (self.folder / "d").symlink_to(outside)
        (self.folder / "f").symlink_to(outside / "new")
        (self.folder / "kept").write_text("older")
        content = archive(Entry(b"d/x"), Entry(b"f"), Entry(b"kept"), link(b"l", b"d/x"), GOOD)
        self.assertEqual(self.unpack(content), 1)
        self.assertEqual(listing(outside), {})
        self.assertEqual((self.folder / "kept").read_text(), "older")
        self.assertEqual(set(os.listdir(self.folder)), {"d", "f", "kept", "good"})
        other = archive(Entry(b"d/x", method=14), GOOD)
        self.assertEqual(self.unpack(other), 3)
        self.assertEqual(listing(outside), {})

    def test_modes_and_times(self):
        modes = [Entry(b"all", mode=stat.S_IFREG | 0o7777),
                 Entry(b"own", mode=stat.S_IFREG | 0o600),
                 Entry(b"dos", system=0, mode=0, dos=1), Entry(b"none", mode=0),
                 Entry(b"shut/x"), Entry(b"shut/", b"", mode=stat.S_IFDIR | 0o2500),
                 Entry(b"early", extra=b"UT\5\0\1" + (-86400).to_bytes(4, "little", signed=True))]
        self.assertEqual(self.unpack(archive(*modes), umask=0o027), 0)
        found = {name: stat.S_IMODE((self.folder / name).stat().st_mode)
                 for name in ("all", "own", "dos", "none", "shut")}
        self.assertEqual(found, {"all": 0o750, "own": 0o600, "dos": 0o440, "none": 0o640,
                                 "shut": 0o500})
        self.assertEqual((self.folder / "early").stat().st_mtime, -86400)

    def unpack_within(self, limit, content):
        self.archive.write_bytes(content)
        run = subprocess.run(["sh", "-c", f'ulimit {limit}; exec "$@"', "sh", UNZIP, "-q",
                              self.archive, "-d", self.folder], capture_output=True)
        return run.returncode

    def test_limits(self):
        many = archive(*(Entry(b"d%d/f" % i) for i in range(200)))
        sanitized = b"__asan_init" in UNZIP.read_bytes()  # needs terabytes of addresses
        for limit, statuses in (("-n 16", {0}), ("-v 200000", {0, 4}), ("-u 1", {0})):
            if sanitized and limit.startswith("-v"):
                continue
            with self.subTest(limit):
                self.setUp()
                self.assertIn(self.unpack_within(limit, many), statuses)

    def test_room_that_ends_meanwhile(self):
        for size in (1 << 20, 60 << 20):  # as a whole, in pieces
            with self.subTest(size):
                self.setUp()
                content = archive(GOOD, Entry(b"large", b"\0" * size, 8))
                self.assertEqual(self.unpack_within("-f 500", content), 50)
                self.assertNotIn(b"large", listing(self.folder))


if __name__ == "__main__":
    unittest.main()
