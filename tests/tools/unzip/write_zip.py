#!/usr/bin/env python3
"""usage: write_zip.py ARCHIVE [KIND NAME CONTENT]...

Writes an archive with whatever names and links a test wants, which no packing program would write.
The kinds: f a file, l a link, d a folder (its name ends in a slash), s a file that says that it is
encrypted."""

import sys
import zipfile

MODES = {"f": 0o100644, "s": 0o100644, "l": 0o120777, "d": 0o040755}

entries = sys.argv[2:]
with zipfile.ZipFile(sys.argv[1], "w") as archive:
    for kind, name, content in zip(entries[::3], entries[1::3], entries[2::3]):
        info = zipfile.ZipInfo(name)
        info.external_attr = MODES[kind] << 16
        archive.writestr(info, content)
        info.flag_bits |= kind == "s"  # in the directory, which is written last
