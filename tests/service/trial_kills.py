"""Proves that nothing acknowledged is lost or doubled: the service is killed under load, again and
again, and its disk is full. With --long it is killed a hundred times.
usage: tests/support/isolated python3 trial_kills.py BUILD_FOLDER [--long]"""

import contextlib
import ctypes
import http.client
import random
import signal
import sqlite3
import subprocess
import sys
import threading
import time
import unittest

from service import Client, Service, new_folder

KILLS = 100 if "--long" in sys.argv else 10
CLIENTS = 32
sys.argv = [argument for argument in sys.argv if argument != "--long"]


class Writer(threading.Thread):
    """Inserts, renames and deletes records of its own until it is stopped, and notes what it was
    told. `unsure` is the one change whose reply never came."""

    def __init__(self, service, name):
        super().__init__()
        self.service, self.name = service, name
        self.stored = {}  # memo by name
        self.deleted = set()
        self.unsure = set()
        self.stopped = threading.Event()
        self.fault = None

    def run(self):
        count = 0
        while not self.stopped.is_set():
            try:
                client = Client(self.service)
                while not self.stopped.is_set():
                    count += 1
                    self.change(client, f"{self.name}-{count}")
            except (OSError, http.client.HTTPException, TypeError):
                self.stopped.wait(0.02)
            except AssertionError as fault:
                self.fault = fault
                return

    def change(self, client, name):
        self.unsure.add(name)
        if client.insert(User=name, Memo="m" * 300) == 0:
            self.stored[name] = "m" * 300
        self.unsure.discard(name)
        if name not in self.stored or random.random() < 0.7:
            return
        self.unsure.add(name)
        status, _ = client.delete(f"User='{name}'")
        if status == 0:
            del self.stored[name]
            self.deleted.add(name)
        self.unsure.discard(name)


class Kills(unittest.TestCase):
    def check(self, writers, database):
        with contextlib.closing(sqlite3.connect(database)) as records:
            self.assertEqual(records.execute("PRAGMA integrity_check").fetchall(), [("ok",)])
            rows = records.execute("SELECT User, Memo FROM User").fetchall()
        found = dict(rows)
        self.assertEqual(len(found), len(rows), "something is there twice")
        for writer in writers:
            self.assertIsNone(writer.fault)
            for name, memo in writer.stored.items():
                if name not in writer.unsure:
                    self.assertEqual(found.get(name), memo, f"lost: {name}")
            self.assertEqual([name for name in writer.deleted if name in found], [])
        known = {name for writer in writers for name in (*writer.stored, *writer.unsure)}
        self.assertEqual(set(found) - known, set())
        return len(found)

    def test_killed_under_load(self):
        with Service() as service:
            stored = 0
            for _ in range(KILLS):
                writers = [Writer(service, f"w{stored}-{i}") for i in range(CLIENTS)]
                for writer in writers:
                    writer.start()
                time.sleep(random.uniform(0.2, 0.8))
                self.assertEqual(service.stop(signal.SIGKILL), -9)
                for writer in writers:
                    writer.stopped.set()
                for writer in writers:
                    writer.join()
                self.everybody = getattr(self, "everybody", []) + writers
                service.start()
                stored = self.check(self.everybody, service.database)
            self.assertGreater(stored, 100 * KILLS // 2)
            print(stored, "records after", KILLS, "kills")

    def test_terminated_under_load(self):
        with Service() as service:
            writers = [Writer(service, f"w{i}") for i in range(CLIENTS)]
            for writer in writers:
                writer.start()
            time.sleep(1)
            self.assertEqual(service.stop(), 0)
            for writer in writers:
                writer.stopped.set()
                writer.join()
            self.check(writers, service.database)
            self.assertFalse(service.database.with_name("records.sqlite3-wal").exists())


class FullDisk(unittest.TestCase):
    def test_a_full_disk(self):
        folder = new_folder()
        clone_newns = 0x20000
        if ctypes.CDLL(None).unshare(clone_newns) != 0 or any(
                subprocess.call(["mount", *arguments], stderr=subprocess.DEVNULL) != 0 for arguments in
                (["--make-rprivate", "/"], ["-t", "tmpfs", "-o", "size=600k", "none", folder])):
            self.skipTest("mounting a small file system is not permitted here")
        service = Service(folder=folder, prefix=())
        try:
            client = Client(service)
            stored, answers = set(), set()
            for i in range(2000):
                answer = client.insert(User=f"{i}", Memo="m" * 2000)
                answers.add(answer)
                if answer == 0:
                    stored.add(f"{i}")
            self.assertEqual(answers, {0, 5})
            self.assertIn("full", service.log())
            subprocess.check_call(["mount", "-o", "remount,size=50m", folder])
            self.assertEqual({row["User"] for row in client.select("1=1")}, stored)
            self.assertEqual(client.insert(User="after"), 0)
            service.stop(signal.SIGKILL)
            service.start()
            self.assertEqual({row["User"] for row in Client(service).select("1=1")}, stored | {"after"})
        finally:
            service.stop()


if __name__ == "__main__":
    unittest.main(verbosity=2)
