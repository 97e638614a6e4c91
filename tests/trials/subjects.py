"""Each way in which the product writes a file of the user's, as a program to run, and what such a
program may leave when it is cut short. Samples lie in one folder, results are made on a small disk.
"""
import base64
import ctypes
import functools
import http.server
import os
import random
import shutil
import subprocess
import sys
import threading
from dataclasses import dataclass, field
from pathlib import Path
from typing import Callable

BUILD = Path(sys.argv.pop(1))
SANDBOX = Path(os.environ["TOOLVANE_TEST_SANDBOX"])  # never outside of it
SAMPLES, FOLDER, HOME = SANDBOX / "samples", SANDBOX / "disk", SANDBOX / "home of subjects"
WORKER = BUILD / "tests/trial_worker"
MEGABYTE = 1024 * 1024
# The distribution's programs must not load what belongs to ours.
PRELOAD = os.environ.pop("LD_PRELOAD", "")
OURS = {"LD_PRELOAD": PRELOAD,  # the sanitizer's runtime is no part of it here
        "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0"}


@dataclass
class Subject:
    command: list
    result: str  # the name of what is made, within the folder
    no_room: str = "No space left"  # a part of what it says when there is none
    success: int = 0  # its status when all went well
    terminated: int = 143  # and when it was asked to end
    replaces: bool = True  # it may be asked to write where an older file stands
    leaves_parts: bool = False  # unzip works in the folder itself, Qt beside the settings
    variables: dict = field(default_factory=dict)
    prepare: Callable = lambda: None  # makes what each run uses up

    def restore(self):
        """Empties the folder but for an older file, and makes what a run uses up."""
        empty_folder()
        older = FOLDER / (self.result if self.replaces else "older")
        older.parent.mkdir(exist_ok=True)
        older.write_text("[older]\n")
        self.prepare()

    def start(self):
        """Where our own worker is the program, the work itself has begun when this returns."""
        is_ours = self.command[0] == WORKER
        environment = os.environ | {"HOME": str(HOME)} | (OURS if is_ours else {}) | self.variables
        process = subprocess.Popen(self.command, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if is_ours:
            process.stdout.readline()
        return process

    def whole(self):
        return (FOLDER / self.result).read_bytes()

    def faults(self, before, whole):
        """What a run that was cut short has done wrong; `whole` is the result of one that was not.
        """
        now = contents()
        found = [f"lost: {name}" for name in before if name not in now]
        for name, content in now.items():
            is_allowed = content == before[name] if name in before else self.leaves_parts
            if not is_allowed and not (name == self.result and is_same(content, whole)):
                found.append(f"{'damaged' if name in before else 'left behind'}: {name}")
        return found


def is_same(content, whole):
    """Images hold the time of their making; everything else must be the same."""
    size = len(whole)
    if len(content) != size:
        return False
    difference = int.from_bytes(content, "big") ^ int.from_bytes(whole, "big")
    return size - difference.to_bytes(size, "big").count(0) <= 64


def mount_disk():
    """Makes the folder a file system that only this process and its children see. False where
    mounting is not permitted."""
    FOLDER.mkdir()
    clone_newns = 0x20000
    return ctypes.CDLL(None).unshare(clone_newns) == 0 and all(
        subprocess.call(["mount", *arguments]) == 0
        for arguments in (["--make-rprivate", "/"], ["-t", "tmpfs", "none", FOLDER]))


def resize_disk(size):
    subprocess.check_call(["mount", "-o", f"remount,size={size}", FOLDER])


def empty_folder():
    for entry in FOLDER.iterdir():
        shutil.rmtree(entry) if entry.is_dir() else entry.unlink()


def contents():
    return {str(path.relative_to(FOLDER)): path.read_bytes()
            for path in FOLDER.rglob("*") if path.is_file()}


def sample(name, size):
    path = SAMPLES / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(random.Random(1).randbytes(size))
    return path


def standin(name, *arguments):
    return [BUILD / "libexec/toolvane" / name, *arguments]


def image(*kind, **more):
    for i in range(8):
        sample(f"images/{i}", 4 * MEGABYTE)
    return Subject(standin("hdiutil", "makehybrid", *kind, "-o", FOLDER / "image",
                           "-default-volume-name", "V", "-ov", "-quiet", SAMPLES / "images"),
                   "image", **more)


def movie():
    source = SAMPLES / "source.avi"
    making = ("-v error -y -f lavfi -i testsrc2=s=176x144:d=2 "
              "-vf noise=alls=40:allf=t -c:v mpeg4 -q:v 2")
    subprocess.check_call(["ffmpeg", *making.split(), source], stdin=subprocess.DEVNULL)
    return Subject(standin("avconvert", "--preset", "PresetHEVCHighestQuality", "--source", source,
                           "--output", FOLDER / "out.m4v", "-q"), "out.m4v")


def speech():
    return Subject(standin("say", "Ninety-nine bottles. " * 200, "--voice=English (America)",
                           "--rate=175", f"--output-file={FOLDER}/out.aiff"), "out.aiff")


def unpacking():
    """The archive holds "older" too, which stands there already."""
    archive = SAMPLES / "sample.zip"
    folder = sample("archived/out", 16 * MEGABYTE).parent
    sample("archived/older", 1000)
    subprocess.check_call(["zip", "-q", archive, "out", "older"], cwd=folder)
    return Subject(standin("unzip", "-q", archive, "-d", FOLDER), "out",
                   success=1,  # for what it did not replace
                   replaces=False, leaves_parts=True)


def packing():
    """Several small files, and one that is packed in pieces."""
    for i in range(20):
        sample(f"folder/{i}", MEGABYTE // 4)
    sample("folder/large", 44 * MEGABYTE)
    return Subject(["env", "-C", SAMPLES / "folder",
                    *standin("zip", "-r", FOLDER / "out.zip", ".", "-1", "-q")], "out.zip",
                   replaces=False)


def placement():
    return Subject([WORKER, "place", SAMPLES / "finished", FOLDER / "out.zip"], "out.zip",
                   replaces=False, prepare=lambda: sample("finished", 32 * MEGABYTE))


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass


def download():
    file, key = sample("new.deb", 8 * MEGABYTE), SAMPLES / "maker.pem"

    def openssl(*arguments):
        return subprocess.check_output(["openssl", *arguments])
    openssl("genpkey", "-algorithm", "ed25519", "-out", key)
    public_key = openssl("pkey", "-in", key, "-pubout", "-outform", "DER")[-32:]
    signature = openssl("pkeyutl", "-sign", "-rawin", "-inkey", key, "-in", file)
    server = http.server.ThreadingHTTPServer(
        ("127.0.0.1", 0), functools.partial(QuietHandler, directory=SAMPLES))
    server.handle_error = lambda *_: None  # whoever is killed hangs up
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return Subject([WORKER, "download", f"http://127.0.0.1:{server.server_port}/new.deb",
                    str(8 * MEGABYTE), base64.b64encode(public_key), base64.b64encode(signature),
                    FOLDER], "new.deb", replaces=False)


def grant():
    return Subject([WORKER, "grant"], "Toolvane/Toolvane.conf", "cannot write", leaves_parts=True,
                   variables={"XDG_CONFIG_HOME": str(FOLDER)})


def window():
    """The whole application with its Zip page at work; it makes the archive in the home folder."""
    for i in range(20):
        sample(f"packed/{i}", MEGABYTE // 2)
    return Subject([WORKER, "zip", SAMPLES / "packed", FOLDER / "out.zip"], "out.zip",
                   replaces=False, prepare=lambda: shutil.rmtree(HOME, ignore_errors=True),
                   variables={"XDG_DATA_HOME": str(HOME)})


SUBJECTS = {
    "HFS image": lambda: image("-hfs"),
    "hybrid image": lambda: image(no_room="space"),  # xorriso looks before it writes
    "movie": movie,
    "speech": speech,
    "zip": packing,
    "unzip": unpacking,
    "placement": placement,
    "download": download,
    "grant": grant,
    "zip in window": window,
}
