#!/usr/bin/env python3
"""Proves that an archive of ours holds what `zip -r` would put there, that every reader accepts it,
and that what comes out of it equals what went in.
usage: tests/support/isolated python3 test_zip.py BUILD_FOLDER [--long]   (the long part alone)
"""
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import zipfile
from pathlib import Path

import zoo

os.environ.pop("LD_PRELOAD", None)  # the sanitizer's runtime would have to come first

PROGRAMS = Path(sys.argv.pop(1)) / "libexec/toolvane"
IS_LONG = "--long" in sys.argv and sys.argv.remove("--long") is None
MEGABYTE = 1 << 20
READERS = [["unzip", "-tqq"], ["7z", "t", "-bso0"], ["bsdtar", "-xOf"], [sys.executable, "-c", """
import sys, zipfile
sys.exit(zipfile.ZipFile(sys.argv[1]).testzip() is not None)"""]]


def run(*command, **more):
    more = {"stdin": subprocess.DEVNULL, "capture_output": True, "timeout": 600} | more
    return subprocess.run(command, **more)


def entries(archive):
    """Names as bytes, and what the directory says of each."""
    return [(entry.orig_filename.encode("utf-8" if entry.flag_bits & 0x800 else "cp437"),
             entry.file_size, entry.CRC, entry.date_time, entry.external_attr)
            for entry in zipfile.ZipFile(archive).infolist()]


class Trial(unittest.TestCase):
    def setUp(self):
        self.around = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.around, True)
        self.folder, self.archive = self.around / "in", self.around / "out.zip"
        self.folder.mkdir()

    def pack(self, level="-1", archive=None, program=PROGRAMS / "zip", **more):
        return run(program, "-r", archive or self.archive, ".", level, "-q",
                   **({"cwd": self.folder} | more))

    def accept(self, archive):
        for reader in READERS:
            end = run(*reader, archive, stdout=subprocess.DEVNULL, capture_output=False,
                      stderr=subprocess.PIPE)
            self.assertEqual(end.returncode, 0, (reader, end.stderr))

    def unpack(self, archive, program=PROGRAMS / "unzip"):
        folder = Path(tempfile.mkdtemp(dir=self.around))
        end = run(program, "-q", archive, "-d", folder, umask=0o022)
        self.assertEqual(end.returncode, 0, end.stderr)
        return zoo.look(folder)

    def assert_same(self, found, expected):
        different = [(name, found.get(name), expected.get(name))
                     for name in found.keys() | expected.keys()
                     if found.get(name) != expected.get(name)]
        self.assertEqual(different, [])


