"""Proves that every include follows the arrows of docs/architecture.md, and that the build links the same.
usage: check_arrows.py SOURCE-FOLDER

The compiler refuses most wrong includes, because a library's own folder is its only include root. It
does not see relative paths, module-qualified Qt headers, or system libraries that happen to be
installed.
"""

import re
import sys
from pathlib import Path

root = Path(sys.argv[1])
QT_ROOTS = [Path("/usr/include/x86_64-linux-gnu/qt6"), *Path("/usr/include").glob("*/qt6")]
QT_MODULES = ("QtCore", "QtGui", "QtWidgets", "QtConcurrent", "QtDBus")
LIBRARIES = {"SQLite": "sqlite3.h", "libcurl": "curl/", "libsodium": "sodium.h", "ICU": "unicode/",
             "libcanberra": "canberra.h", "libxcb": "xcb/", "simdjson": "simdjson.h",
             "libdeflate": "libdeflate.h", "libzip": "zip.h", "zlib": "zlib.h", "Boost": "boost/", "libmariadb": "mysql.h",
             "OpenSSL": "openssl/"}
SYSTEM = re.compile(r"(arpa|sys|linux)/\w+\.h|[a-z_]+"
                    r"|(dirent|fcntl|limits|malloc|poll|pwd|sched|signal|sysexits|termios|unistd)\.h")
faults = []


def table():
    """{folder: what it may include}, from the table of folders"""
    arrows = {}
    for line in (root / "docs/architecture.md").read_text(encoding="utf-8").splitlines():
        cells = [cell.strip() for cell in line.split("|")]
        if len(cells) == 5 and re.match(r"`[\w/<>]+/`$", cells[1]):
            allowed = {name.strip("` ") for name in cells[3].split(",") if name.strip()}
            name = cells[1].strip("`/")
            arrows[name] = allowed
    for placeholder in [name for name in arrows if "<" in name]:  # a row for all folders without one
        allowed = arrows.pop(placeholder)
        parent = placeholder.split("/")[0]
        others = {f"{parent}/{folder.name}" for folder in (root / parent).iterdir() if folder.is_dir()}
        others -= arrows.keys()
        arrows.update(dict.fromkeys(others, allowed))
        for name, targets in arrows.items():
            if placeholder in targets:
                arrows[name] = targets - {placeholder} | others
    return arrows


def reachable(folder, arrows, seen=None):
    """The folders and libraries that a folder's arrows lead to, those of its targets included."""
    seen = set() if seen is None else seen
    for target in arrows.get(folder, ()):
        if target not in seen:
            seen.add(target)
            if target in arrows:
                reachable(target, arrows, seen)
    return seen


def qt_module(header):
    for module in QT_MODULES:
        if any((qt / module / header).exists() for qt in QT_ROOTS):
            return module
    return "QCoro" if header.startswith("QCoro") else "an unknown module of Qt"


def library_of(header):
    if header.startswith("Q"):
        return qt_module(header)
    for library, start in LIBRARIES.items():
        if header == start or start.endswith("/") and header.startswith(start):
            return library
    return None


def check_include(file, folder, kind, header, arrows, allowed):
    where = f"{file.relative_to(root)}: <{header}>" if kind == "<" else \
        f"{file.relative_to(root)}: \"{header}\""
    if kind == '"':
        if "/" in header:
            faults.append(f"{where}: a path, not a file of its own folder or of one it may include")
        elif not re.match(r"ui_\w+\.h$|\w+\.moc$|moc_\w+\.cpp$", header) and not any(
                (root / room / header).is_file() for room in {folder, *allowed} if room in arrows):
            faults.append(f"{where}: in no folder that {folder} may include")
        return
    library = library_of(header)
    if library and library not in allowed or not library and not SYSTEM.fullmatch(header):
        faults.append(f"{where}: {folder} may not include {library or 'this'}")


def check_build(folder, arrows, allowed):
    """What the folder's library links of ours is what the table says."""
    build = (root / folder / "CMakeLists.txt").read_text(encoding="utf-8")
    ours = {f"toolvane_{name.replace('/', '_')}": name for name in arrows}
    linked = {ours[name] for name in re.findall(r"\btoolvane_\w+", build) if name in ours}
    for name in sorted(linked - {folder} - allowed):
        faults.append(f"{folder}/CMakeLists.txt links {name}, which is not in the table")


arrows = table()
assert {"app", "util", "store", "tools/run", "tools/zip"} <= arrows.keys(), "no table of folders"
checked = 0
for folder in sorted(arrows):
    allowed = reachable(folder, arrows)
    for file in sorted((root / folder).glob("*")):
        if file.suffix not in (".cpp", ".h"):
            continue
        text = file.read_text(encoding="utf-8")
        for kind, header in re.findall(r'^\s*#\s*include\s*([<"])([^>"]+)', text, re.MULTILINE):
            checked += 1
            check_include(file, folder, kind, header, arrows, allowed)
    check_build(folder, arrows, allowed)
assert checked > 500, "hardly any includes found"
for file in [*root.glob("app/look/*.cpp"), *root.glob("app/look/*.h")]:
    for name in re.findall(r'"(\w+)"', file.read_text(encoding="utf-8")):
        if (root / "app" / f"{name}.h").exists():
            faults.append(f"{file.relative_to(root)}: knows the class {name} of app by its name")
for file in [root / "CMakeLists.txt", *root.glob("[a-z]*/**/CMakeLists.txt")]:
    if "build" not in file.parts and "if(EXISTS" in file.read_text(encoding="utf-8"):
        faults.append(f"{file.relative_to(root)}: if(EXISTS …) lets a lost folder vanish unnoticed")
print("\n".join(faults) or f"{checked} includes in {len(arrows)} folders, all along the arrows")
sys.exit(1 if faults else 0)
