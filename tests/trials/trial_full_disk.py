#!/usr/bin/env python3
"""Proves that whatever writes a file, and runs out of room at any point of it, says so, leaves an
older file as it was and nothing half-written, and works again once there is room.
usage: tests/support/isolated python3 trial_full_disk.py BUILD_FOLDER
"""
import os
import subprocess
import unittest

import subjects
from subjects import FOLDER, SUBJECTS, resize_disk

PAGE = 4096
AMPLE = 100 * 1024 * 1024


def run(subject):
    """Its status and its words."""
    process = subject.start()
    output, errors = process.communicate()
    return process.returncode, (output + errors).decode(errors="replace")


def hammer(name):
    """The rows that a writer of records says are stored, while it has as much room as there is."""
    end = subprocess.run([subjects.BUILD / "tests/hammer_child", name, "3", "each"],
                         env=os.environ | subjects.OURS | {"XDG_DATA_HOME": str(FOLDER)},
                         capture_output=True, text=True, check=True)
    words = (end.stdout + end.stderr).splitlines()
    return ([row for row in words if row.startswith(f"{name}-")],
            "\n".join(line for line in words if "[DB]" in line))


class FullDisk(unittest.TestCase):
    def setUp(self):
        subjects.empty_folder()
        resize_disk(AMPLE)

    def try_without_room(self, subject):
        subject.restore()
        status, words = run(subject)
        self.assertEqual(status, subject.success, words)
        whole = subject.whole()
        size = len(whole)
        self.assertGreater(size, 0)
        for room in (0, size // 4, size // 2, size * 3 // 4, size - PAGE):
            subject.restore()
            before = subjects.contents()
            resize_disk(len(before) * PAGE + max(room, 0) // PAGE * PAGE)
            status, words = run(subject)
            self.assertNotEqual(status, subject.success, f"{room}: {words}")
            self.assertIn(subject.no_room, words)
            self.assertEqual(subject.faults(before, whole), [], f"with room for {room}")

            resize_disk(AMPLE)
            subject.restore()
            self.assertEqual(run(subject)[0], subject.success)
            self.assertEqual(len(subject.whole()), size)

    def test_leaves_what_stood_there(self):
        for name, make in SUBJECTS.items():
            with self.subTest(name):
                self.setUp()
                self.try_without_room(make())

    def test_keeps_stored_records(self):
        resize_disk(20 * PAGE)
        rows, errors = hammer("first")
        self.assertGreater(len(rows), 100)
        self.assertIn("database or disk is full", errors)
        resize_disk(AMPLE)
        more, errors = hammer("second")
        self.assertEqual(errors, "")
        stored = subprocess.check_output(
            ["sqlite3", FOLDER / "Toolvane/Documents/DB.sqlite3",
             "PRAGMA integrity_check; SELECT Name FROM Price ORDER BY ID"], text=True)
        self.assertEqual(stored.splitlines(), ["ok", *rows, *more])


if __name__ == "__main__":
    if subjects.mount_disk():
        unittest.main(verbosity=2)
    print("SKIP   : trial_full_disk: mounting a small file system is not permitted here")