class Zip(Trial):
    def test_everything_comes_out_as_it_went_in(self):
        zoo.make(self.folder)
        packed = zoo.look(self.folder, is_packed=True)
        self.assertEqual(self.pack(program="zip", archive="../theirs.zip").returncode, 18)  # pipes
        theirs = self.around / "theirs.zip"
        for level in ("-0", "-1", "-9"):
            with self.subTest(level):
                end = self.pack(level)
                self.assertEqual((end.returncode, end.stderr), (0, b""))
                self.assertEqual(entries(self.archive), entries(theirs))
                self.accept(self.archive)
                self.assert_same(self.unpack(self.archive), packed)
                self.archive.unlink()
        self.assert_same(self.unpack(theirs), packed)

    def test_the_systems_unzip_makes_the_same(self):
        zoo.make(self.folder)
        for folder in ("names", "folders"):  # some of which it changes
            shutil.rmtree(self.folder / folder)
        (self.folder / "times/-1").unlink()
        self.assertEqual(self.pack().returncode, 0)

        def plain(found):  # without what it keeps of the modes
            return {name: what for name, what in found.items()
                    if not name.endswith((b"4755", b"2711", b"1777"))}
        theirs = self.unpack(self.archive, "unzip")
        self.assert_same(plain(self.unpack(self.archive)), plain(theirs))

    def test_each_entry_is_marked_as_it_must_be(self):
        for name in (b"ascii", "ü".encode(), b"\xfc"):
            Path(os.fsdecode(os.path.join(os.fsencode(self.folder), name))).write_bytes(b"x" * 500)
        (self.folder / "noise").write_bytes(os.urandom(5000))
        (self.folder / "tiny").write_bytes(b"ab")
        self.assertEqual(self.pack().returncode, 0)
        found = {entry.orig_filename: entry for entry in zipfile.ZipFile(self.archive).infolist()}
        self.assertEqual({name for name, entry in found.items() if entry.flag_bits & 0x800}, {"ü"})
        self.assertEqual({name for name, entry in found.items() if not entry.compress_type},
                         {"noise", "tiny"})
        self.assertTrue(all(entry.extract_version <= 20 for entry in found.values()))
        self.assertNotIn(b"PK\6\6", self.archive.read_bytes())

    def test_large_files_are_packed_in_pieces(self):
        sizes = {"limit": 40 * MEGABYTE, "beyond": 40 * MEGABYTE + 1, "odd": 43 * MEGABYTE + 12345}
        for i, (name, size) in enumerate(sizes.items()):
            (self.folder / name).write_bytes(zoo.contents(size, i))
        (self.folder / "noise").write_bytes(os.urandom(41 * MEGABYTE))
        (self.folder / "small").write_bytes(b"small")
        packed = zoo.look(self.folder, is_packed=True)
        for level in ("-0", "-1", "-9"):
            with self.subTest(level):
                self.assertEqual(self.pack(level).returncode, 0)
                self.accept(self.archive)
                self.assert_same(self.unpack(self.archive), packed)
                noise = zipfile.ZipFile(self.archive).getinfo("noise")
                self.assertEqual((noise.compress_type, noise.compress_size), (0, 41 * MEGABYTE))
                self.archive.unlink()

    def test_loops_end(self):
        (self.folder / "a/b").mkdir(parents=True)
        (self.folder / "a/file").write_text("x")
        for place, target in (("a/self", "."), ("a/b/up", ".."), ("a/b/top", "../.."),
                              ("a/other", "b")):
            (self.folder / place).symlink_to(target)
        end = self.pack()
        self.assertEqual(end.returncode, 18)
        self.assertEqual(len(end.stderr.splitlines()), 5)
        self.assertEqual({entry[0] for entry in entries(self.archive)},
                         {b"a/", b"a/b/", b"a/other/", b"a/file"})
        self.accept(self.archive)

    def test_depth_has_no_limit_but_descriptors(self):
        before = os.getcwd()
        self.addCleanup(os.chdir, before)
        os.chdir(self.folder)
        for _ in range(300):
            os.mkdir("n" * 100)
            os.chdir("n" * 100)
        Path("file").write_text("at the bottom")
        os.chdir(before)
        self.assertEqual(self.pack().returncode, 0)
        target = self.around / "unpacked"
        self.assertEqual(run(PROGRAMS / "unzip", "-q", self.archive, "-d", target).returncode, 0)
        os.chdir(target)
        for _ in range(300):
            os.chdir("n" * 100)
        self.assertEqual(Path("file").read_text(), "at the bottom")

    def test_statuses(self):
        self.assertEqual(self.pack().returncode, 12)
        os.mkfifo(self.folder / "pipe")
        self.assertEqual(self.pack().returncode, 12)
        (self.folder / "file").write_text("x")
        self.assertEqual(self.pack(archive=self.around / "none/out.zip").returncode, 15)
        self.assertEqual(self.pack(level="-2").returncode, 64)
        self.assertEqual(run(PROGRAMS / "zip").returncode, 64)
        self.assertEqual(list(self.around.iterdir()), [self.folder])
        self.assertEqual(self.pack(archive=self.around / "bare").returncode, 0)
        self.assertTrue((self.around / "bare.zip").exists())
        self.assertEqual(self.pack("-0", archive="inside.zip").returncode, 0)
        self.assertEqual([entry[0] for entry in entries(self.folder / "inside.zip")], [b"file"])

    def test_what_cannot_be_read_is_said(self):
        for place in ("file", "shut/within", "fine"):
            (self.folder / place).parent.mkdir(exist_ok=True)
            (self.folder / place).write_text(place)
        for place in ("file", "shut"):
            (self.folder / place).chmod(0)
        other = {"user": 65534, "group": 65534} if os.geteuid() == 0 else {}
        if other:
            self.folder.chmod(0o777)
            for above in (self.around, *self.around.parents):
                if above.stat().st_uid == os.geteuid() and above != Path("/"):
                    above.chmod(above.stat().st_mode | 0o055)
            self.around.chmod(0o777)
        end = self.pack(env=os.environ | {"LD_PRELOAD": ""}, **other)
        (self.folder / "shut").chmod(0o700)
        self.assertEqual(end.returncode, 18, end.stderr)
        self.assertEqual(len(end.stderr.splitlines()), 2)
        self.assertEqual({entry[0] for entry in entries(self.archive)}, {b"fine", b"shut/"})
        self.accept(self.archive)

    def test_an_archive_that_exists_is_updated(self):
        for name in ("older", "newer"):
            (self.folder / name).write_text(name)
            self.assertEqual(self.pack().returncode, 0)
            (self.folder / name).unlink()
        self.assertEqual({entry[0] for entry in entries(self.archive)}, {b"older", b"newer"})

    def test_one_that_appears_meanwhile_is_kept(self):
        (self.folder / "large").write_bytes(zoo.contents(200 * MEGABYTE, 1))
        with subprocess.Popen([PROGRAMS / "zip", "-r", self.archive, ".", "-9", "-q"],
                              cwd=self.folder, stderr=subprocess.PIPE) as process:
            files = Path(f"/proc/{process.pid}/fd")
            while not any("(deleted)" in os.readlink(file) for file in list(files.iterdir())
                          if file.is_symlink()):
                time.sleep(0.001)
            self.archive.write_text("somebody's")
            self.assertEqual(process.wait(), 15)
        self.assertEqual(self.archive.read_text(), "somebody's")
        self.assertEqual(set(self.around.iterdir()), {self.folder, self.archive})

    def test_files_that_change_meanwhile(self):
        changing = [self.folder / name for name in ("small", "whole", "large")]
        sizes = [MEGABYTE, 20 * MEGABYTE, 100 * MEGABYTE]
        for file, size in zip(changing, sizes):
            file.write_bytes(zoo.contents(size, 1))
        is_over = threading.Event()

        def change():
            while not is_over.is_set():
                for file, size in zip(changing, sizes):
                    os.truncate(file, size // 3)
                    with file.open("ab") as end:
                        end.write(os.urandom(size // 8))
                    os.truncate(file, size * 2)
        changer = threading.Thread(target=change)
        changer.start()
        try:
            for level in ("-0", "-1", "-9"):
                self.assertEqual(self.pack(level).returncode, 0)
                self.accept(self.archive)
                self.archive.unlink()
        finally:
            is_over.set()
            changer.join()

    def test_limits(self):
        for i in range(300):
            (self.folder / f"{i % 7}").mkdir(exist_ok=True)
            (self.folder / f"{i % 7}/{i}").write_bytes(zoo.contents(10000, i))
        sanitized = b"__asan_init" in (PROGRAMS / "zip").read_bytes()  # needs terabytes of addresses
        for limit, statuses in (("-n 24", {0}), ("-v 150000", {0, 4}), ("-f 100", {14})):
            if sanitized and limit.startswith("-v"):
                continue
            with self.subTest(limit):
                end = run("sh", "-c", f'ulimit {limit}; exec "$@"', "sh", PROGRAMS / "zip", "-r",
                          self.archive, ".", "-0", "-q", cwd=self.folder)
                self.assertIn(end.returncode, statuses, end.stderr)
                self.assertEqual(self.archive.exists(), end.returncode == 0)
                self.archive.unlink(missing_ok=True)


class Large(Trial):
    def test_more_than_the_plain_format_holds(self):
        for i in range(70000):
            if i % 1000 == 0:
                (self.folder / f"{i}").mkdir()
            (self.folder / f"{i - i % 1000}/file {i}").write_bytes(b"%d" % i)
        self.assertEqual(self.pack().returncode, 0)
        self.accept(self.archive)
        self.assert_same(self.unpack(self.archive), zoo.look(self.folder, is_packed=True))
        shutil.rmtree(self.folder)
        self.archive.unlink()
        self.folder.mkdir()
        with (self.folder / "sparse").open("wb") as file:
            for place in (0, 1 << 32, 5 * 1000**3):
                file.seek(place)
                file.write(b"something")
        for level in ("-0", "-1"):
            self.archive.unlink(missing_ok=True)
            self.assertEqual(self.pack(level).returncode, 0)
            self.accept(self.archive)
        target = self.around / "unpacked"
        self.assertEqual(run(PROGRAMS / "unzip", "-q", self.archive, "-d", target).returncode, 0)
        self.assertEqual(run("cmp", self.folder / "sparse", target / "sparse").returncode, 0)


if __name__ == "__main__":
    unittest.main(defaultTest="Large" if IS_LONG else "Zip")
