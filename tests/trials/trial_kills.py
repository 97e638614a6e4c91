#!/usr/bin/env python3
"""Proves that whatever writes a file may be ended at any moment: an older file is whole, nothing
half-written stands there, nothing runs on, and the next run works.
usage: tests/support/isolated python3 trial_kills.py BUILD_FOLDER
"""
import ctypes
import os
import random
import signal
import time
import unittest

import subjects
from subjects import SUBJECTS

MOMENTS = 30
SEED = int(os.environ.get("TOOLVANE_TRIAL_SEED", random.randrange(2**31)))
PATIENCE = 8  # seconds: the runner waits three between TERM and KILL


def is_alone():
    """Waits for everything that was started; false when something runs on."""
    until = time.monotonic() + PATIENCE
    while time.monotonic() < until:
        try:
            if os.waitpid(-1, os.WNOHANG)[0] == 0:
                time.sleep(0.001)
        except ChildProcessError:
            return True
    return False


def end_after(moment, signal_number, subject):
    """Its status as a shell shows it, and whether nothing runs on."""
    with subject.start() as process:
        time.sleep(moment)
        process.send_signal(signal_number)
        status = process.wait()
        return (128 - status if status < 0 else status), is_alone()


class Kills(unittest.TestCase):
    def complete(self, subject):
        """How long the work takes when nobody disturbs it."""
        subject.restore()
        process = subject.start()
        began = time.monotonic()
        words = process.communicate()
        self.assertEqual(process.returncode, subject.success, words)
        return time.monotonic() - began

    def end_at_random(self, subject, moments):
        self.complete(subject)  # warms the caches
        duration = self.complete(subject)
        whole = subject.whole()
        interrupted = 0
        for i in range(MOMENTS):
            subject.restore()
            before = subjects.contents()
            moment = moments.uniform(0, duration)
            signal_number = signal.SIGTERM if i % 2 else signal.SIGKILL
            status, alone = end_after(moment, signal_number, subject)
            when = f"signal {signal_number} after {moment:.6f} s of {duration:.6f}, status {status}"
            self.assertTrue(alone, f"something runs on ({when})")
            ends = [subject.success, 128 + signal_number]  # the latter also before it could listen
            self.assertIn(status, ends + [subject.terminated] * (i % 2), when)
            self.assertEqual(subject.faults(before, whole), [], when)
            interrupted += status != subject.success
        print(f"{interrupted} of {MOMENTS} runs of {duration:.3f} s were cut short", flush=True)
        self.assertGreaterEqual(interrupted, MOMENTS // 5)
        self.complete(subject)

    def test_leaves_what_stood_there(self):
        print(f"TOOLVANE_TRIAL_SEED={SEED} brings the same moments again", flush=True)
        moments = random.Random(SEED)
        for name, make in SUBJECTS.items():
            with self.subTest(name):
                self.end_at_random(make(), moments)


if __name__ == "__main__":
    # Whatever a program leaves running becomes a child of this process, so that it is seen.
    pr_set_child_subreaper = 36
    ctypes.CDLL(None).prctl(pr_set_child_subreaper, 1, 0, 0, 0)
    if subjects.mount_disk():  # so that a placement has to copy
        subjects.resize_disk(200 * 1024 * 1024)
    unittest.main(verbosity=2)
