"""Prints the desktop file: its texts in every language, and an action for each page.
usage: make_desktop_file.py FOLDER-OF-TABLES"""

import sys

from texts import pages, phrase, read_tables, translated

HEAD = """[Desktop Entry]
Type=Application
Version=1.0
Name=Toolvane
Exec=toolvane
Icon=toolvane
Terminal=false
StartupNotify=true
StartupWMClass=toolvane
X-GNOME-SingleWindow=true
Categories=Utility;FileTools;Archiving;"""


def entry(key, tables, text_of):
    """KEY=… and KEY[language]=…, escaped as desktop files require."""
    for language, text in translated(tables, text_of):
        suffix = "" if language == "en" else f"[{language}]"
        yield f"{key}{suffix}=" + text.replace("\\", "\\\\").replace("\n", " ")


def keywords(table):
    return "".join(table[name].replace(";", " ") + ";" for name in pages().values())


def desktop_file(tables):
    yield HEAD
    yield "Actions=" + "".join(page + ";" for page in pages())
    yield from entry("Comment", tables, lambda table: phrase(table["Welcome.Sentence"]))
    yield from entry("Keywords", tables, keywords)
    for page, name in pages().items():
        yield f"\n[Desktop Action {page}]"
        yield from entry("Name", tables, lambda table: table[name])
        yield f"Exec=toolvane {page}"


print("\n".join(desktop_file(read_tables(sys.argv[1]))))
