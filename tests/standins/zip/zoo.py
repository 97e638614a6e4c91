"""A folder of everything that a folder can hold, and what an archive of it must give back."""
import hashlib
import os
import random
import socket
import stat

NAMES = [b"n" * 255, b"\xff\xfe\x80", "ünïcødé 漢字 🙂".encode(), b"line\nbreak", b"-q", b"--",
         b"@", b"*?[a]", b"back\\slash", b" blanks ", b"semi;1", b"semi;2", b"dots...", b".hidden",
         b"quote'\"`$x",
         b"\x01\x7f", b"%s%n", "e\u0301".encode(), b"\xed\xa0\x80"]
TIMES = [0, 1, 315532800, 315532799, 1000000001, 2147483647, -1]
SIZES = [0, 1, 2, 3, 100, 65535, 65536, (1 << 20) - 1, 1 << 20, (1 << 20) + 1]
MODES = [0o644, 0o600, 0o755, 0o4755, 0o2711, 0o444, 0o1777]


def contents(size, seed):
    """Half of it can be packed well, half not at all."""
    half = random.Random(seed).randbytes(size // 2)
    text = b"a line of text that comes again and again\n" * (size // 42 + 1)
    return half + text[:size - len(half)]


def make(folder):
    """Makes the zoo in bytes, so that every name is possible."""
    top = os.fsencode(folder)

    def path(*parts):
        return os.path.join(top, *parts)

    def write(content, *parts):
        os.makedirs(os.path.dirname(path(*parts)), exist_ok=True)
        with open(path(*parts), "wb") as file:
            file.write(content)

    for name in NAMES:
        write(b"content of " + name, b"names", name)
        write(b"inside", b"folders", name, name)
    for size in SIZES:
        write(contents(size, size), b"sizes", b"%d" % size)
    write(random.Random(1).randbytes(3 << 20), b"noise")
    write(b"\0" * (2 << 20), b"zeros")
    write(b"deep", *[b"level"] * 200, b"bottom")
    for mode in MODES:
        write(b"mode", b"modes", b"%o" % mode)
        os.chmod(path(b"modes", b"%o" % mode), mode)
    for time in TIMES:
        write(b"time", b"times", b"%d" % time)
        os.utime(path(b"times", b"%d" % time), (time, time))
    os.makedirs(path(b"empty", b"within"))
    write(b"shared", b"links", b"target")
    os.link(path(b"links", b"target"), path(b"links", b"hard"))
    for name, target in ((b"file", b"target"), (b"folder", b"../modes"), (b"nowhere", b"nothing"),
                         (b"itself", b"itself"), (b"chain", b"file"),
                         (b"not a folder", b"target/x")):
        os.symlink(target, path(b"links", name))
    os.mkfifo(path(b"pipe"))
    with socket.socket(socket.AF_UNIX) as server:
        before = os.getcwd()
        os.chdir(top)
        server.bind("socket")
        os.chdir(before)
    if os.geteuid() == 0:
        os.mknod(path(b"device"), stat.S_IFCHR | 0o666, os.makedev(1, 5))


def checksum(path):
    with open(path, "rb") as file:
        return hashlib.file_digest(file, "blake2b").hexdigest()[:16]


def look(folder, is_packed=False):
    """What is there by name: kind, mode, time, content; links followed, as far as they are packed.
    For a folder that was packed, modes are those that come out of an archive."""
    found = {}
    top = os.fsencode(folder)
    for path, folders, files in os.walk(top, followlinks=is_packed):
        for name in folders + files:
            full = os.path.join(path, name)
            try:
                status = os.stat(full, follow_symlinks=is_packed)
            except OSError:
                continue
            kind = stat.S_IFMT(status.st_mode)
            if is_packed and kind not in (stat.S_IFREG, stat.S_IFDIR):
                continue
            content = checksum(full) if kind == stat.S_IFREG else None
            mode = status.st_mode & (0o777 & ~0o022 if is_packed else 0o7777)
            found[os.path.relpath(full, top)] = kind, mode, int(status.st_mtime), content
    return found
